#include "controller/robot/jogmotion.h"

#include "controller/robot/cartesianjog.h"
#include "controller/robot/jointjog.h"

namespace controller {

JogMotion::~JogMotion() = default;

std::unique_ptr<JogMotion> jogMotion(const Kinematics* kinematics, const JogCommand& command, const Posture& start,
                                     const QString& tool, const QString& wobj) {
    if (command.space == JogCommand::Joint)
        return std::make_unique<JointJog>(kinematics->model(), command, start);
    return std::make_unique<CartesianJog>(kinematics, command, start, tool, wobj);
}

} // namespace controller
