#include "links.h"

#include "brisk/relay.h"
#include "helm/managerhelper.h"

using brisk::ModuleObject;
using helm::ControllerManager;

namespace pendant {
namespace links {

namespace {

ModuleObject* connectedNode() {
    return relay()->mobj()->c(QStringLiteral("connected"), true);
}

ControllerManager* controllerManager() {
    return helm::ManagerHelper::instance()->controllerManager();
}

} // namespace

bool isBusUp() {
    return connectedNode()->getBool();
}

bool areUp() {
    return isBusUp() && controllerManager()->controllerConnected();
}

void follow(QObject* receiver, const std::function<void()>& tell) {
    QObject::connect(connectedNode(), &ModuleObject::changed, receiver, tell);
    QObject::connect(controllerManager(), &ControllerManager::rcConnected, receiver, tell);
    QObject::connect(controllerManager(), &ControllerManager::rcDisconnected, receiver, tell);
}

} // namespace links
} // namespace pendant
