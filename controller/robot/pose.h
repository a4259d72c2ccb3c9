#pragma once

#include <kdl/frames.hpp>

namespace controller {

/// A place and an orientation: mm, and Euler angles in degrees, `a` about Z, `b` about the new Y, `c` about the newest
/// X.
struct Pose {
    double x = 0;
    double y = 0;
    double z = 0;
    double a = 0;
    double b = 0;
    double c = 0;
};

/// A unit quaternion, `q1` its real part and never negative.
struct Quaternion {
    double q1 = 1;
    double q2 = 0;
    double q3 = 0;
    double q4 = 0;
};

/// Lengths of frames are mm everywhere.
KDL::Frame frameOf(const Pose& pose);
/// `a` and `c` from above -180 to 180, `b` from -90 to 90. Where `b` is 90 or -90, `a` is 0.
Pose poseOf(const KDL::Frame& frame);
/// The first of the Euler angles, in rad.
double turnAboutZ(const KDL::Rotation& rotation);
Quaternion quaternionOf(const KDL::Rotation& rotation);

double radOf(double degrees);
double degOf(double radians);
/// Without the dust of the arithmetic: to 1e-9, and never -0.
double tidy(double value);

} // namespace controller
