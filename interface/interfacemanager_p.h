#pragma once

#include "kite/interfacemanager.h"

#include <QList>
#include <QMap>
#include <QMetaObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace kite {

class InterfaceManager::InterfaceManagerPrivate {
public:
    explicit InterfaceManagerPrivate(InterfaceManager* owner) : q(owner) {}

    /// "monitor" -> "monitor_1", then "monitor_2"; the number is counted through the process.
    static QString createTaskId(const QString& name);

    /// Connects the changes of the watched node of `serviceKey`; an invalid connection when there is no such node.
    QMetaObject::Connection follow(const QString& serviceKey);
    /// Calls the subscribers of `serviceKey`.
    void dispatch(const QString& serviceKey, const QVariant& value);

    /// Has the controller take variables out of the program that it holds.
    /// \return false when it refuses
    static bool hotRemoveVar(const QList<QString>& names);

    /// Subscriber name -> callback.
    QMap<QString, std::function<void(const QVariant&)>> callbackMap;
    /// Service key -> the one connection to its watched node.
    QMap<QString, QMetaObject::Connection> connectionMap;
    /// Service key -> its subscriber names in the order in which they came.
    QMap<QString, QStringList> subscriberMap;
    InterfaceManager* q;
};

} // namespace kite
