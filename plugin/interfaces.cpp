#include "kite/interfaces.h"

#include "brisk/relay.h"

namespace kite {

BaseInterface::BaseInterface(QObject* parent) : QObject(parent) {}
BaseInterface::~BaseInterface() = default;

CustomInterface::CustomInterface(QObject* parent) : BaseInterface(parent) {}
CustomInterface::~CustomInterface() = default;

NetworkInterface::NetworkInterface(QObject* parent) : BaseInterface(parent) {}
NetworkInterface::~NetworkInterface() = default;

QJsonValue NetworkInterface::get(const QString& key) {
    const brisk::ModuleObject* node = relay()->get(nullptr, key);
    return node ? node->exportToJson(true) : QJsonValue();
}

ServiceInterface::ServiceInterface(QObject* parent) : BaseInterface(parent) {}
ServiceInterface::~ServiceInterface() = default;

} // namespace kite
