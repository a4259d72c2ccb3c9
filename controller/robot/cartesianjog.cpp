#include "controller/robot/cartesianjog.h"

#include "controller/robot/axislimits.h"

using KDL::Frame;
using KDL::Rotation;
using KDL::Vector;

namespace controller {

namespace {

const char* const axisNames[] = {"X", "Y", "Z", "A", "B", "C"};

bool isTurn(int axis) {
    return axis >= 3;
}

// Turning about these changes one of the Euler angles alone.
Vector directionOf(int axis, const Rotation& start) {
    if (!isTurn(axis)) {
        Vector unit;
        unit(axis) = 1;
        return unit;
    }
    if (axis == 3)
        return {0, 0, 1};
    return axis == 4 ? Rotation::RotZ(turnAboutZ(start)).UnitY() : start.UnitX();
}

double speedOf(const JogSpeeds& jog, const JogCommand& command) {
    const double full = isTurn(command.axis) ? radOf(jog.degPerS) : jog.mmPerS;
    return full * command.percent / 100;
}

} // namespace

CartesianJog::CartesianJog(const Kinematics* kinematics, const JogCommand& command, const Posture& start,
                           const QString& tool, const QString& wobj)
    : m_kinematics(kinematics), m_tool(tool), m_wobj(wobj), m_start(kinematics->pose(start, tool, wobj)),
      m_direction(directionOf(command.axis, m_start.M)), m_axis(command.axis),
      m_speed(speedOf(kinematics->model().jog, command)) {}

JogStep CartesianJog::at(qint64 sinceStartMs, const Posture& present) {
    Posture next = present;
    if (!m_kinematics->reach(target(sinceStartMs), m_tool, m_wobj, &next))
        return stopped(present, QStringLiteral("out of reach"), QStringLiteral("the arm does not reach further"));
    const double inS = double(sinceStartMs - m_reachedMs) / 1000;
    // The leap of a joint near a singularity is what stops the arm, also when it leads past a limit.
    const QString tooFastText = QStringLiteral("%1 would have to turn too fast, near a singularity");
    if (const Axis* axis = tooFast(m_kinematics->model(), present.joints, next.joints, inS))
        return stopped(present, QStringLiteral("singularity"), tooFastText.arg(axis->name));
    if (const Axis* axis = pastItsLimit(m_kinematics->model(), next.joints))
        return stopped(present, limitOf(*axis), QStringLiteral("%1 is at its limit").arg(axis->name));
    m_reachedMs = sinceStartMs;
    return {next, QString(), QString()};
}

Frame CartesianJog::target(qint64 sinceStartMs) const {
    const double way = m_speed * double(sinceStartMs) / 1000;
    if (isTurn(m_axis))
        return {Rotation::Rot(m_direction, way) * m_start.M, m_start.p};
    return {m_start.M, m_start.p + m_direction * way};
}

JogStep CartesianJog::stopped(const Posture& present, const QString& by, const QString& reason) const {
    const QString notice = QStringLiteral("Jogging along %1 cannot go on: %2.");
    return {present, by, notice.arg(QLatin1String(axisNames[m_axis]), reason)};
}

} // namespace controller
