#pragma once

#include "controller/content.h"
#include "controller/robot/robot.h"

#include <QJsonObject>
#include <QObject>

#include <functional>

namespace controller {

class BusTable;
class RequestTable;

/// The bus keys and the request by which a robot is seen and jogged.
class RobotKeys : public QObject {
    Q_OBJECT

public:
    /// The most often that the position of a robot under way is delivered.
    static constexpr qint64 deliveredEveryMs = 50;

    /// All must outlive it.
    RobotKeys(Robot* robot, const Clock* clock, BusTable* bus, RequestTable* requests, QObject* parent = nullptr);

private:
    void define(const QString& key, const std::function<QJsonValue()>& value);
    void deliverPosition(qint64 nowMs);
    QString takeFrame(const QString& subKey, const Content& sent);
    QJsonObject position(const QString& tool, const QString& wobj) const;
    Content positionIn(const Content& sent);
    Content jog(const Content& sent);

    Robot* m_robot;
    BusTable* m_bus;
    RequestTable* m_requests;
    bool m_hasMoved = false;
    qint64 m_deliveredMs = -deliveredEveryMs;
};

} // namespace controller
