// The data tree, and requests to the controller.

#include "kite/interfacemanager.h"

#include "interface/nodejson.h"

#include "brisk/modulemanager.h"
#include "helm/managerhelper.h"

namespace kite {

namespace {

helm::ControllerManager* controller() {
    return helm::ManagerHelper::instance()->controllerManager();
}

void fill(brisk::ModuleObject& node, const QJsonValue& content) {
    node.importFromJson(nullptr, content, /*notify*/ true, /*create*/ true, /*prune*/ false);
}

} // namespace

QJsonValue InterfaceManager::getNodeData(const QString& key) {
    return jsonOf(m(key, nullptr));
}

bool InterfaceManager::rcRequest(const QString& command, const QString& item, const QJsonValue& params, int timeoutMs) {
    return controller()->request(command, item, params, timeoutMs);
}

QJsonValue InterfaceManager::rcExecRequest(const QString& command, const QString& item, const QJsonValue& params,
                                           bool option, int timeoutMs) {
    return jsonOf(controller()->execRequest(command, item, params, option, timeoutMs));
}

bool InterfaceManager::rcRequestFullCommand(const QString& command, const QJsonValue& request, int timeoutMs) {
    brisk::ModuleObject node(QStringLiteral("request"));
    fill(node, request);
    return controller()->request(command, &node, timeoutMs);
}

QJsonValue InterfaceManager::rcExecRequestFullCommand(const QString& command, const QJsonValue& request, bool option,
                                                      int timeoutMs) {
    brisk::ModuleObject node(QStringLiteral("request"));
    fill(node, request);
    return jsonOf(controller()->execRequest(command, &node, option, timeoutMs));
}

} // namespace kite
