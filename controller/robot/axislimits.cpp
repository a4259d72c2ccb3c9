#include "controller/robot/axislimits.h"

#include <cmath>

namespace controller {

namespace {

// What a search leaves.
const double dustDeg = 1e-7;
const double stepDustDeg = 1e-6;

} // namespace

const Axis* pastItsLimit(const RobotModel& model, const Joints& joints) {
    for (const Axis& axis : model.joints) {
        const double value = joints.at(size_t(&axis - model.joints.constData()));
        if (value < axis.minimum - dustDeg || value > axis.maximum + dustDeg)
            return &axis;
    }
    return nullptr;
}

const Axis* tooFast(const RobotModel& model, const Joints& from, const Joints& to, double seconds) {
    for (const Axis& axis : model.joints) {
        const size_t i = size_t(&axis - model.joints.constData());
        if (std::abs(to.at(i) - from.at(i)) > axis.speed * seconds + stepDustDeg)
            return &axis;
    }
    return nullptr;
}

QString limitOf(const Axis& axis) {
    return QStringLiteral("limit ") + axis.name;
}

} // namespace controller
