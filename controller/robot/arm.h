#pragma once

#include "controller/robot/posture.h"
#include "controller/robot/robotmodel.h"

#include <kdl/chain.hpp>
#include <kdl/frames.hpp>

#include <vector>

namespace controller {

/// A joint of an arm and what is fixed to it, up to the next joint.
struct ArmLink {
    int direction = 0; ///< 0, 1 or 2: the joint turns about X, Y or Z
    KDL::Frame next;   ///< of the next joint, or of the flange, seen from this one
};

/// The geometry of an arm with a wrist whose axes meet in one point, seen from its foot.
class Arm {
public:
    /// \param joints 6 or 7
    Arm(const ArmLengths& lengths, int joints);

    const ArmLengths& lengths() const { return m_lengths; }
    bool isRedundant() const { return m_isRedundant; }
    /// From the foot to the flange. Where the joints stand at 0 the frames of the first turn as the foot.
    std::vector<ArmLink> links() const;

    KDL::Frame flange(const Joints& joints) const;
    KDL::Vector wristCentre(const Joints& joints) const;

    /// Looks for joints that bring the flange to `flange`, from `joints` on. The third of seven stays as it is.
    /// \return false, and `joints` are as before, when there are none near; limits are not looked at
    bool reach(const KDL::Frame& flange, Joints* joints) const;

private:
    KDL::Chain chain(const Joints& joints, size_t links) const;

    ArmLengths m_lengths;
    bool m_isRedundant;
};

} // namespace controller
