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

} // namespace

Configuration configurationOf(const Kinematics& kinematics, const Posture& posture) {
    const RobotModel& model = kinematics.model();
    const size_t elbow = isRedundant(model) ? 3 : 2;
    Configuration configuration;
    for (size_t i = 0; i < posture.joints.size(); ++i)
        configuration.quadrants.at(i) = int(std::floor(tidy(posture.joints.at(i)) / 90));
    if (towardsFront(kinematics.arm().wristCentre(posture.joints), radOf(posture.joints.at(0))) < 0)
        configuration.branches |= Configuration::Back;
    if (beforeUpperArm(model.lengths, radOf(posture.joints.at(elbow))) < 0)
        configuration.branches |= Configuration::ElbowDown;
    if (tidy(posture.joints.at(elbow + 2)) < 0)
        configuration.branches |= Configuration::WristFlipped;
    if (isRedundant(model))
        configuration.elbow = posture.joints.at(2);
    return configuration;
}

} // namespace controller
