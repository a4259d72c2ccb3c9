#pragma once

#include "controller/robot/jogmotion.h"

namespace controller {

/// The tool along, or about, one direction in the work object at even speed, with the external axes at rest. Of x, y,
/// z, a, b and c only the one that is jogged changes.
class CartesianJog : public JogMotion {
public:
    CartesianJog(const Kinematics* kinematics, const JogCommand& command, const Posture& start, const QString& tool,
                 const QString& wobj);

    JogStep at(qint64 sinceStartMs, const Posture& present) override;

private:
    KDL::Frame target(qint64 sinceStartMs) const;
    JogStep stopped(const Posture& present, const QString& by, const QString& reason) const;

    const Kinematics* m_kinematics;
    QString m_tool;
    QString m_wobj;
    KDL::Frame m_start;
    KDL::Vector m_direction;
    int m_axis;
    double m_speed; ///< mm or rad a second
    qint64 m_reachedMs = 0;
};

} // namespace controller
