#include "controller/io/registers.h"

namespace controller {

void Registers::start(const QVector<Register>& registers) {
    m_registers = registers;
    emit changed();
}

bool Registers::set(const QString& name, const QStringList& values) {
    for (Register& one : m_registers) {
        if (one.name != name)
            continue;
        one.values = values;
        emit changed();
        return true;
    }
    return false;
}

Content Registers::content() const {
    const Content list = copied(nullptr);
    list->setList(nullptr, {}, false);
    for (const Register& one : m_registers) {
        brisk::ModuleObject* record = list->append(nullptr, brisk::ModuleObject::generateId(list.get()));
        record->set(nullptr, QStringLiteral("name"), one.name, false);
        record->append(nullptr, QStringLiteral("value"))->setList(nullptr, QVariant(one.values).toList(), false);
    }
    return list;
}

} // namespace controller
