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

const int redundantJoint = 2;
// In m and rad: where the search may stop, and what may be left to the target at most.
const double enough = 1e-10;
const double precision = 1e-7;
// A motion less than this from a turn of 1 is none: the joint does nothing for it.
const double singular = 1e-3;
const double mm = 0.001;
const int triesAtMost = 60;

Segment turning(Joint::JointType type, double x, double z) {
    return Segment(Joint(type), Frame(Vector(x, 0, z) * mm));
}

// Up to the centre of the wrist. The redundant joint is a fixed part of the chain.
Chain reachingChain(const ArmLengths& lengths, double redundantRad) {
    Chain chain;
    chain.addSegment(turning(Joint::RotZ, lengths.shoulderOffset, lengths.shoulderHeight));
    chain.addSegment(Segment(Joint(Joint::RotY), Frame(Rotation::RotZ(redundantRad))));
    chain.addSegment(Segment(Joint(Joint::Fixed), Frame(Vector(0, 0, lengths.upperArm) * mm)));
    chain.addSegment(turning(Joint::RotY, lengths.forearm, lengths.elbowOffset));
    return chain;
}

Chain wholeChain(const ArmLengths& lengths, double redundantRad) {
    Chain chain = reachingChain(lengths, redundantRad);
    chain.addSegment(turning(Joint::RotX, 0, 0));
    chain.addSegment(turning(Joint::RotY, 0, 0));
    // Z of the flange points away from the wrist.
    chain.addSegment(Segment(Joint(Joint::RotX), Frame(Rotation::RotY(M_PI / 2), Vector(lengths.wrist, 0, 0) * mm)));
    return chain;
}

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

double redundantRad(const Joints& joints, bool isRedundant) {
    return isRedundant ? radOf(joints.at(redundantJoint)) : 0;
}

} // namespace

Arm::Arm(const ArmLengths& lengths, int joints) : m_lengths(lengths), m_isRedundant(joints == 7) {}

Frame Arm::flange(const Joints& joints) const {
    const Chain chain = wholeChain(m_lengths, redundantRad(joints, m_isRedundant));
    const Frame end = endOf(chain, arrayOf(joints, m_isRedundant, chain.getNrOfJoints()));
    return {end.M, end.p / mm};
}

Vector Arm::wristCentre(const Joints& joints) const {
    const Chain chain = reachingChain(m_lengths, redundantRad(joints, m_isRedundant));
    return endOf(chain, arrayOf(joints, m_isRedundant, chain.getNrOfJoints())).p / mm;
}

bool Arm::reach(const Frame& flange, Joints* joints) const {
    const Chain chain = wholeChain(m_lengths, redundantRad(*joints, m_isRedundant));
    const Eigen::Matrix<double, 6, 1> weights = Eigen::Matrix<double, 6, 1>::Ones();
    KDL::ChainIkSolverPos_LMA solver(chain, weights, enough, triesAtMost);
    const Frame target(flange.M, flange.p * mm);
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
