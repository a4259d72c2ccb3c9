#pragma once

#include "controller/robot/movecommand.h"
#include "controller/robot/movepath.h"

#include <memory>

namespace controller {

/// The way of a move, or why it cannot begin.
struct MovePlan {
    std::unique_ptr<MovePath> path; ///< null with an error
    MoveError error;
};

/// \param kinematics must outlive the way
MovePlan planOf(const Kinematics* kinematics, const MoveCommand& command, const Posture& present);

} // namespace controller
