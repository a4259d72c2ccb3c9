#include "mover.h"

#include "places.h"

#include <kite/interfacemanager.h>

namespace {

const QString errorKey = QStringLiteral("move.last_error_with_setting");
const QString stateKey = QStringLiteral("robot.state");
const QString positionKey = QStringLiteral("robot.position");

kite::InterfaceManager* robot() {
    return kite::kiteInterface();
}

QString word(const QJsonObject& state, const char* name) {
    return state.value(QLatin1String(name)).toString();
}

} // namespace

// Errors come on a subscription of our own. The watch that moveToStart() switches on tells nobody anything, and
// moveToStop() switches it off for all; a subscription is not touched by that.
Mover::Mover(const QString& pluginName, QObject* parent)
    : QObject(parent),
      m_errors(
          pluginName, errorKey, [this](const QVariant& value) { takeError(value); }, QStringLiteral("errors")),
      m_states(
          pluginName, stateKey, [this](const QVariant& value) { takeState(value); }, QStringLiteral("state")),
      m_positions(
          pluginName, positionKey, [this](const QVariant& value) { takePosition(value); }, QStringLiteral("position")) {
    m_connectTask = robot()->connectNetworkStatus(
        true, pluginName, this, [this] { setConnected(true); }, QString());
    m_disconnectTask = robot()->connectNetworkStatus(
        false, pluginName, this, [this] { setConnected(false); }, QString());
}

Mover::~Mover() {
    robot()->disconnectNetworkStatus(true, m_connectTask);
    robot()->disconnectNetworkStatus(false, m_disconnectTask);
}

Answer Mover::check(const QString& from, const QString& to) {
    // Without an answer the result is 0, as if the way could be gone.
    if (!robot()->getRobotConnected())
        return Answer::problem(tr("The way was not checked: the bus is down."));
    switch (robot()->checkPointMoveTo(from, to)) {
    case 1:
        return Answer::done(tr("Both names are “%1”: there is no way to go.").arg(from));
    case 0:
        return Answer::done(tr("The controller has nothing against the way from “%1” to “%2”.").arg(from, to));
    default: // -2
        return Answer::problem(tr("The robot cannot go straight from “%1” to “%2”.").arg(from, to));
    }
}

Answer Mover::moveTo(const QString& name, int speed, Way way) {
    // With the bus down nothing is sent, and the result does not tell.
    if (!robot()->getRobotConnected())
        return Answer::problem(tr("The robot was not started: the bus is down."));
    const QString reason = Places::whyNotTo(name);
    if (!reason.isEmpty())
        return Answer::problem(reason);
    m_error.clear();
    int result = 0; // it is left as it is when there is such a point
    robot()->moveToStart(result, name, speed, /*withConf*/ true, /*joint*/ way == Way::Joints);
    return whenSent(result, name, tr("“%1” was sent to the robot.").arg(name));
}

// Four arguments are another operation, and the compiler takes them without a word: `true` is no configuration here, it
// is `joint`. A speed goes out and no target, whatever the point holds; the controller has an error for that.
Answer Mover::moveWithoutTarget(const QString& name, int speed) {
    if (!robot()->getRobotConnected())
        return Answer::problem(tr("Nothing was sent: the bus is down."));
    m_error.clear();
    int result = 0;
    robot()->moveToStart(result, name, speed, true);
    return whenSent(result, name, tr("A speed was sent, and no target."));
}

Answer Mover::whenSent(int result, const QString& name, const QString& text) {
    emit stateChanged();
    return result == -1 ? Answer::problem(tr("There is no point “%1”. Teach it first.").arg(name)) : Answer::done(text);
}

Answer Mover::stop() {
    if (!robot()->getRobotConnected())
        return Answer::problem(tr("The stop could not be sent: the bus is down. Use the emergency stop."));
    robot()->moveToStop();
    return Answer::done(tr("The stop was sent."));
}

bool Mover::isMoving() const {
    return m_state.value(QLatin1String("moving")).toBool() && word(m_state, "motion") != QLatin1String("jog");
}

// The end of a move is told by no call: the controller's state has it.
QString Mover::stateText() const {
    if (!m_connected)
        return tr("A link is down: what the robot does is not known.");
    const QString stoppedBy = word(m_state, "stopped_by");
    if (m_state.value(QLatin1String("moving")).toBool())
        return tr("%1: %2").arg(word(m_state, "state"), word(m_state, "motion"));
    return stoppedBy.isEmpty() ? word(m_state, "state") : tr("%1: %2").arg(word(m_state, "state"), stoppedBy);
}

void Mover::takeError(const QVariant& value) {
    const QJsonObject error = value.toJsonObject();
    const int code = error.value(QLatin1String("code")).toInt();
    // After a reset there is none.
    if (code == 0)
        return;
    m_error = tr("%1 (%2)").arg(word(error, "text")).arg(code);
    emit failed(m_error);
    emit stateChanged();
}

void Mover::takeState(const QVariant& value) {
    m_state = value.toJsonObject();
    emit stateChanged();
}

void Mover::takePosition(const QVariant& value) {
    m_position = value.toJsonObject();
    emit positionChanged();
}

// A subscription tells of changes only. A move may have ended in an error while the bus was down.
void Mover::setConnected(bool connected) {
    m_connected = connected;
    if (connected) {
        takeState(robot()->getRelayData(stateKey).toVariant());
        takePosition(robot()->getRelayData(positionKey).toVariant());
        takeError(robot()->getRelayData(errorKey).toVariant());
        return;
    }
    emit stateChanged();
}
