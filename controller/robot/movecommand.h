#pragma once

#include "controller/robot/posturechoice.h"

#include <optional>

namespace controller {

/// A move of the tool to a target, from wherever the robot stands.
struct MoveCommand {
    enum Way {
        Joint, ///< all axes start and arrive together
        Linear ///< the tip goes along the straight line, turning evenly
    };

    Way way = Joint;
    MoveTarget target;
    /// Of the posture at the target; without one the nearest. A linear move comes to what its line leads to.
    std::optional<Configuration> configuration;
    /// Joint: the share of the axes' full speed, above 0 up to 1. Linear: mm a second; a tool that turns without going
    /// anywhere turns as fast as it can.
    double speed = 0;
};

} // namespace controller
