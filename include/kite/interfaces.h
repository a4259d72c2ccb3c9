#pragma once

#include "kite/export.h"

#include <QJsonValue>
#include <QObject>
#include <QString>

namespace kite {

/// The base of the interfaces that a plugin may offer; marks them, no more.
/// \since 0.1
class KITE_EXPORT BaseInterface : public QObject {
public:
    explicit BaseInterface(QObject* parent);
    ~BaseInterface() override;
};

/// Marks an interface of the plugin's own making.
/// \since 0.1
class KITE_EXPORT CustomInterface : public BaseInterface {
public:
    explicit CustomInterface(QObject* parent);
    ~CustomInterface() override;
};

/// Marks an interface that talks to the robot.
/// \since 0.1
class KITE_EXPORT NetworkInterface : public BaseInterface {
    Q_OBJECT

public:
    explicit NetworkInterface(QObject* parent);
    ~NetworkInterface() override;

    /// Asks the service bus for the node of `key`.
    /// \return its content as JSON; Null when the bus has none or its link is down
    QJsonValue get(const QString& key);
};

/// Marks an interface that serves other plugins.
/// \since 0.1
class KITE_EXPORT ServiceInterface : public BaseInterface {
public:
    explicit ServiceInterface(QObject* parent);
    ~ServiceInterface() override;
};

} // namespace kite
