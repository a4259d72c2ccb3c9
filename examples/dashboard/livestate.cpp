#include "livestate.h"

namespace {

const int pollMs = 1000;

kite::InterfaceManager* manager() {
    return kite::kiteInterface();
}

} // namespace

LiveState::LiveState(const QString& pluginName, QObject* parent) : QObject(parent), m_pluginName(pluginName) {
    m_poll.setInterval(pollMs);
    m_due.setSingleShot(true);
    connect(&m_poll, &QTimer::timeout, this, &LiveState::poll);
    connect(&m_due, &QTimer::timeout, this, &LiveState::tell);
    follow(QStringLiteral("robot.drives"), Robot);
    follow(QStringLiteral("robot.mode"), Robot);
    follow(QStringLiteral("robot.state"), Robot);
    follow(QStringLiteral("io.signals"), Signals);
    follow(QStringLiteral("register.list"), Registers);
    m_connectTask = manager()->connectNetworkStatus(
        true, pluginName, this, [this] { setConnected(true); }, QString());
    m_disconnectTask = manager()->connectNetworkStatus(
        false, pluginName, this, [this] { setConnected(false); }, QString());
}

LiveState::~LiveState() {
    manager()->disconnectNetworkStatus(true, m_connectTask);
    manager()->disconnectNetworkStatus(false, m_disconnectTask);
}

// The connect key has no dot, so that getConnectRelayKeyList() gives it back whole: "io.signals" -> "io-signals"
void LiveState::follow(const QString& key, Part part) {
    m_subscriptions.emplace_back(
        m_pluginName, key, [this, part](const QVariant&) { mark(part); },
        QString(key).replace(QLatin1Char('.'), QLatin1Char('-')));
}

void LiveState::setShown(bool shown) {
    m_shown = shown;
    if (!shown) {
        m_poll.stop();
        m_due.stop();
        return;
    }
    m_poll.start();
    m_busWasUp = manager()->getRobotConnected();
    emit linksChanged();
    m_stale = All;
    tell();
}

// The pendant writes the same news into its tree, where the calls read, and may hear of it after us: so it is read at
// the next turn of the event loop. Signals that change one after the other are read once.
void LiveState::mark(int parts) {
    m_stale |= parts;
    if (m_shown && !m_due.isActive())
        m_due.start(0);
}

void LiveState::poll() {
    // When the controller link went down first, nobody tells of the bus.
    const bool busIsUp = manager()->getRobotConnected();
    if (busIsUp != m_busWasUp) {
        m_busWasUp = busIsUp;
        emit linksChanged();
    }
    m_stale |= Robot | Names;
    tell();
}

void LiveState::tell() {
    const int parts = m_stale;
    m_stale = 0;
    if (parts & Robot)
        emit robotChanged();
    if (parts & Signals)
        emit signalsChanged();
    if (parts & Registers)
        emit registersChanged();
    if (parts & Names)
        emit namesChanged();
}

// A subscription tells of changes only: after a link was down everything is read again.
void LiveState::setConnected(bool connected) {
    m_connected = connected;
    if (!connected)
        m_downAt = QTime::currentTime();
    m_busWasUp = manager()->getRobotConnected();
    emit linksChanged();
    mark(All);
}

QString LiveState::linkText() const {
    if (m_connected)
        return tr("Connected: the values are live.");
    return manager()->getRobotConnected() ? tr("The controller link is down.") : tr("The bus is down.");
}
