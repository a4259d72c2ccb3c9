#pragma once

#include "controller/robot/kinematics.h"

#include <array>

namespace controller {

/// Which of the postures that bring the tool to the same pose a posture is.
struct Configuration {
    enum Branch { Back = 1, ElbowDown = 2, WristFlipped = 4 };

    std::array<int, 7> quadrants{}; ///< of each joint: its degrees over 90, rounded down
    /// `Back`: the centre of the wrist is behind axis 1. `ElbowDown`: the forearm is bent back beyond the stretched
    /// arm. `WristFlipped`: the last joint but one is below 0.
    int branches = 0;
    double elbow = 0; ///< of seven joints the third, in degrees
};

Configuration configurationOf(const Kinematics& kinematics, const Posture& posture);
/// Whether a posture has these branches. On the border between two it has both.
bool hasBranches(const Kinematics& kinematics, const Posture& posture, int branches);

} // namespace controller
