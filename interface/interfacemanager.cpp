#include "kite/interfacemanager.h"

#include "interface/interfacemanager_p.h"

#include "brisk/relay.h"
#include "helm/managerhelper.h"

namespace kite {

namespace {

using brisk::ModuleObject;
using helm::ControllerManager;

ModuleObject* busConnected() {
    ModuleObject* bus = relay()->mobj();
    return bus ? bus->r(QStringLiteral("connected")) : nullptr;
}

bool isBusUp() {
    const ModuleObject* connected = busConnected();
    return connected && connected->getBool(false);
}

ControllerManager* controller() {
    return helm::ManagerHelper::instance()->controllerManager();
}

} // namespace

InterfaceManager::InterfaceManager(QObject* parent) : QObject(parent), d(new InterfaceManagerPrivate(this)) {
    connect(controller(), &ControllerManager::rcConnected, this, [this] {
        if (isBusUp())
            emit sigNetworkConnect();
    });
    connect(controller(), &ControllerManager::rcDisconnected, this,
            [this](bool status) { emit sigNetworkDisConnect(status); });

    const ModuleObject* connected = busConnected();
    if (!connected)
        return;
    connect(connected, &ModuleObject::changed, this, [this](const QVariant& value) {
        if (value.toBool() && controller()->controllerConnected())
            emit sigNetworkConnect();
    });
}

InterfaceManager::~InterfaceManager() = default;

InterfaceManager* kiteInterface() {
    static InterfaceManager manager(nullptr);
    return &manager;
}

} // namespace kite
