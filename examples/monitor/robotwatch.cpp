#include "robotwatch.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString outputs = QStringLiteral("io.do");
const QStringList keys{QStringLiteral("controller.uptime"), QStringLiteral("cell.temperature"),
                       QStringLiteral("cell.parts"), QStringLiteral("io.di"), outputs};

QString textOf(const QJsonValue& value) {
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 6) : value.toVariant().toString();
}

} // namespace

RobotWatch::RobotWatch(const QString& pluginName, QObject* parent) : QObject(parent), m_pluginName(pluginName) {
    for (const QString& key : keys)
        follow(key);
    // Unlike sigNetworkConnect(), this calls at once when the links are up already.
    kite::InterfaceManager* robot = kite::kiteInterface();
    m_connectTask = robot->connectNetworkStatus(
        true, pluginName, this, [this] { connected(); }, QString());
    m_disconnectTask = robot->connectNetworkStatus(
        false, pluginName, this, [this] { disconnected(); }, QString());
}

RobotWatch::~RobotWatch() {
    kite::kiteInterface()->disconnectNetworkStatus(true, m_connectTask);
    kite::kiteInterface()->disconnectNetworkStatus(false, m_disconnectTask);
}

// The connect key has no dot, so that getConnectRelayKeyList() gives it back whole: "io.do" -> "io-do"
void RobotWatch::follow(const QString& key) {
    const int index = m_values.size();
    m_values.append({key, QString(), QTime()});
    m_subscriptions.emplace_back(
        m_pluginName, key, [this, index](const QVariant& value) { take(index, value); },
        QString(key).replace(QLatin1Char('.'), QLatin1Char('-')));
}

void RobotWatch::take(int index, const QVariant& value) {
    const QJsonValue json = QJsonValue::fromVariant(value);
    m_values[index].text = textOf(json);
    m_values[index].changedAt = QTime::currentTime();
    if (m_values.at(index).key == outputs)
        m_lampOn = json.toObject().value(QLatin1String("lamp")).toBool();
    emit valueChanged(index);
}

// A subscription tells of changes only: what is there already has to be read, and again after a link was down.
void RobotWatch::readAll() {
    for (int i = 0; i < m_values.size(); ++i) {
        const QJsonValue value = kite::kiteInterface()->getRelayData(m_values.at(i).key);
        // No answer came in time: what is known already is better than nothing.
        if (!value.isNull())
            take(i, value);
    }
}

void RobotWatch::connected() {
    m_connected = true;
    readAll();
    emit linksChanged(tr("Bus and controller are connected."));
}

void RobotWatch::disconnected() {
    m_connected = false;
    const bool busIsUp = kite::kiteInterface()->getRobotConnected();
    emit linksChanged(busIsUp ? tr("The controller link is down.") : tr("The bus is down."));
}

bool RobotWatch::switchLamp(bool on) {
    return kite::kiteInterface()->setRelayData(outputs, QStringLiteral("lamp"), on);
}

QString RobotWatch::sendCustom(const QString& group, const QString& key, const QString& value) {
    const QJsonArray answer = kite::kiteInterface()->commandCustomData(this, group, key, value);
    return answer.isEmpty() ? QString() : textOf(answer);
}
