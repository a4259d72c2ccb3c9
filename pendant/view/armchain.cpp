#include "armchain.h"

namespace pendant {
namespace view {

namespace {

Place motionOf(const External& external, double value) {
    if (external.isLinear)
        return {{}, external.axis * value};
    return {turnAbout(external.axis, value), {}};
}

} // namespace

ArmChain::ArmChain(const ArmGeometry& arm, const Stance& stance) : m_arm(arm) {
    for (int i = 0; i < arm.externals.size(); ++i) {
        const External& external = arm.externals.at(i);
        m_externals.append(inWorld(external.mount) * motionOf(external, stance.externals.value(i)));
    }
    m_foot = inWorld(arm.foot);
    Place end = m_foot;
    for (int i = 0; i < arm.links.size(); ++i) {
        end = end * Place{turnAbout(arm.links.at(i).axis, stance.joints.value(i)), {}};
        m_links.append(end);
        end = end * arm.links.at(i).next;
    }
    m_flange = end;
}

Place ArmChain::inWorld(const Mount& mount) const {
    return mount.on == Mount::world ? mount.place : m_externals.at(mount.on) * mount.place;
}

Place ArmChain::tip(const QString& tool) const {
    return m_flange * m_arm.tools.value(tool);
}

} // namespace view
} // namespace pendant
