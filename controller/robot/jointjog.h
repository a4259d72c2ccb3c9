#pragma once

#include "controller/robot/jogmotion.h"

namespace controller {

/// One joint or external axis at even speed, up to its limit.
class JointJog : public JogMotion {
public:
    JointJog(const RobotModel& model, const JogCommand& command, const Posture& start);

    JogStep at(qint64 sinceStartMs, const Posture& present) override;

private:
    RobotModel m_model;
    Axis m_axis;
    int m_index;
    double m_start;
    double m_speed; ///< degrees or mm a second
};

} // namespace controller
