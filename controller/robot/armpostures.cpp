#include "controller/robot/armpostures.h"

#include "controller/robot/pose.h"

#include <cmath>

using KDL::Frame;
using KDL::Rotation;
using KDL::Vector;

namespace controller {

namespace {

// Below these a place leaves open how the arm turns: mm from axis 1, and the sine of a wrist that is stretched.
const double onAxisMm = 1e-6;
const double stretched = 1e-7;
const double beyondReach = 1e-6;
const int roundsAtMost = 50;

/// The joints up to the wrist, in rad.
struct Reaching {
    double first = 0;
    double second = 0;
    double elbow = 0;
};

/// The three joints of the wrist, in rad.
struct Wrist {
    double first = 0;
    double second = 0;
    double third = 0;
};

double hypotOf(double a, double b, double c) {
    return std::sqrt(a * a + b * b + c * c);
}

/// From the shoulder to the centre of the wrist, one of up to four ways.
class ShoulderToWrist {
public:
    ShoulderToWrist(const Arm& arm, const Vector& wristCentre, const Joints& present)
        : m_lengths(arm.lengths()), m_target(wristCentre), m_presentRad(radOf(present.at(0))),
          m_rollRad(arm.isRedundant() ? radOf(present.at(2)) : 0) {}

    // With a third joint that is turned, the elbow moves the wrist to the side, which changes where the shoulder must
    // be, which changes the elbow. So the way aside is looked for which leads to itself.
    bool find(bool back, bool elbowDown, Reaching* found) const {
        double before = 0;
        double offBefore = 0;
        double aside = 0;
        for (int round = 0; round < roundsAtMost; ++round) {
            if (!findElbow(front(back, aside), aside, elbowDown, &found->elbow))
                return false;
            const double off = std::sin(m_rollRad) * inUpperArm(found->elbow).x() - aside;
            if (std::abs(off) < onAxisMm)
                break;
            const double next = round == 0 ? aside + off : aside - off * (aside - before) / (off - offBefore);
            before = aside;
            offBefore = off;
            aside = next;
        }
        turnTo(front(back, aside), aside, found);
        return true;
    }

private:
    double radius() const { return std::hypot(m_target.x(), m_target.y()); }
    double up() const { return m_target.z() - m_lengths.shoulderHeight; }
    // How far the wrist is before axis 1, once that is turned.
    double front(bool back, double aside) const {
        const double way = std::sqrt(std::max(0.0, radius() * radius() - aside * aside));
        return back ? -way : way;
    }

    // The centre of the wrist seen from axis 2, before the third of seven joints turns it.
    Vector inUpperArm(double elbow) const {
        return Rotation::RotY(elbow) * Vector(m_lengths.forearm, 0, m_lengths.elbowOffset) +
               Vector(0, 0, m_lengths.upperArm);
    }

    bool findElbow(double front, double aside, bool down, double* elbow) const {
        const double forearm = std::hypot(m_lengths.forearm, m_lengths.elbowOffset);
        const double way = hypotOf(front - m_lengths.shoulderOffset, aside, up());
        const double upper = m_lengths.upperArm;
        const double cosine = (way * way - upper * upper - forearm * forearm) / (2 * upper * forearm);
        // So that what is no number is out of reach too.
        if (!(std::abs(cosine) <= 1 + beyondReach))
            return false;
        const double bend = std::acos(std::fmax(-1, std::fmin(1, cosine)));
        *elbow = (down ? -bend : bend) - std::atan2(m_lengths.forearm, m_lengths.elbowOffset);
        return true;
    }

    void turnTo(double front, double aside, Reaching* found) const {
        const Vector wrist = Rotation::RotZ(m_rollRad) * inUpperArm(found->elbow);
        found->second = std::atan2(front - m_lengths.shoulderOffset, up()) - std::atan2(wrist.x(), wrist.z());
        const bool isOpen = radius() < onAxisMm;
        found->first = isOpen ? m_presentRad : std::atan2(m_target.y(), m_target.x()) - std::atan2(aside, front);
    }

    ArmLengths m_lengths;
    Vector m_target;
    double m_presentRad;
    double m_rollRad;
};

Rotation forearmOf(const Arm& arm, const Reaching& reaching, const Joints& present) {
    const double rollRad = arm.isRedundant() ? radOf(present.at(2)) : 0;
    return Rotation::RotZ(reaching.first) * Rotation::RotY(reaching.second) * Rotation::RotZ(rollRad) *
           Rotation::RotY(reaching.elbow);
}

// Of a stretched wrist the sum of two joints is given, and any first one will do: as it stands, and some on the way
// around.
std::vector<Wrist> stretchedWrists(const Rotation& turn, double presentRad) {
    const double sum = std::atan2(turn(2, 1), turn(1, 1));
    std::vector<Wrist> wrists{{presentRad, 0, sum - presentRad}};
    for (int part = 0; part < 8; ++part)
        wrists.push_back({part * M_PI / 4, 0, sum - part * M_PI / 4});
    return wrists;
}

// About X, Y, X.
std::vector<Wrist> wristsOf(const Rotation& turn, double presentRad) {
    const double sine = std::hypot(turn(1, 0), turn(2, 0));
    if (sine < stretched)
        return stretchedWrists(turn, presentRad);
    const double bend = std::atan2(sine, turn(0, 0));
    return {{std::atan2(turn(1, 0), -turn(2, 0)), bend, std::atan2(turn(0, 1), turn(0, 2))},
            {std::atan2(-turn(1, 0), turn(2, 0)), -bend, std::atan2(-turn(0, 1), -turn(0, 2))}};
}

double degreesOf(double radians) {
    const double degrees = std::remainder(degOf(radians), 360);
    return degrees <= -180 ? 180 : degrees;
}

Joints jointsOf(const Arm& arm, const Reaching& reaching, const Wrist& wrist, const Joints& present) {
    std::vector<double> angles{degreesOf(reaching.first), degreesOf(reaching.second), degreesOf(reaching.elbow),
                               degreesOf(wrist.first),    degreesOf(wrist.second),    degreesOf(wrist.third)};
    if (arm.isRedundant())
        angles.insert(angles.begin() + 2, present.at(2));
    Joints joints{};
    std::copy(angles.begin(), angles.end(), joints.begin());
    return joints;
}

} // namespace

std::vector<Joints> posturesNear(const Arm& arm, const Frame& flange, const Joints& present) {
    const Vector wristCentre = flange.p - flange.M.UnitZ() * arm.lengths().wrist;
    const ShoulderToWrist shoulder(arm, wristCentre, present);
    const double presentWristRad = radOf(present.at(arm.isRedundant() ? 4 : 3));
    std::vector<Joints> postures;
    for (const int way : {0, 1, 2, 3}) {
        Reaching reaching;
        if (!shoulder.find((way & 1) != 0, (way & 2) != 0, &reaching))
            continue;
        const Rotation turn = forearmOf(arm, reaching, present).Inverse() * flange.M * Rotation::RotY(-M_PI / 2);
        for (const Wrist& wrist : wristsOf(turn, presentWristRad))
            postures.push_back(jointsOf(arm, reaching, wrist, present));
    }
    return postures;
}

} // namespace controller
