#pragma once

#include "helm/managerhelper.h"

namespace kite {

/// The host's channel of requests to the controller; never null.
inline helm::ControllerManager* controllerManager() {
    return helm::ManagerHelper::instance()->controllerManager();
}

} // namespace kite
