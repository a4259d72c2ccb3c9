// The data tree, and requests to the controller.

#include "kite/interfacemanager.h"

#include "interface/controllermanager.h"
#include "interface/nodejson.h"

#include "brisk/modulemanager.h"

namespace kite {

namespace {

void fill(brisk::ModuleObject& node, const QJsonValue& content) {
    node.importFromJson(nullptr, content, /*notify*/ true, /*create*/ true, /*prune*/ false);
}

} // namespace

QJsonValue InterfaceManager::getNodeData(const QString& key) {
    return jsonOf(m(key, nullptr));
}

bool InterfaceManager::rcRequest(const QString& command, const QString& item, const QJsonValue& params, int timeoutMs) {
    return controllerManager()->request(command, item, params, timeoutMs);
}

QJsonValue InterfaceManager::rcExecRequest(const QString& command, const QString& item, const QJsonValue& params,
                                           bool option, int timeoutMs) {
    return jsonOf(controllerManager()->execRequest(command, item, params, option, timeoutMs));
}

bool InterfaceManager::rcRequestFullCommand(const QString& command, const QJsonValue& request, int timeoutMs) {
    brisk::ModuleObject node(QStringLiteral("request"));
    fill(node, request);
    return controllerManager()->request(command, &node, timeoutMs);
}

QJsonValue InterfaceManager::rcExecRequestFullCommand(const QString& command, const QJsonValue& request, bool option,
                                                      int timeoutMs) {
    brisk::ModuleObject node(QStringLiteral("request"));
    fill(node, request);
    return jsonOf(controllerManager()->execRequest(command, &node, option, timeoutMs));
}

} // namespace kite
