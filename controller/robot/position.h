#pragma once

#include "controller/robot/kinematics.h"

#include <QJsonObject>

namespace controller {

/// A posture as the controller tells it, joints and Cartesian, for a tool and a work object that are there.
QJsonObject positionOf(const Kinematics& kinematics, const Posture& posture, const QString& tool, const QString& wobj);

} // namespace controller
