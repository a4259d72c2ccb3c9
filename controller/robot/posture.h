#pragma once

#include <array>

namespace controller {

/// Where the joints stand, in degrees; of an arm with six the last is 0.
using Joints = std::array<double, 7>;
/// Where the external axes stand, in degrees or mm; those that are not there are 0.
using Externals = std::array<double, 6>;

struct Posture {
    Joints joints{};
    Externals externals{};
};

inline bool operator==(const Posture& one, const Posture& other) {
    return one.joints == other.joints && one.externals == other.externals;
}
inline bool operator!=(const Posture& one, const Posture& other) {
    return !(one == other);
}

} // namespace controller
