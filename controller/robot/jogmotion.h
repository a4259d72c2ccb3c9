#pragma once

#include "controller/robot/jogcommand.h"
#include "controller/robot/kinematics.h"

#include <QString>

#include <memory>

namespace controller {

/// How a jog motion went on.
struct JogStep {
    Posture posture;
    QString stoppedBy; ///< empty while it can go on
    QString notice;    ///< a sentence for the people at the pendant; may be empty
};

/// Jogging one axis from where it began. Where it is depends on the time since then alone, not on how often it is
/// asked.
class JogMotion {
public:
    virtual ~JogMotion();

    /// \param sinceStartMs not less than in the call before
    virtual JogStep at(qint64 sinceStartMs, const Posture& present) = 0;
};

/// \param kinematics must outlive the motion
std::unique_ptr<JogMotion> jogMotion(const Kinematics* kinematics, const JogCommand& command, const Posture& start,
                                     const QString& tool, const QString& wobj);

} // namespace controller
