#pragma once

#include "controller/robot/arm.h"
#include "controller/robot/robotmodel.h"

#include <kdl/frames.hpp>

#include <QStringList>

#include <vector>

namespace controller {

/// Where things are when a robot of a model stands in a posture.
class Kinematics {
public:
    explicit Kinematics(const RobotModel& model);

    const RobotModel& model() const { return m_model; }
    const Arm& arm() const { return m_arm; }

    /// What is wrong with the names of a tool and a work object, a sentence; empty when both are there.
    QString unknown(const QString& tool, const QString& wobj) const;

    /// The tool in the work object; both must be there.
    KDL::Frame pose(const Posture& posture, const QString& tool, const QString& wobj) const;
    /// Looks for joints that bring the tool to `pose` in the work object, from those of `posture` on; the external axes
    /// stay where they are.
    /// \return false, and `posture` is as before, when there are none near; limits are not looked at
    bool reach(const KDL::Frame& pose, const QString& tool, const QString& wobj, Posture* posture) const;
    /// All postures that bring the tool to `pose` in the work object, but for full turns of joints: up to eight, and
    /// some of those that there are where the pose leaves joints open. The third of seven joints and the external axes
    /// are as in `present`. Limits are not looked at.
    std::vector<Posture> postures(const KDL::Frame& pose, const QString& tool, const QString& wobj,
                                  const Posture& present) const;

private:
    KDL::Frame flangeAt(const KDL::Frame& pose, const QString& tool, const QString& wobj, const Posture& posture) const;
    KDL::Frame inWorld(const Mount& mount, const Posture& posture) const;
    KDL::Frame moved(int external, const Posture& posture) const;

    RobotModel m_model;
    Arm m_arm;
};

} // namespace controller
