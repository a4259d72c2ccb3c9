#pragma once

namespace controller {

/// What a jog key asks for while it is held.
struct JogCommand {
    enum Space { Joint, Cartesian };

    Space space = Joint;
    int axis = 0;       ///< of the robot's axes, or 0 to 5 for x, y, z, a, b, c
    double percent = 0; ///< of full jog speed; below 0 backwards
};

inline bool operator==(const JogCommand& one, const JogCommand& other) {
    return one.space == other.space && one.axis == other.axis && !(one.percent < other.percent) &&
           !(one.percent > other.percent);
}

} // namespace controller
