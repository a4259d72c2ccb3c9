#pragma once

#include "spatial.h"

#include <QMap>
#include <QString>
#include <QVector>

class QJsonObject;

namespace pendant {
namespace view {

/// Where something stands: in the world, or on an external axis.
struct Mount {
    static constexpr int world = -1;

    Place place;
    int on = world; ///< index of the external axis
};

/// A joint and what is fixed to it up to the next one, or to the flange.
struct Link {
    QString name;
    Vector axis{0, 0, 1};
    Place next;
};

struct External {
    QString name;
    Vector axis{0, 0, 1};
    bool isLinear = false;
    Mount mount;
    double minimum = 0; ///< in mm or degrees; the same as `maximum` where they are not known
    double maximum = 0;
};

/// A robot of any number of joints, as the controller describes it.
struct ArmGeometry {
    Mount foot;
    QVector<Link> links;
    QVector<External> externals;
    QMap<QString, Place> tools; ///< the tip in the flange
    QMap<QString, Mount> wobjs;

    bool isEmpty() const { return links.isEmpty(); }
    /// From joint to joint, mm.
    double size() const;
};

/// Of the controller's "robot.arm"; empty when there are no links in it. What is missing is at the origin, and what
/// stands on an axis that does not come before it stands in the world.
ArmGeometry armGeometryOf(const QJsonObject& description);
/// Of an object with x, y, z in mm and a, b, c in degrees.
Place placeOf(const QJsonObject& place);

/// Where the axes stand, in degrees and mm; one that is missing stands at 0.
struct Stance {
    QVector<double> joints;
    QVector<double> externals;
};

bool operator==(const Stance& one, const Stance& other);
inline bool operator!=(const Stance& one, const Stance& other) {
    return !(one == other);
}

} // namespace view
} // namespace pendant
