#pragma once

#include "controller/content.h"

#include <QObject>
#include <QString>

#include <functional>

namespace controller {

class BusTable;
class Robot;

/// The bus keys by which the drives and the mode of a robot are switched.
class SwitchKeys : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    SwitchKeys(Robot* robot, BusTable* bus, QObject* parent = nullptr);

private:
    using Taker = QString (SwitchKeys::*)(const QJsonValue& sent);

    void define(const QString& key, const std::function<QVariant()>& value, Taker take);
    void tell(const QString& key);
    QString takeDrives(const QJsonValue& sent);
    QString takeMode(const QJsonValue& sent);

    Robot* m_robot;
    BusTable* m_bus;
    bool m_isTaking = false;
};

} // namespace controller
