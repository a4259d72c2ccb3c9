#include "controller/robot/posturechoice.h"

#include "controller/robot/axislimits.h"

#include <algorithm>
#include <cmath>

namespace controller {

namespace {

const double borderDeg = 0.01;

double turnedTo(double value, double centre) {
    return value + 360 * std::round((centre - value) / 360);
}

// By full turns near to `present`, and within the limits where that can be.
double turnedNear(double value, double present, const Axis& axis) {
    double turned = turnedTo(value, present);
    while (turned > axis.maximum && turned - 360 >= axis.minimum)
        turned -= 360;
    while (turned < axis.minimum && turned + 360 <= axis.maximum)
        turned += 360;
    return turned;
}

void turnNear(const RobotModel& model, const Posture& present, Posture* posture) {
    for (int i = 0; i < model.joints.size(); ++i) {
        double& value = posture->joints.at(size_t(i));
        value = turnedNear(value, present.joints.at(size_t(i)), model.joints.at(i));
    }
}

/// \return false when there is no such turn of a joint
bool turnInto(const std::array<int, 7>& quadrants, Posture* posture) {
    for (size_t i = 0; i < quadrants.size(); ++i) {
        const double centre = quadrants.at(i) * 90.0 + 45;
        double& value = posture->joints.at(i);
        value = turnedTo(value, centre);
        if (std::abs(value - centre) > 45 + borderDeg)
            return false;
    }
    return true;
}

// Of its slowest axis.
double secondsTo(const RobotModel& model, const Posture& present, const Posture& posture) {
    double most = 0;
    for (int i = 0; i < model.joints.size(); ++i) {
        const double way = std::abs(posture.joints.at(size_t(i)) - present.joints.at(size_t(i)));
        most = std::fmax(most, way / model.joints.at(i).speed);
    }
    return most;
}

// The dust of the search must not lead past a limit.
void keepWithin(const RobotModel& model, Posture* posture) {
    for (int i = 0; i < model.joints.size(); ++i) {
        double& value = posture->joints.at(size_t(i));
        value = qBound(model.joints.at(i).minimum, value, model.joints.at(i).maximum);
    }
}

// Those past a limit come after all others.
PostureChoice firstReached(const RobotModel& model, const std::vector<Posture>& postures, const Posture& present) {
    const auto rank = [&](const Posture& posture) {
        return std::make_pair(pastItsLimit(model, posture.joints) != nullptr, secondsTo(model, present, posture));
    };
    const auto isBefore = [&](const Posture& a, const Posture& b) { return rank(a) < rank(b); };
    PostureChoice choice{*std::min_element(postures.begin(), postures.end(), isBefore), {}};
    if (const Axis* axis = pastItsLimit(model, choice.posture.joints))
        choice.error = targetPastLimit(*axis);
    keepWithin(model, &choice.posture);
    return choice;
}

MoveError noSuchPosture() {
    return {MoveError::NoSuchPosture,
            QStringLiteral("The arm reaches the target of the move, but not in the configuration of \"point.conf\"."),
            QString()};
}

} // namespace

PostureChoice nearestPosture(const Kinematics& kinematics, const MoveTarget& target, const Posture& present) {
    std::vector<Posture> postures = kinematics.postures(target.pose, target.tool, target.wobj, present);
    if (postures.empty())
        return {present, targetOutOfReach()};
    for (Posture& posture : postures)
        turnNear(kinematics.model(), present, &posture);
    return firstReached(kinematics.model(), postures, present);
}

PostureChoice postureOf(const Kinematics& kinematics, const MoveTarget& target, const Configuration& configuration,
                        const Posture& present) {
    const std::vector<Posture> all = kinematics.postures(target.pose, target.tool, target.wobj, present);
    if (all.empty())
        return {present, targetOutOfReach()};
    std::vector<Posture> postures;
    for (Posture posture : all) {
        if (hasBranches(kinematics, posture, configuration.branches) && turnInto(configuration.quadrants, &posture))
            postures.push_back(posture);
    }
    if (postures.empty())
        return {present, noSuchPosture()};
    return firstReached(kinematics.model(), postures, present);
}

} // namespace controller
