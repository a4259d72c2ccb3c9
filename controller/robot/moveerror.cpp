#include "controller/robot/moveerror.h"

#include "controller/robot/axislimits.h"

namespace controller {

MoveError drivesAreOff() {
    return {MoveError::DrivesOff, QStringLiteral("The robot cannot move: its drives are off."), QString()};
}

MoveError moveUnderWay() {
    return {MoveError::Busy,
            QStringLiteral("A move is under way. Stop it with \"move.stop\" or \"move.reset\" before the next."),
            QString()};
}

MoveError targetOutOfReach() {
    return {MoveError::OutOfReach, QStringLiteral("The arm does not reach the target of the move."), QString()};
}

MoveError targetPastLimit(const Axis& axis) {
    return {MoveError::Limit,
            QStringLiteral("The arm does not reach the target of the move: %1 would be past its limit.").arg(axis.name),
            QString()};
}

MoveError outOfReach() {
    return {MoveError::OutOfReach, QStringLiteral("The move cannot go on: the arm does not reach further."),
            QStringLiteral("out of reach")};
}

MoveError atItsLimit(const Axis& axis) {
    return {MoveError::Limit, QStringLiteral("The move cannot go on: %1 is at its limit.").arg(axis.name),
            limitOf(axis)};
}

MoveError nearSingularity(const Axis* axis) {
    const QString what = axis ? QStringLiteral("%1 would have to turn too fast").arg(axis->name)
                              : QStringLiteral("the arm would have to turn over");
    return {MoveError::Singularity, QStringLiteral("The move cannot go on: %1, near a singularity.").arg(what),
            QStringLiteral("singularity")};
}

MoveError drivesWentOff() {
    return {MoveError::DrivesOff, QStringLiteral("The move cannot go on: the drives went off."),
            QStringLiteral("drives off")};
}

} // namespace controller
