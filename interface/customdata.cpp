// Commands to the plugins' service on the far side of the bus.

#include "kite/interfacemanager.h"

#include "interface/nodejson.h"
#include "log/hostline.h"

#include "brisk/relay.h"

namespace kite {

namespace {

int CustomIndex = 0;

QString endpoint() {
    return QStringLiteral("ServiceAPI.plugin");
}

// Intended: the names go round, 0 to 254, so that the bus keeps no more than 255 reply nodes for them.
void wrapIndex() {
    if (CustomIndex > 254)
        CustomIndex = 0;
}

QJsonObject objectOf(const QString& key, const QJsonValue& value) {
    QJsonObject object;
    object.insert(key, value);
    return object;
}

} // namespace

QJsonArray InterfaceManager::commandCustomData(QObject* sender, const QString& group, const QString& key) {
    return commandCustomData(sender, group, key, QLatin1String(""));
}

QJsonArray InterfaceManager::commandCustomData(QObject* sender, const QString& group, const QString& key,
                                               const QString& value) {
    return commandCustomData(sender, group, objectOf(key, value));
}

QJsonArray InterfaceManager::commandCustomData(QObject* sender, const QString& group, const QJsonObject& object) {
    return commandCustomData(sender, objectOf(group, object));
}

QJsonArray InterfaceManager::commandCustomData(QObject* sender, const QJsonObject& object) {
    QJsonArray array;
    array.append(object);
    return commandCustomData(sender, array);
}

QJsonArray InterfaceManager::commandCustomData(QObject* sender, const QJsonArray& array) {
    wrapIndex();
    hostline::service(QString()) << "send : "
                                 << "kite::command : " << array;
    const QString name = QStringLiteral("%1_%2").arg(endpoint()).arg(CustomIndex++);
    brisk::ModuleObject* reply = relay()->execPluginCommand(sender, name, endpoint(), QVariant(array));
    const QJsonValue answer = jsonOf(reply ? reply->r(QStringLiteral("data")) : nullptr);
    hostline::service(QString()) << "ret : "
                                 << "kite::command : " << answer;
    return answer.toArray();
}

} // namespace kite
