#pragma once

#include <kite/interfacemanager.h>
#include <kite/subscription.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QTime>
#include <QVariant>

#include <vector>

/// What the plugin knows of the robot: some keys of the bus, and whether the links are up. No widgets.
class RobotWatch : public QObject {
    Q_OBJECT

public:
    struct Value {
        QString key;
        QString text; ///< empty before the first value came
        QTime changedAt;
    };

    explicit RobotWatch(const QString& pluginName, QObject* parent = nullptr);
    /// Stops to watch.
    ~RobotWatch() override;

    const QList<Value>& values() const { return m_values; }
    /// Whether bus and controller are both connected.
    bool isConnected() const { return m_connected; }
    bool isLampOn() const { return m_lampOn; }

    /// Switches the output "lamp". \return false when the bus is not connected
    bool switchLamp(bool on);
    /// Sends `{group: {key: value}}` to the plugins' service of the controller.
    /// \return the answer as text; empty when there was none
    QString sendCustom(const QString& group, const QString& key, const QString& value);

signals:
    void valueChanged(int index);
    /// A line for people: a link went up or down.
    void linksChanged(const QString& text);

private:
    void follow(const QString& key);
    void take(int index, const QVariant& value);
    void readAll();
    void connected();
    void disconnected();

    QString m_pluginName;
    QList<Value> m_values;
    bool m_connected = false;
    bool m_lampOn = false;
    QString m_connectTask;
    QString m_disconnectTask;
    std::vector<kite::Subscription> m_subscriptions; // last: they end first
};
