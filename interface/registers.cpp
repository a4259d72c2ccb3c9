// Registers of the controller.

#include "kite/interfacemanager.h"

#include "interface/nodejson.h"

#include "brisk/modulemanager.h"

namespace kite {

using brisk::ModuleObject;

QHash<QString, QStringList> InterfaceManager::getRegisterHash() {
    QHash<QString, QStringList> registers;
    for (const QJsonValue& element : getRegisterValue().toArray()) {
        const QJsonObject record = element.toObject();
        const QJsonValue name = record.value(QLatin1String("name"));
        const QJsonValue value = record.value(QLatin1String("value"));
        if (!name.isUndefined() && !value.isUndefined())
            registers.insert(name.toString(), value.toVariant().toStringList());
    }
    return registers;
}

QJsonValue InterfaceManager::getRegisterValue() {
    ModuleObject* registers = m(QStringLiteral("orca.robot.register"));
    return jsonOf(registers ? registers->c(QStringLiteral("_list")) : nullptr);
}

} // namespace kite
