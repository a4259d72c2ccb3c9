#include "kite/interfacemanager.h"

#include "interface/controllermanager.h"
#include "interface/interfacemanager_p.h"

#include "brisk/relay.h"

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

} // namespace

InterfaceManager::InterfaceManager(QObject* parent) : QObject(parent), d(new InterfaceManagerPrivate(this)) {
    connect(controllerManager(), &ControllerManager::rcConnected, this, [this] {
        if (isBusUp())
            emit sigNetworkConnect();
    });
    connect(controllerManager(), &ControllerManager::rcDisconnected, this,
            [this](bool status) { emit sigNetworkDisConnect(status); });

    const ModuleObject* connected = busConnected();
    if (!connected)
        return;
    connect(connected, &ModuleObject::changed, this, [this](const QVariant& value) {
        if (value.toBool() && controllerManager()->controllerConnected())
            emit sigNetworkConnect();
    });
}

InterfaceManager::~InterfaceManager() = default;

InterfaceManager* kiteInterface() {
    static InterfaceManager manager(nullptr);
    return &manager;
}

} // namespace kite
