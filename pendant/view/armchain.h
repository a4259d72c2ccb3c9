#pragma once

#include "armgeometry.h"

namespace pendant {
namespace view {

/// Where the parts of a robot are in the world when its axes stand somewhere.
class ArmChain {
public:
    ArmChain(const ArmGeometry& arm, const Stance& stance);

    /// What stands on `mount`.
    Place inWorld(const Mount& mount) const;
    /// The end of an external axis that moves.
    Place external(int index) const { return m_externals.at(index); }
    Place foot() const { return m_foot; }
    /// The link behind the joint of that index, turned with it.
    Place link(int index) const { return m_links.at(index); }
    Place flange() const { return m_flange; }
    /// The tip of a tool; the flange when there is no such tool.
    Place tip(const QString& tool) const;

private:
    ArmGeometry m_arm;
    QVector<Place> m_externals;
    Place m_foot;
    QVector<Place> m_links;
    Place m_flange;
};

} // namespace view
} // namespace pendant
