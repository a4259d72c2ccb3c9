#pragma once

#include "controller/robot/robotmodel.h"

#include <QJsonObject>

namespace controller {

/// The geometry of a robot for who draws it: its foot, the links of its arm, what stands around it, and its tools.
///
/// Where the arm's links, from the foot on, each turn by their joint about their axis and go on by "next", the last
/// comes to the flange, on which the tools are.
QJsonObject armDescription(const RobotModel& model);

} // namespace controller
