#pragma once

#include "controller/clock.h"
#include "controller/robot/robot.h"

#include <QSignalSpy>

/// A robot that is jogged as from a pendant: the command is sent again every 200 ms while a key is held.
struct Jogging {
    explicit Jogging(const controller::RobotModel& model = controller::standardModel()) { robot.setModel(model); }

    void hold(const controller::JogCommand& command, qint64 ms) {
        for (qint64 leftMs = ms; leftMs > 0; leftMs -= 200) {
            robot.jog(command);
            clock.step(qMin<qint64>(200, leftMs));
        }
    }
    double joint(size_t index) const { return robot.posture().joints.at(index); }
    controller::Pose pose() const {
        return controller::poseOf(robot.kinematics().pose(robot.posture(), robot.tool(), robot.wobj()));
    }

    controller::Clock clock;
    controller::Robot robot{&clock};
    QSignalSpy moved{&robot, &controller::Robot::moved};
    QSignalSpy state{&robot, &controller::Robot::stateChanged};
    QSignalSpy noticed{&robot, &controller::Robot::noticed};
};
