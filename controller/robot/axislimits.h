#pragma once

#include "controller/robot/robotmodel.h"

#include <QString>

namespace controller {

/// The first joint that is past its limit; null when there is none, and for the dust of a search.
const Axis* pastItsLimit(const RobotModel& model, const Joints& joints);
/// The first joint that cannot come from `from` to `to` in that time; null when there is none.
const Axis* tooFast(const RobotModel& model, const Joints& from, const Joints& to, double seconds);

/// What a motion is stopped by at the limit of `axis`.
QString limitOf(const Axis& axis);

} // namespace controller
