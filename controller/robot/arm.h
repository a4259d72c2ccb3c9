#pragma once

#include "controller/robot/posture.h"
#include "controller/robot/robotmodel.h"

#include <kdl/frames.hpp>

namespace controller {

/// The geometry of an arm with a wrist whose axes meet in one point, seen from its foot.
class Arm {
public:
    /// \param joints 6 or 7
    Arm(const ArmLengths& lengths, int joints);

    KDL::Frame flange(const Joints& joints) const;
    KDL::Vector wristCentre(const Joints& joints) const;

    /// Looks for joints that bring the flange to `flange`, from `joints` on. The third of seven stays as it is.
    /// \return false, and `joints` are as before, when there are none near; limits are not looked at
    bool reach(const KDL::Frame& flange, Joints* joints) const;

private:
    ArmLengths m_lengths;
    bool m_isRedundant;
};

} // namespace controller
