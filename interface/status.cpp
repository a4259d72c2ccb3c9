// What the robot is and how it stands.

#include "kite/interfacemanager.h"

#include "interface/controllermanager.h"
#include "interface/settings.h"
#include "interface/treevalue.h"

#include "brisk/modulemanager.h"

namespace kite {

using brisk::ModuleObject;

namespace {

int numberOf(const ModuleObject* node) {
    return node ? node->getInt(0) : 0;
}

ModuleObject* controllerParameters() {
    return controllerManager()->cmdItemMobj(QStringLiteral("response"), QStringLiteral("system.controller.get_params"));
}

} // namespace

QString InterfaceManager::getRobotID() {
    return textAt(QStringLiteral("helm.r.id"));
}

bool InterfaceManager::getRobotEleStatus() {
    return textAt(QStringLiteral("helm.r.power")) == QLatin1String("on");
}

QString InterfaceManager::getRobotPhyStatus() {
    return textAt(QStringLiteral("helm.r.state"));
}

int InterfaceManager::getUserOperateLevel() {
    return numberOf(m(QStringLiteral("helm.r.level")));
}

QString InterfaceManager::getRobotIP() {
    return setting(QStringLiteral("server.ip"));
}

QString InterfaceManager::getRobotType() {
    return textAt(QStringLiteral("helm.setting.robot"));
}

int InterfaceManager::getRobotModelType() {
    ModuleObject* parameters = controllerParameters();
    return numberOf(parameters ? parameters->cmobj(QStringLiteral("robot_template"), false) : nullptr);
}

QString InterfaceManager::getCurTool() {
    return textAt(QStringLiteral("orca.toolpage.tool"), QStringLiteral("tool0"));
}

QString InterfaceManager::getCurWobj() {
    return textAt(QStringLiteral("orca.toolpage.wobj"), QStringLiteral("wobj0"));
}

} // namespace kite
