#include "controller/robot/jointpath.h"

#include <cmath>

namespace controller {

JointPath::JointPath(const RobotModel& model, const Posture& from, const Posture& to, double share)
    : m_from(from), m_to(to) {
    for (int i = 0; i < model.joints.size(); ++i) {
        const Axis& axis = model.joints.at(i);
        const double way = to.joints.at(size_t(i)) - from.joints.at(size_t(i));
        limit(std::abs(way), axis.speed * share, accelerationOf(axis));
    }
}

// Between two places within the limits there is none past them.
MoveError JointPath::lookAheadTo(double) {
    return {};
}

bool JointPath::bringTo(double at, Posture* posture) const {
    for (size_t i = 0; i < posture->joints.size(); ++i)
        posture->joints.at(i) =
            at < 1 ? m_from.joints.at(i) + (m_to.joints.at(i) - m_from.joints.at(i)) * at : m_to.joints.at(i);
    return true;
}

} // namespace controller
