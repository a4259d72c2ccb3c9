#include "controller/robot/linearpath.h"

#include "controller/robot/axislimits.h"

#include <cmath>

using KDL::Frame;
using KDL::Rotation;

namespace controller {

namespace {

const double pieceMm = 4;
const double pieceDeg = 1;
const double piecesAtMost = 5000;
// Within a piece an axis may turn a little faster than on the whole of it.
const double sparedSpeed = 0.98;

} // namespace

LinearPath::LinearPath(const Kinematics* kinematics, const Posture& from, const MoveTarget& target, double mmPerS)
    : m_kinematics(kinematics), m_target(target), m_start(kinematics->pose(from, target.tool, target.wobj)),
      m_angle((m_start.M.Inverse() * target.pose.M).GetRotAngle(m_axis)), m_seenPosture(from) {
    const LinearLimits& most = kinematics->model().linear;
    const double lengthMm = (target.pose.p - m_start.p).Norm();
    limit(lengthMm, mmPerS, most.mmPerS2);
    limit(degOf(m_angle), most.degPerS, most.degPerS2);
    m_piece = 1 / std::fmin(piecesAtMost, std::fmax(1, std::fmax(lengthMm / pieceMm, degOf(m_angle) / pieceDeg)));
}

Frame LinearPath::poseAt(double at) const {
    if (at >= 1)
        return m_target.pose;
    return {m_start.M * Rotation::Rot(m_axis, m_angle * at), m_start.p + (m_target.pose.p - m_start.p) * at};
}

bool LinearPath::bringTo(double at, Posture* posture) const {
    return m_kinematics->reach(poseAt(at), m_target.tool, m_target.wobj, posture);
}

// When it neither stops nor brakes.
double LinearPath::speedAt(double at) const {
    const double toNearerEnd = std::fmax(0, std::fmin(at, 1 - at));
    return std::fmin(speed(), std::sqrt(2 * acceleration() * toNearerEnd));
}

MoveError LinearPath::lookAheadTo(double to) {
    while (m_seen < to) {
        if (const MoveError error = lookAt(std::fmin(to, m_seen + m_piece)))
            return error;
    }
    return {};
}

MoveError LinearPath::lookAt(double next) {
    const RobotModel& model = m_kinematics->model();
    Posture posture = m_seenPosture;
    const Frame pose = poseAt(next);
    if (!m_kinematics->reach(pose, m_target.tool, m_target.wobj, &posture)) {
        const bool isReached = !m_kinematics->postures(pose, m_target.tool, m_target.wobj, posture).empty();
        return isReached ? nearSingularity(nullptr) : outOfReach();
    }
    const double speed = std::fmax(speedAt(next), speedAt((m_seen + next) / 2));
    const double seconds = (next - m_seen) / std::fmax(speed, speedAt(m_seen)) * sparedSpeed;
    if (const Axis* axis = tooFast(model, m_seenPosture.joints, posture.joints, seconds))
        return nearSingularity(axis);
    if (const Axis* axis = pastItsLimit(model, posture.joints))
        return atItsLimit(*axis);
    m_seen = next;
    m_seenPosture = posture;
    return {};
}

} // namespace controller
