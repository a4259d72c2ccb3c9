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
    m_jog.reset();
    m_move.reset();
    m_prepared.reset();
    m_kinematics = Kinematics(model);
    m_posture = model.start();
    m_tool = model.tool;
    m_wobj = model.wobj;
    setState(Motion::None, QString());
    clearError();
    emit modelChanged();
    emit moved();
}

void Robot::setPosture(const Posture& posture) {
    advance(m_clock->nowMs());
    halt(QString(), MoveError());
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

void Robot::setDrives(bool on) {
    if (on == m_hasDrives)
        return;
    advance(m_clock->nowMs());
    m_hasDrives = on;
    if (!on)
        halt(drivesWentOff().stoppedBy, drivesWentOff());
    emit stateChanged();
    emit drivesChanged(on);
}

void Robot::setMode(Mode mode) {
    if (mode == m_mode)
        return;
    stop();
    m_mode = mode;
    emit modeChanged(mode);
}

QString Robot::refusalOf(const JogCommand& command) const {
    const int axes = command.space == JogCommand::Joint ? model().axes().size() : cartesianAxes;
    if (command.axis < 0 || command.axis >= axes)
        return QStringLiteral("There is no axis %1 to jog: they are counted from 0 to %2.")
            .arg(command.axis)
            .arg(axes - 1);
    if (!(command.percent >= -100 && command.percent <= 100))
        return QStringLiteral("The speed to jog with must be from -100 to 100 percent.");
    if (!m_hasDrives)
        return QStringLiteral("The robot cannot be jogged: its drives are off.");
    if (m_mode != Mode::Manual)
        return QStringLiteral("The robot cannot be jogged in automatic mode.");
    return m_move ? QStringLiteral("The robot cannot be jogged while it moves to a target.") : QString();
}

void Robot::jog(const JogCommand& command) {
    advance(m_clock->nowMs());
    if (!refusalOf(command).isEmpty())
        return;
    m_prepared.reset();
    m_renewedMs = m_clock->nowMs();
    if (m_jog && m_command == command)
        return;
    end(QString());
    if (command.percent < 0 || command.percent > 0) {
        m_jog = jogMotion(&m_kinematics, command, m_posture, m_tool, m_wobj);
        m_command = command;
        m_startedMs = m_clock->nowMs();
        setState(Motion::Jog, QString());
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
    if (m_move)
        advanceMove(nowMs);
    else
        advanceJog(nowMs);
}

void Robot::advanceJog(qint64 nowMs) {
    const qint64 untilMs = m_renewedMs + renewedWithinMs;
    if (m_motion == Motion::Jog)
        moveUntil(qMin(nowMs, untilMs));
    if (m_jog && nowMs >= untilMs)
        end(QStringLiteral("not renewed"));
}

void Robot::moveUntil(qint64 nowMs) {
    const JogStep step = m_jog->at(nowMs - m_startedMs, m_posture);
    const bool hasMoved = step.posture != m_posture;
    m_posture = step.posture;
    if (!step.stoppedBy.isEmpty())
        setState(Motion::None, step.stoppedBy);
    if (hasMoved)
        emit moved();
    if (!step.notice.isEmpty())
        emit noticed(step.notice);
}

// What stopped it already stays the reason.
void Robot::end(const QString& stoppedBy) {
    m_jog.reset();
    if (m_motion == Motion::Jog)
        setState(Motion::None, stoppedBy);
}

// At once, whatever moves it. The error is that of a move.
void Robot::halt(const QString& stoppedBy, const MoveError& error) {
    end(stoppedBy);
    m_prepared.reset();
    if (m_move)
        endMove(stoppedBy, error);
}

void Robot::setState(Motion motion, const QString& stoppedBy) {
    const bool isNew = motion != m_motion || stoppedBy != m_stoppedBy;
    m_motion = motion;
    m_stoppedBy = stoppedBy;
    if (isNew)
        emit stateChanged();
}

} // namespace controller
