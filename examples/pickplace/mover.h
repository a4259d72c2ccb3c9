#pragma once

#include "answer.h"

#include <kite/subscription.h>

#include <QJsonObject>
#include <QObject>
#include <QString>

/// Sends the robot to points, stops it, and hears how that goes. No widgets.
class Mover : public QObject {
    Q_OBJECT

public:
    enum class Way { Linear, Joints };

    explicit Mover(const QString& pluginName, QObject* parent = nullptr);
    /// Stops to listen. It stops no move.
    ~Mover() override;

    /// Asks the controller whether the way can be gone.
    Answer check(const QString& from, const QString& to);
    /// \param speed mm/s for a linear move; thousandths of the full speed of the axes for one by joints
    Answer moveTo(const QString& name, int speed, Way way);
    /// What the form of moveToStart() with four arguments does: nothing moves.
    Answer moveWithoutTarget(const QString& name, int speed);
    Answer stop();

    /// Whether bus and controller are both connected.
    bool isConnected() const { return m_connected; }
    /// Whether a move is under way, as far as is known; not so for jogging.
    bool isMoving() const;
    /// What the robot does, or why that is not known.
    QString stateText() const;
    /// Why the last move was refused or ended early; empty when it was not.
    QString errorText() const { return m_error; }
    /// Where the robot is, in the selected frame; empty before that was told.
    QJsonObject position() const { return m_position; }

signals:
    void stateChanged();
    void positionChanged();
    void failed(const QString& text);

private:
    void takeError(const QVariant& value);
    void takeState(const QVariant& value);
    void takePosition(const QVariant& value);
    void setConnected(bool connected);
    Answer whenSent(int result, const QString& name, const QString& text);

    bool m_connected = false;
    QString m_error;
    QJsonObject m_state;
    QJsonObject m_position;
    QString m_connectTask;
    QString m_disconnectTask;
    kite::Subscription m_errors; // the last three: they end first
    kite::Subscription m_states;
    kite::Subscription m_positions;
};
