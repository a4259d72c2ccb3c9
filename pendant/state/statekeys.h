#pragma once

#include <QString>

namespace pendant {

/// Where the controller's state stands in the data tree.
namespace statekeys {

inline QString robotId() {
    return QStringLiteral("helm.r.id");
}
inline QString robotType() {
    return QStringLiteral("helm.setting.robot");
}
/// "on" or "off".
inline QString power() {
    return QStringLiteral("helm.r.power");
}
inline QString robotState() {
    return QStringLiteral("helm.r.state");
}
inline QString operatingLevel() {
    return QStringLiteral("helm.r.level");
}
inline QString mode() {
    return QStringLiteral("helm.r.mode");
}
inline QString position() {
    return QStringLiteral("orca.robot.position");
}
/// "signal_value" and "signal_detail", each with a child for every signal, under its name.
inline QString io() {
    return QStringLiteral("orca.robot.io");
}
/// The list of registers.
inline QString registers() {
    return QStringLiteral("orca.robot.register._list");
}

} // namespace statekeys
} // namespace pendant
