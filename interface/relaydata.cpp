// Data and commands on the service bus.

#include "kite/interfacemanager.h"

#include "interface/nodejson.h"

#include "brisk/relay.h"

namespace kite {

namespace {

// Intended: plugins tell "the bus is down" by a Bool from an answer that is empty, which is Null.
QJsonValue noAnswerOfDownBus() {
    return QJsonValue(false);
}

} // namespace

QJsonValue InterfaceManager::getRelayData(const QString& key) {
    if (!getRobotConnected())
        return QJsonValue();
    return jsonOf(relay()->get(nullptr, key));
}

QJsonValue InterfaceManager::getRelayData(const QString& key, const QString& subKey) {
    if (!getRobotConnected())
        return QJsonValue();
    return jsonOf(relay()->get(nullptr, key, subKey));
}

bool InterfaceManager::setRelayData(const QString& key, const QVariant& value) {
    return setRelayData(key, QLatin1String(""), value);
}

bool InterfaceManager::setRelayData(const QString& key, const QString& subKey, const QVariant& value) {
    if (!getRobotConnected())
        return false;
    relay()->set(nullptr, key, subKey, value);
    return true;
}

bool InterfaceManager::commandRelayData(const QString& key, const QVariant& value) {
    if (!getRobotConnected())
        return false;
    relay()->command(nullptr, key, value);
    return true;
}

QJsonValue InterfaceManager::execCommandRelayData(const QString& key, const QVariant& value) {
    if (!getRobotConnected())
        return noAnswerOfDownBus();
    return jsonOf(relay()->execCommand(nullptr, key, value));
}

} // namespace kite
