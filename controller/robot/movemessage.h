#pragma once

#include "controller/robot/movecommand.h"

#include <QJsonValue>

namespace controller {

/// Reads what a plugin sends with a command to move:
///
///     {"point": {"trans": [0.97, 0, 1.155], "rot": [0.18, 0, 0.18], "conf": [0, 0, 0, 0, 1, 0, 0, 0]},
///      "traj": {"speed": 0.25}}
///
/// Places are in m, angles in thousands of degrees. Nothing is guessed: but for "conf" all of it must be there.
/// \return what is wrong with it; `command` is untouched then
MoveError readMove(const QJsonValue& sent, MoveCommand::Way way, MoveCommand* command);

} // namespace controller
