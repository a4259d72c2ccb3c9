#include "controller/robot/robot.h"

namespace controller {

namespace {

const int cartesianAxes = 6;

} // namespace

Robot::Robot(const Clock* clock, QObject* parent) : QObject(parent), m_clock(clock), m_kinematics(standardModel()) {
    connect(clock, &Clock::advanced, this, &Robot::follow);
    setModel(standardModel());
}

Robot::~Robot() = default;

void Robot::setModel(const RobotModel& model) {
    m_motion.reset();
    m_kinematics = Kinematics(model);
    m_posture = model.start();
    m_tool = model.tool;
    m_wobj = model.wobj;
    setState(false, QString());
    emit moved();
}

void Robot::setPosture(const Posture& posture) {
    stop();
    m_posture = posture;
    emit moved();
}

void Robot::setFrame(const QString& tool, const QString& wobj) {
    if (tool == m_tool && wobj == m_wobj)
        return;
    stop();
    m_tool = tool;
    m_wobj = wobj;
    emit moved();
}

QString Robot::refusalOf(const JogCommand& command) const {
    const int axes = command.space == JogCommand::Joint ? model().axes().size() : cartesianAxes;
    if (command.axis < 0 || command.axis >= axes)
        return QStringLiteral("There is no axis %1 to jog: they are counted from 0 to %2.")
            .arg(command.axis)
            .arg(axes - 1);
    const bool isInRange = command.percent >= -100 && command.percent <= 100;
    return isInRange ? QString() : QStringLiteral("The speed to jog with must be from -100 to 100 percent.");
}

void Robot::jog(const JogCommand& command) {
    advance(m_clock->nowMs());
    m_renewedMs = m_clock->nowMs();
    if (m_motion && m_command == command)
        return;
    end(QString());
    if (command.percent < 0 || command.percent > 0) {
        m_motion = jogMotion(&m_kinematics, command, m_posture, m_tool, m_wobj);
        m_command = command;
        m_startedMs = m_clock->nowMs();
        setState(true, QString());
    }
}

void Robot::stop() {
    advance(m_clock->nowMs());
    end(QString());
}

// Only there, so that the motion does not depend on how the clock is stepped.
void Robot::follow(qint64 nowMs) {
    if (nowMs % Clock::tickMs == 0)
        advance(nowMs);
}

void Robot::advance(qint64 nowMs) {
    const qint64 untilMs = m_renewedMs + renewedWithinMs;
    if (m_isMoving)
        moveUntil(qMin(nowMs, untilMs));
    if (m_motion && nowMs >= untilMs)
        end(QStringLiteral("not renewed"));
}

void Robot::moveUntil(qint64 nowMs) {
    const JogStep step = m_motion->at(nowMs - m_startedMs, m_posture);
    const bool hasMoved = step.posture != m_posture;
    m_posture = step.posture;
    if (!step.stoppedBy.isEmpty())
        setState(false, step.stoppedBy);
    if (hasMoved)
        emit moved();
    if (!step.notice.isEmpty())
        emit noticed(step.notice);
}

// What stopped it already stays the reason.
void Robot::end(const QString& stoppedBy) {
    m_motion.reset();
    if (m_isMoving)
        setState(false, stoppedBy);
}

void Robot::setState(bool isMoving, const QString& stoppedBy) {
    const bool isNew = isMoving != m_isMoving || stoppedBy != m_stoppedBy;
    m_isMoving = isMoving;
    m_stoppedBy = stoppedBy;
    if (isNew)
        emit stateChanged();
}

} // namespace controller
