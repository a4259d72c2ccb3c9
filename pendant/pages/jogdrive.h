#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QTimer>

namespace pendant {

/// Keeps a robot moving while a jog key is held: the controller stops by itself unless it is told again and again.
class JogDrive : public QObject {
    Q_OBJECT

public:
    static constexpr int renewEveryMs = 200;

    explicit JogDrive(QObject* parent = nullptr);
    /// Stops.
    ~JogDrive() override;

    /// Starts to jog, in place of what was jogged before.
    /// \param space   "joint" or "cart"
    /// \param axis    the robot's axis, or 0 to 5 for x, y, z, a, b, c
    /// \param percent of full jog speed; below 0 backwards
    void start(const QString& space, int axis, double percent);
    /// Does nothing when nothing is jogged.
    void stop();
    bool isRunning() const { return m_timer.isActive(); }

private:
    void renew();

    QJsonObject m_command;
    QTimer m_timer;
};

} // namespace pendant
