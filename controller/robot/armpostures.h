#pragma once

#include "controller/robot/arm.h"

#include <vector>

namespace controller {

/// Where to look for the postures of an arm that bring its flange to `flange`: one near each of them, by the geometry
/// of the triangle of shoulder, elbow and wrist. The third of seven joints is as in `present`, and so is what the place
/// of the flange leaves open. Of an arm with seven some may be missed where its wrist is over its foot. Angles are
/// above -180 up to 180 degrees; limits are not looked at.
std::vector<Joints> posturesNear(const Arm& arm, const KDL::Frame& flange, const Joints& present);

} // namespace controller
