#pragma once

#include "controller/robot/kinematics.h"
#include "controller/robot/movecommand.h"
#include "controller/robot/movepath.h"

namespace controller {

/// The tip of the tool along the straight line in the work object, turning evenly about one axis. The external axes
/// stay where they are.
class LinearPath : public MovePath {
public:
    /// \param kinematics must outlive it
    /// \param mmPerS the speed of the tip
    LinearPath(const Kinematics* kinematics, const Posture& from, const MoveTarget& target, double mmPerS);

    MoveError lookAheadTo(double to) override;
    bool bringTo(double at, Posture* posture) const override;

private:
    KDL::Frame poseAt(double at) const;
    double speedAt(double at) const;
    MoveError lookAt(double next);

    const Kinematics* m_kinematics;
    MoveTarget m_target;
    KDL::Frame m_start;
    KDL::Vector m_axis;
    double m_angle; ///< rad
    double m_piece; ///< how far it looks at once
    Posture m_seenPosture;
    double m_seen = 0;
};

} // namespace controller
