#pragma once

#include "controller/clock.h"
#include "controller/robot/jogmotion.h"
#include "controller/robot/kinematics.h"

#include <QObject>
#include <QString>

#include <memory>

namespace controller {

/// A robot that stands where it is until it is jogged. It moves with the clock, at the multiples of Clock::tickMs.
class Robot : public QObject {
    Q_OBJECT

public:
    /// How long it goes on jogging without being told again.
    static constexpr qint64 renewedWithinMs = 500;

    /// The standard robot at its start. \param clock must outlive it
    explicit Robot(const Clock* clock, QObject* parent = nullptr);
    ~Robot() override;

    /// Another robot, which stands at its start.
    void setModel(const RobotModel& model);
    const Kinematics& kinematics() const { return m_kinematics; }
    const RobotModel& model() const { return m_kinematics.model(); }

    const Posture& posture() const { return m_posture; }
    /// Puts it there at once, whatever its limits; it stops.
    void setPosture(const Posture& posture);

    /// The tool and the work object that Cartesian jogging and the position are about.
    QString tool() const { return m_tool; }
    QString wobj() const { return m_wobj; }
    /// Both must be there; a change stops the robot.
    void setFrame(const QString& tool, const QString& wobj);

    /// What is wrong with a command, a sentence; empty when it can be jogged so.
    QString refusalOf(const JogCommand& command) const;
    /// Starts to move, or goes on when it moves so already. It stops by itself `renewedWithinMs` after the last call,
    /// at a limit, and where the tool cannot go on; called again with the same command it does not try anew.
    void jog(const JogCommand& command);
    void stop();

    bool isMoving() const { return m_isMoving; }
    /// What ended the motion before: "" when somebody did, "limit A3", "out of reach", "singularity" or "not renewed".
    QString stoppedBy() const { return m_stoppedBy; }

signals:
    /// The posture, or what it is told in, has changed.
    void moved();
    void stateChanged();
    /// A sentence for the people at the pendant.
    void noticed(const QString& text);

private:
    void follow(qint64 nowMs);
    void advance(qint64 nowMs);
    void moveUntil(qint64 nowMs);
    void end(const QString& stoppedBy);
    void setState(bool isMoving, const QString& stoppedBy);

    const Clock* m_clock;
    Kinematics m_kinematics;
    Posture m_posture;
    QString m_tool;
    QString m_wobj;
    std::unique_ptr<JogMotion> m_motion; // stays when it came to its end, until it is let go
    JogCommand m_command;
    qint64 m_startedMs = 0;
    qint64 m_renewedMs = 0;
    bool m_isMoving = false;
    QString m_stoppedBy;
};

} // namespace controller
