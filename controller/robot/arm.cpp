#include "controller/robot/arm.h"

#include <kdl/chain.hpp>
#include <kdl/chainfksolverpos_recursive.hpp>
#include <kdl/chainiksolverpos_lma.hpp>
#include <kdl/chainiksolvervel_pinv.hpp>

#include <cmath>

using KDL::Chain;
using KDL::Frame;
using KDL::JntArray;
using KDL::Joint;
using KDL::Rotation;
using KDL::Segment;
using KDL::Vector;

namespace controller {

namespace {

const size_t redundantJoint = 2;
const size_t linksOfTheWrist = 3;
// In m and rad: where the search may stop, and what may be left to the target at most.
const double enough = 1e-10;
const double precision = 1e-7;
// A motion less than this from a turn of 1 is none: the joint does nothing for it.
const double singular = 1e-3;
const double mm = 0.001; // of a metre
const int triesAtMost = 60;

// The first `count` of the joints but the redundant one.
JntArray arrayOf(const Joints& joints, bool isRedundant, unsigned count) {
    JntArray array(count);
    for (unsigned i = 0; i < count; ++i)
        array(i) = radOf(joints.at(isRedundant && i >= redundantJoint ? i + 1 : i));
    return array;
}

Frame endOf(const Chain& chain, const JntArray& joints) {
    KDL::ChainFkSolverPos_recursive solver(chain);
    Frame end;
    solver.JntToCart(joints, end);
    return end;
}

// The small motion from one frame to the other.
KDL::Twist between(const Frame& from, const Frame& to) {
    const Rotation turn = to.M * from.M.Inverse();
    const Vector twice(turn(2, 1) - turn(1, 2), turn(0, 2) - turn(2, 0), turn(1, 0) - turn(0, 1));
    return {to.p - from.p, twice / 2};
}

// The search takes turns below 1e-6 rad for none.
void polish(const Chain& chain, const Frame& target, JntArray* joints) {
    KDL::ChainIkSolverVel_pinv solver(chain, singular);
    JntArray change(joints->rows());
    solver.CartToJnt(*joints, between(endOf(chain, *joints), target), change);
    joints->data += change.data;
}

Joint::JointType typeOf(int direction) {
    const Joint::JointType types[] = {Joint::RotX, Joint::RotY, Joint::RotZ};
    return types[direction];
}

Frame shifted(double x, double z) {
    return Frame(Vector(x, 0, z));
}

Frame inMetres(const Frame& frame) {
    return {frame.M, frame.p * mm};
}

} // namespace

Arm::Arm(const ArmLengths& lengths, int joints) : m_lengths(lengths), m_isRedundant(joints == 7) {}

// Z of the flange points away from the wrist.
std::vector<ArmLink> Arm::links() const {
    std::vector<ArmLink> links{{2, shifted(m_lengths.shoulderOffset, m_lengths.shoulderHeight)}};
    if (m_isRedundant)
        links.push_back({1, Frame::Identity()});
    links.push_back({m_isRedundant ? 2 : 1, shifted(0, m_lengths.upperArm)});
    links.push_back({1, shifted(m_lengths.forearm, m_lengths.elbowOffset)});
    links.push_back({0, Frame::Identity()});
    links.push_back({1, Frame::Identity()});
    links.push_back({0, Frame(Rotation::RotY(M_PI / 2), Vector(m_lengths.wrist, 0, 0))});
    return links;
}

// The redundant joint is a fixed part of the chain. Lengths are in m, as the search wants them.
Chain Arm::chain(const Joints& joints, size_t count) const {
    Chain chain;
    const std::vector<ArmLink> links = this->links();
    for (size_t i = 0; i < count; ++i) {
        const Frame next = inMetres(links.at(i).next);
        if (m_isRedundant && i == redundantJoint)
            chain.addSegment(Segment(Joint(Joint::Fixed), Frame(Rotation::RotZ(radOf(joints.at(i)))) * next));
        else
            chain.addSegment(Segment(Joint(typeOf(links.at(i).direction)), next));
    }
    return chain;
}

Frame Arm::flange(const Joints& joints) const {
    const Chain whole = chain(joints, links().size());
    const Frame end = endOf(whole, arrayOf(joints, m_isRedundant, whole.getNrOfJoints()));
    return {end.M, end.p / mm};
}

Vector Arm::wristCentre(const Joints& joints) const {
    const Chain reaching = chain(joints, links().size() - linksOfTheWrist);
    return endOf(reaching, arrayOf(joints, m_isRedundant, reaching.getNrOfJoints())).p / mm;
}

bool Arm::reach(const Frame& flange, Joints* joints) const {
    const Chain chain = this->chain(*joints, links().size());
    const Eigen::Matrix<double, 6, 1> weights = Eigen::Matrix<double, 6, 1>::Ones();
    KDL::ChainIkSolverPos_LMA solver(chain, weights, enough, triesAtMost);
    const Frame target = inMetres(flange);
    JntArray found(chain.getNrOfJoints());
    // It also gives up where it cannot get any nearer, which may be near enough.
    solver.CartToJnt(arrayOf(*joints, m_isRedundant, chain.getNrOfJoints()), target, found);
    polish(chain, target, &found);
    if (!KDL::Equal(endOf(chain, found), target, precision))
        return false;
    for (unsigned i = 0; i < found.rows(); ++i)
        joints->at(m_isRedundant && i >= redundantJoint ? i + 1 : i) = degOf(found(i));
    return true;
}

} // namespace controller
