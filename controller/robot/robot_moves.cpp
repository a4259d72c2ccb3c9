#include "controller/robot/moveplan.h"
#include "controller/robot/robot.h"

namespace controller {

MoveError Robot::whyNotNow() const {
    if (!m_hasDrives)
        return drivesAreOff();
    return m_move && !m_move->isBraking() ? moveUnderWay() : MoveError();
}

// Where it starts from is known when it starts; whether it can start at all is told at once.
MoveError Robot::prepare(MoveCommand command) {
    advance(m_clock->nowMs());
    command.target.tool = m_tool;
    command.target.wobj = m_wobj;
    MoveError error = whyNotNow();
    if (!error)
        error = planOf(&m_kinematics, command, m_posture).error;
    if (error) {
        refuse(error);
        return error;
    }
    end(QString());
    m_prepared = command;
    m_isConfirmed = false;
    clearError();
    return {};
}

void Robot::clearError() {
    if (!m_error)
        return;
    m_error = MoveError();
    emit stateChanged();
}

void Robot::refuse(const MoveError& error) {
    m_prepared.reset();
    m_error = error;
    emit stateChanged();
    emit failed();
    emit noticed(error.text);
}

bool Robot::confirm() {
    advance(m_clock->nowMs());
    if (!m_prepared)
        return false;
    m_isConfirmed = true;
    if (!m_move)
        start();
    return true;
}

void Robot::start() {
    const MoveCommand command = *m_prepared;
    m_prepared.reset();
    MovePlan plan = planOf(&m_kinematics, command, m_posture);
    if (plan.error)
        return refuse(plan.error);
    m_move = std::make_unique<Move>(std::move(plan.path));
    m_startedMs = m_clock->nowMs();
    setState(command.way == MoveCommand::Joint ? Motion::JointMove : Motion::LinearMove, QString());
}

void Robot::brake() {
    advance(m_clock->nowMs());
    end(QString());
    m_prepared.reset();
    if (!m_move || m_move->isBraking())
        return;
    m_move->brake();
    emit stateChanged();
}

void Robot::reset() {
    brake();
    if (m_move)
        m_move->forgetError();
    clearError();
}

void Robot::advanceMove(qint64 nowMs) {
    const bool wasBraking = m_move->isBraking();
    const MoveStep step = m_move->at(nowMs - m_startedMs, m_posture);
    const bool hasMoved = step.posture != m_posture;
    m_posture = step.posture;
    if (step.isOver)
        endMove(step.error ? step.error.stoppedBy : QLatin1String(wasBraking ? "" : "arrived"), step.error);
    else if (wasBraking != m_move->isBraking())
        emit stateChanged();
    if (hasMoved)
        emit moved();
}

void Robot::endMove(const QString& stoppedBy, const MoveError& error) {
    m_move.reset();
    setState(Motion::None, stoppedBy);
    if (error)
        refuse(error);
    else if (m_prepared && m_isConfirmed)
        start();
}

} // namespace controller
