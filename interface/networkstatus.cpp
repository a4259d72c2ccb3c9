// The state of the links, and the tasks that run when it changes.

#include "interface/interfacemanager_p.h"

#include "brisk/relay.h"
#include "helm/managerhelper.h"

#include <memory>
#include <utility>

namespace kite {

namespace {

helm::TaskNetworkManager* tasks() {
    return helm::ManagerHelper::instance()->taskNetworkManager();
}

helm::enTaskType typeOf(bool taskFlag) {
    return taskFlag ? helm::TaskOnConnect : helm::TaskOnDisconnect;
}

} // namespace

QString InterfaceManager::InterfaceManagerPrivate::createTaskId(const QString& name) {
    static int taskId = 0;
    return name + QStringLiteral("_%1").arg(++taskId);
}

QString InterfaceManager::connectNetworkStatus(bool taskFlag, const QString& name, QObject* owner,
                                               std::function<void()> handler, const QString& taskId) {
    const QString id = taskId.isEmpty() ? InterfaceManagerPrivate::createTaskId(name) : taskId;
    const auto kept = std::make_shared<const std::function<void()>>(std::move(handler));
    const auto task = [kept](const helm::TaskNetworkManager::Done& done) {
        (*kept)();
        done(true, QVariant());
    };
    tasks()->registerTask(typeOf(taskFlag), owner, id, task, QStringList());
    return id;
}

bool InterfaceManager::disconnectNetworkStatus(bool taskFlag, const QString& taskId) {
    return tasks()->unRegisterTask(typeOf(taskFlag), taskId);
}

bool InterfaceManager::getRobotConnected() {
    brisk::ModuleObject* bus = relay()->mobj();
    const brisk::ModuleObject* connected = bus ? bus->c(QStringLiteral("connected"), false) : nullptr;
    return connected && connected->getBool(false);
}

} // namespace kite
