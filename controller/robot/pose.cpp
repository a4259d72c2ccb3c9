#include "controller/robot/pose.h"

#include <cmath>
#include <initializer_list>

using KDL::Frame;
using KDL::Rotation;
using KDL::Vector;

namespace controller {

namespace {

double rounded(double value, double steps) {
    return std::round(value * steps) / steps + 0.0;
}

// -180 and 180 are the same; 180 is written.
double angleOf(double radians) {
    const double degrees = tidy(degOf(radians));
    return degrees <= -180 ? 180 : degrees;
}

// A turn by 180 degrees has two quaternions without a real part.
bool isNegative(const Quaternion& q) {
    for (const double part : {q.q1, q.q2, q.q3, q.q4}) {
        if (part < 0 || part > 0)
            return part < 0;
    }
    return false;
}

} // namespace

double radOf(double degrees) {
    return degrees * (M_PI / 180);
}

double degOf(double radians) {
    return radians * (180 / M_PI);
}

double tidy(double value) {
    return rounded(value, 1e9);
}

Frame frameOf(const Pose& pose) {
    const Rotation turn = Rotation::RotZ(radOf(pose.a)) * Rotation::RotY(radOf(pose.b)) * Rotation::RotX(radOf(pose.c));
    return {turn, Vector(pose.x, pose.y, pose.z)};
}

// Each angle is read with the ones before it undone. So the three belong together also where `a` alone is ill defined.
Pose poseOf(const Frame& frame) {
    const Rotation& m = frame.M;
    const double a = turnAboutZ(m);
    const double b = std::atan2(-m(2, 0), std::cos(a) * m(0, 0) + std::sin(a) * m(1, 0));
    const double c =
        std::atan2(std::sin(a) * m(0, 2) - std::cos(a) * m(1, 2), std::cos(a) * m(1, 1) - std::sin(a) * m(0, 1));
    return {tidy(frame.p.x()), tidy(frame.p.y()), tidy(frame.p.z()), angleOf(a), angleOf(b), angleOf(c)};
}

double turnAboutZ(const Rotation& rotation) {
    const double dust = 1e-12;
    const bool isUpright = std::hypot(rotation(1, 0), rotation(0, 0)) < dust;
    return isUpright ? 0 : std::atan2(rotation(1, 0), rotation(0, 0));
}

Quaternion quaternionOf(const Rotation& rotation) {
    Quaternion q;
    rotation.GetQuaternion(q.q2, q.q3, q.q4, q.q1);
    for (double* part : {&q.q1, &q.q2, &q.q3, &q.q4})
        *part = rounded(*part, 1e12);
    const double sign = isNegative(q) ? -1 : 1;
    return {sign * q.q1 + 0.0, sign * q.q2 + 0.0, sign * q.q3 + 0.0, sign * q.q4 + 0.0};
}

} // namespace controller
