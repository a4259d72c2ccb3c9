#pragma once

#include "controller/robot/movepath.h"
#include "controller/robot/robotmodel.h"

namespace controller {

/// All joints evenly from one posture to another. The external axes stay where they are.
class JointPath : public MovePath {
public:
    /// \param to within the limits
    /// \param share of the full speed of the axes; they speed up and slow down as ever
    JointPath(const RobotModel& model, const Posture& from, const Posture& to, double share);

    MoveError lookAheadTo(double to) override;
    bool bringTo(double at, Posture* posture) const override;

private:
    Posture m_from;
    Posture m_to;
};

} // namespace controller
