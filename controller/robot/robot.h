#pragma once

#include "controller/clock.h"
#include "controller/robot/jogmotion.h"
#include "controller/robot/kinematics.h"
#include "controller/robot/move.h"
#include "controller/robot/movecommand.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace controller {

/// A robot that stands where it is until it is jogged or moves to a target. It moves with the clock, at the multiples
/// of Clock::tickMs.
///
/// A move is prepared and begins when it is confirmed. It knows what moves it: while it moves to a target it cannot be
/// jogged; what prepares a move ends jogging.
class Robot : public QObject {
    Q_OBJECT

public:
    /// What moves it.
    enum class Motion { None, Jog, JointMove, LinearMove };
    enum class Mode { Manual, Automatic };

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
    /// Puts it there at once, whatever its limits; it stands still then.
    void setPosture(const Posture& posture);

    /// The tool and the work object that Cartesian jogging, moves and the position are about.
    QString tool() const { return m_tool; }
    QString wobj() const { return m_wobj; }
    /// Both must be there. A change ends jogging; a move goes on to where it was to go when it was prepared.
    void setFrame(const QString& tool, const QString& wobj);

    /// Why it cannot be jogged so, a sentence; empty when it can.
    QString refusalOf(const JogCommand& command) const;
    /// Starts to move, or goes on when it moves so already; does nothing when it cannot be jogged so. It stops by
    /// itself `renewedWithinMs` after the last call, at a limit, and where the tool cannot go on; called again with the
    /// same command it does not try anew.
    void jog(const JogCommand& command);
    /// Ends jogging at once.
    void stop();

    /// Gets ready to move to a target of the present tool and work object. An earlier one that was not confirmed is
    /// forgotten; while a move brakes the next may be prepared.
    /// \return why it is refused
    MoveError prepare(MoveCommand command);
    /// Keeps why a move was refused before it could be prepared, and tells it.
    void refuse(const MoveError& error);
    /// Starts the move that is prepared, as soon as the robot stands.
    /// \return false when there is none
    bool confirm();
    /// Comes to rest on the path of the move, and forgets one that is prepared. Ends jogging.
    void brake();
    /// Brakes, and forgets the error.
    void reset();
    /// Why the last move was refused or ended early, until the next one is prepared or reset() is called.
    const MoveError& error() const { return m_error; }

    /// On at the start. Off, it stands still at once.
    bool hasDrives() const { return m_hasDrives; }
    void setDrives(bool on);
    /// Manual at the start. It can be jogged in manual mode alone.
    Mode mode() const { return m_mode; }
    void setMode(Mode mode);

    bool isMoving() const { return m_motion != Motion::None; }
    Motion motion() const { return m_motion; }
    bool isBraking() const { return m_move && m_move->isBraking(); }
    /// What ended the motion before: "" when somebody did, "arrived", "limit A3", "out of reach", "singularity",
    /// "not renewed" or "drives off".
    QString stoppedBy() const { return m_stoppedBy; }

signals:
    /// The posture, or what it is told in, has changed.
    void moved();
    /// What it does, or what ended it, has changed, or its drives or the error.
    void stateChanged();
    /// A move was refused or has ended early; error() says why.
    void failed();
    void drivesChanged(bool on);
    void modeChanged(controller::Robot::Mode mode);
    /// It is another robot now.
    void modelChanged();
    /// A sentence for the people at the pendant.
    void noticed(const QString& text);

private:
    void follow(qint64 nowMs);
    void advance(qint64 nowMs);
    void advanceJog(qint64 nowMs);
    void moveUntil(qint64 nowMs);
    void advanceMove(qint64 nowMs);
    void end(const QString& stoppedBy);
    void endMove(const QString& stoppedBy, const MoveError& error);
    void halt(const QString& stoppedBy, const MoveError& error);
    void clearError();
    void start();
    MoveError whyNotNow() const;
    void setState(Motion motion, const QString& stoppedBy);

    const Clock* m_clock;
    Kinematics m_kinematics;
    Posture m_posture;
    QString m_tool;
    QString m_wobj;
    bool m_hasDrives = true;
    Mode m_mode = Mode::Manual;

    Motion m_motion = Motion::None;
    QString m_stoppedBy;
    qint64 m_startedMs = 0;

    std::unique_ptr<JogMotion> m_jog; // stays when it came to its end, until it is let go
    JogCommand m_command;
    qint64 m_renewedMs = 0;

    std::unique_ptr<Move> m_move;
    std::optional<MoveCommand> m_prepared;
    bool m_isConfirmed = false;
    MoveError m_error;
};

} // namespace controller
