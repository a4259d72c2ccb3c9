#include "controller/robot/moveplan.h"

#include "controller/robot/jointpath.h"
#include "controller/robot/linearpath.h"

namespace controller {

namespace {

MoveError badSpeed(const QString& most) {
    return {MoveError::BadSpeed,
            QStringLiteral("The speed of the move, \"traj.speed\", must be above 0, and %1.").arg(most), QString()};
}

MoveError speedErrorOf(const MoveCommand& command, const LinearLimits& most) {
    if (command.way == MoveCommand::Joint)
        return command.speed > 0 && command.speed <= 1
                   ? MoveError()
                   : badSpeed(QStringLiteral("at most 1, the full speed of the axes"));
    return command.speed > 0 && command.speed <= most.mmPerS
               ? MoveError()
               : badSpeed(QStringLiteral("at most %1 m/s").arg(most.mmPerS / 1000));
}

MovePlan jointPlan(const Kinematics& kinematics, const MoveCommand& command, const Posture& present) {
    const PostureChoice choice = command.configuration
                                     ? postureOf(kinematics, command.target, *command.configuration, present)
                                     : nearestPosture(kinematics, command.target, present);
    if (choice.error)
        return {nullptr, choice.error};
    return {std::make_unique<JointPath>(kinematics.model(), present, choice.posture, command.speed), {}};
}

} // namespace

MovePlan planOf(const Kinematics* kinematics, const MoveCommand& command, const Posture& present) {
    if (const MoveError error = speedErrorOf(command, kinematics->model().linear))
        return {nullptr, error};
    if (command.way == MoveCommand::Joint)
        return jointPlan(*kinematics, command, present);
    const MoveTarget& target = command.target;
    if (kinematics->postures(target.pose, target.tool, target.wobj, present).empty())
        return {nullptr, targetOutOfReach()};
    return {std::make_unique<LinearPath>(kinematics, present, target, command.speed), {}};
}

} // namespace controller
