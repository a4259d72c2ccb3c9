#pragma once

#include <kite/subscription.h>

#include <QObject>
#include <QString>
#include <QTime>
#include <QTimer>

#include <vector>

/// Tells when to read again. What the controller tells of by itself is subscribed to; what nobody tells of is polled,
/// while the page is shown. No widgets.
///
/// | what | how it is heard of |
/// |---|---|
/// | drives, mode, state | keys "robot.drives", "robot.mode", "robot.state" |
/// | signals, registers | keys "io.signals", "register.list" |
/// | level of the user, selected tool and work object, address | polled: they are the pendant's own and not on the bus
/// | | model | polled: its answer comes a moment after the links, and nothing tells of it | | lists of tools, work
/// objects, speeds, zones | polled: they change with the project in the pendant's tree |
class LiveState : public QObject {
    Q_OBJECT

public:
    enum Part { Robot = 1, Signals = 2, Registers = 4, Names = 8, All = 15 };

    explicit LiveState(const QString& pluginName, QObject* parent = nullptr);
    /// Stops to watch.
    ~LiveState() override;

    /// While it is shown, everything is told and polled; nothing is otherwise.
    void setShown(bool shown);

    /// Whether bus and controller are both connected. When not, what can be read is what was there last.
    bool isConnected() const { return m_connected; }
    /// Which link is down, a sentence; that both are up.
    QString linkText() const;
    /// When the first of them went down; invalid when they were never up.
    QTime downAt() const { return m_downAt; }

signals:
    void robotChanged();
    void signalsChanged();
    void registersChanged();
    void namesChanged();
    void linksChanged();

private:
    void follow(const QString& key, Part part);
    void mark(int parts);
    void poll();
    void tell();
    void setConnected(bool connected);

    QString m_pluginName;
    bool m_shown = false;
    bool m_connected = false;
    bool m_busWasUp = false;
    int m_stale = All;
    QTime m_downAt;
    QTimer m_poll;
    QTimer m_due;
    QString m_connectTask;
    QString m_disconnectTask;
    std::vector<kite::Subscription> m_subscriptions; // last: they end first
};
