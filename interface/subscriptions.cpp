// Who hears of the changes of which key of the service bus.

#include "interface/interfacemanager_p.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

#include <utility>

namespace kite {

namespace {

// "weld.axis.1" -> "weld", "axis", "1"
QString part(const QString& name, int index) {
    return name.section(QLatin1Char('.'), index, index);
}

// Intended, also where nobody had subscribed: the bus takes an unwatch too many, and plugins clear up with it.
void unwatch(const QString& serviceKey) {
    relay()->watch(nullptr, serviceKey, false);
}

} // namespace

QMetaObject::Connection InterfaceManager::InterfaceManagerPrivate::follow(const QString& serviceKey) {
    const brisk::ModuleObject* node = relay()->watchNode(serviceKey);
    if (!node)
        return QMetaObject::Connection();
    return connect(node, &brisk::ModuleObject::changed, q,
                   [this, serviceKey](const QVariant& value) { dispatch(serviceKey, value); });
}

void InterfaceManager::InterfaceManagerPrivate::dispatch(const QString& serviceKey, const QVariant& value) {
    // Copies: what is called may end and make subscriptions.
    const QStringList names = subscriberMap.value(serviceKey);
    for (const QString& name : names) {
        const auto found = callbackMap.constFind(name);
        if (found == callbackMap.constEnd())
            continue;
        const auto callback = *found;
        callback(value);
    }
}

bool InterfaceManager::connectRelayData(const QString& pluginName, const QString& serviceKey,
                                        std::function<void(const QVariant&)> callback, const QString& connectKey) {
    const QString name = mName(pluginName, connectKey);
    if (d->callbackMap.contains(name))
        return false;
    d->callbackMap[name] = std::move(callback);
    if (d->subscriberMap.contains(serviceKey)) {
        d->subscriberMap[serviceKey].append(name);
        return true;
    }

    // A copy: who hears of the watch may change what was passed.
    const QString key = serviceKey;
    d->subscriberMap.insert(key, QStringList());
    const QMetaObject::Connection connection = d->follow(key);
    if (!connection) {
        hostline::service(QString()) << "connectRelayData failed: connect signal failed for " << key;
        const auto refused = d->callbackMap.take(name);
        d->subscriberMap.remove(key);
        return false;
    }
    d->connectionMap.insert(key, connection);
    hostline::service(QString()) << "connectRelayData - serviceKey : " << key;
    relay()->watch(nullptr, key, true);
    d->subscriberMap[key].append(name);
    return true;
}

bool InterfaceManager::disconnectRelayData(const QString& pluginName, const QString& serviceKey,
                                           const QString& connectKey) {
    const QString name = mName(pluginName, connectKey);
    // What goes with the callback may come back in here, and own the very names that were passed: it goes last.
    const auto ended = d->callbackMap.take(name);
    QStringList& names = d->subscriberMap[serviceKey];
    names.removeAll(name);
    if (!names.isEmpty())
        return true;

    d->subscriberMap.remove(serviceKey);
    if (d->connectionMap.contains(serviceKey))
        QObject::disconnect(d->connectionMap.take(serviceKey));
    unwatch(serviceKey);
    return true;
}

QStringList InterfaceManager::getConnectRelayKeyList(const QString& pluginName) {
    QStringList connectKeys;
    for (auto i = d->callbackMap.constBegin(); i != d->callbackMap.constEnd(); ++i) {
        if (part(i.key(), 0) == pluginName)
            connectKeys.append(part(i.key(), 1));
    }
    return connectKeys;
}

} // namespace kite
