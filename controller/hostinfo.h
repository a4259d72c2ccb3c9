#pragma once

#include <QString>

namespace controller {

/// What the pendant that a controller stands behind says of itself.
struct HostInfo {
    QString version = QStringLiteral("3.1.0"); ///< of its libraries; the names of the commands to move depend on it
    QString id = QStringLiteral("virtual");    ///< the robot's
    QString type = QStringLiteral("standard"); ///< the robot's
    int level = 1;                             ///< what the user who is logged in may do
};

} // namespace controller
