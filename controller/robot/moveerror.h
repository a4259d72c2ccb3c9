#pragma once

#include "controller/robot/robotmodel.h"

#include <QString>

namespace controller {

/// Why a move is refused, or cannot go on.
struct MoveError {
    /// What plugins see; the numbers stay.
    enum Code {
        None = 0,
        NoTarget = -101,
        NoOrientation = -102,
        BadConfiguration = -103,
        BadSpeed = -104,
        DrivesOff = -105,
        Busy = -106,
        OutOfReach = -111,
        Limit = -112,
        Singularity = -113,
        NoSuchPosture = -114,
        UnknownPoint = -121,
        NoPlace = -122
    };

    int code = None;
    QString text;      ///< a sentence
    QString stoppedBy; ///< what a motion is stopped by when it cannot go on; empty for what is refused

    explicit operator bool() const { return code != None; }
};

/// @name Of the state of the robot
/// @{
MoveError drivesAreOff();
MoveError moveUnderWay();
/// @}
/// @name Of a target that a move cannot come to
/// @{
MoveError targetOutOfReach();
MoveError targetPastLimit(const Axis& axis);
/// @}
/// @name On the way
/// @{
MoveError outOfReach();
MoveError atItsLimit(const Axis& axis);
/// \param axis the one that would have to turn too fast; may be null
MoveError nearSingularity(const Axis* axis);
MoveError drivesWentOff();
/// @}

} // namespace controller
