#pragma once

#include "jogging.h"

#include "controller/robot/robot.h"

#include <functional>

/// Moves as tests ask for them.

/// A move with the tool to `pose`, which starts as soon as it can.
inline bool go(controller::Robot* robot, controller::MoveCommand::Way way, const controller::Pose& pose, double speed) {
    controller::MoveCommand command;
    command.way = way;
    command.target.pose = controller::frameOf(pose);
    command.speed = speed;
    return !robot->prepare(command) && robot->confirm();
}

inline bool goJoint(controller::Robot* robot, const controller::Pose& pose, double share = 1) {
    return go(robot, controller::MoveCommand::Joint, pose, share);
}

inline bool goLinear(controller::Robot* robot, const controller::Pose& pose, double mmPerS = 250) {
    return go(robot, controller::MoveCommand::Linear, pose, mmPerS);
}

inline controller::Posture postureOf(const controller::Joints& joints) {
    controller::Posture posture;
    posture.joints = joints;
    return posture;
}

/// Steps tick by tick until the robot stands; false when that takes longer than `atMostMs`.
inline bool untilItStands(Jogging* bench, qint64 atMostMs = 60000,
                          const std::function<void()>& afterEach = std::function<void()>()) {
    for (qint64 ms = 0; ms < atMostMs && bench->robot.isMoving(); ms += controller::Clock::tickMs) {
        bench->clock.step(controller::Clock::tickMs);
        if (afterEach)
            afterEach();
    }
    return !bench->robot.isMoving();
}
