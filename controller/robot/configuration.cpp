#include "controller/robot/configuration.h"

#include <cmath>

namespace controller {

namespace {

double towardsFront(const KDL::Vector& wristCentre, double firstJointRad) {
    return tidy(wristCentre.x() * std::cos(firstJointRad) + wristCentre.y() * std::sin(firstJointRad));
}

// How far the centre of the wrist is before the line of the upper arm.
double beforeUpperArm(const ArmLengths& lengths, double elbowRad) {
    return tidy(lengths.forearm * std::cos(elbowRad) + lengths.elbowOffset * std::sin(elbowRad));
}

/// What tells the branches apart: below 0 it is the one that counts.
struct BranchSides {
    double front; // mm
    double elbow; // mm
    double wristDegree;
};

BranchSides sidesOf(const Kinematics& kinematics, const Posture& posture) {
    const RobotModel& model = kinematics.model();
    const size_t elbow = isRedundant(model) ? 3 : 2;
    return {towardsFront(kinematics.arm().wristCentre(posture.joints), radOf(posture.joints.at(0))),
            beforeUpperArm(model.lengths, radOf(posture.joints.at(elbow))), tidy(posture.joints.at(elbow + 2))};
}

bool isOnSide(double side, bool below) {
    const double border = 0.01;
    return std::abs(side) < border || (side < 0) == below;
}

} // namespace

Configuration configurationOf(const Kinematics& kinematics, const Posture& posture) {
    const RobotModel& model = kinematics.model();
    const BranchSides sides = sidesOf(kinematics, posture);
    Configuration configuration;
    for (size_t i = 0; i < posture.joints.size(); ++i)
        configuration.quadrants.at(i) = int(std::floor(tidy(posture.joints.at(i)) / 90));
    if (sides.front < 0)
        configuration.branches |= Configuration::Back;
    if (sides.elbow < 0)
        configuration.branches |= Configuration::ElbowDown;
    if (sides.wristDegree < 0)
        configuration.branches |= Configuration::WristFlipped;
    if (isRedundant(model))
        configuration.elbow = posture.joints.at(2);
    return configuration;
}

bool hasBranches(const Kinematics& kinematics, const Posture& posture, int branches) {
    const BranchSides sides = sidesOf(kinematics, posture);
    return isOnSide(sides.front, (branches & Configuration::Back) != 0) &&
           isOnSide(sides.elbow, (branches & Configuration::ElbowDown) != 0) &&
           isOnSide(sides.wristDegree, (branches & Configuration::WristFlipped) != 0);
}

} // namespace controller
