#pragma once

#include "controller/robot/configuration.h"
#include "controller/robot/moveerror.h"

namespace controller {

/// A posture to go to, or why there is none.
struct PostureChoice {
    Posture posture;
    MoveError error;
};

/// Where the tool shall be.
struct MoveTarget {
    KDL::Frame pose; ///< in the work object
    QString tool;
    QString wobj;
};

/// Of the postures with the tool at `target` the one that is reached first from `present`, all axes at full speed.
PostureChoice nearestPosture(const Kinematics& kinematics, const MoveTarget& target, const Posture& present);
/// The one of that configuration, full turns included; its elbow is not looked at. What is less than 0.01 degrees past
/// the border of a quadrant counts as within.
PostureChoice postureOf(const Kinematics& kinematics, const MoveTarget& target, const Configuration& configuration,
                        const Posture& present);

} // namespace controller
