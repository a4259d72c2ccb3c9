#include "controller/robot/jointjog.h"

#include "controller/robot/axislimits.h"

namespace controller {

namespace {

double speedOf(const Axis& axis, const JogSpeeds& jog, double percent) {
    return axis.speed * jog.percentOfAxis / 100 * percent / 100;
}

} // namespace

JointJog::JointJog(const RobotModel& model, const JogCommand& command, const Posture& start)
    : m_model(model), m_axis(model.axes().at(command.axis)), m_index(command.axis),
      m_start(valueOf(start, model, command.axis)), m_speed(speedOf(m_axis, model.jog, command.percent)) {}

JogStep JointJog::at(qint64 sinceStartMs, const Posture& present) {
    const double value = m_start + m_speed * double(sinceStartMs) / 1000;
    const double limit = m_speed > 0 ? m_axis.maximum : m_axis.minimum;
    const bool isThere = m_speed > 0 ? value >= limit : value <= limit;
    JogStep step{present, isThere ? limitOf(m_axis) : QString(), QString()};
    setValue(&step.posture, m_model, m_index, isThere ? limit : value);
    return step;
}

} // namespace controller
