#pragma once

#include "controller/robot/movepath.h"
#include "controller/robot/profile.h"

#include <QtGlobal>

#include <memory>

namespace controller {

/// How a move went on.
struct MoveStep {
    Posture posture;
    bool isOver = false;
    MoveError error; ///< when it is over: why it has not come to its end by itself
};

/// A move under way. It looks ahead as far as it needs to come to rest, and brakes before a place where the arm cannot
/// go on.
class Move {
public:
    explicit Move(std::unique_ptr<MovePath> path);

    /// \param sinceStartMs not less than in the call before
    MoveStep at(qint64 sinceStartMs, const Posture& present);
    /// Comes to rest from where it is, on its path.
    void brake();
    bool isBraking() const { return m_isBraking; }
    /// Whatever it brakes for is no longer of interest.
    void forgetError() { m_error = MoveError(); }

private:
    Progress progressAt(qint64 sinceStartMs) const;

    std::unique_ptr<MovePath> m_path;
    Profile m_profile;
    qint64 m_profileStartMs = 0;
    qint64 m_goneMs = 0;
    bool m_isBraking = false;
    MoveError m_error;
};

} // namespace controller
