#include "registers.h"

#include "brisk/moduleobject.h"
#include "brisk/relay.h"

#include <QJsonArray>
#include <QJsonObject>

using brisk::ModuleObject;

namespace pendant {
namespace registers {

QString nameOf(ModuleObject* record) {
    const ModuleObject* name = record ? record->c(QStringLiteral("name")) : nullptr;
    return name ? name->getString() : QString();
}

QStringList valuesOf(ModuleObject* record) {
    QStringList values;
    const ModuleObject* list = record ? record->c(QStringLiteral("value")) : nullptr;
    for (const ModuleObject* item : list ? list->cmobjs() : QList<ModuleObject*>())
        values << item->getString();
    return values;
}

void set(QObject* sender, const QString& name, const QStringList& values) {
    // A node: an empty list is left out where a JSON value becomes one.
    ModuleObject wanted(QStringLiteral("register"));
    wanted.set(nullptr, QStringLiteral("name"), name, false);
    wanted.append(nullptr, QStringLiteral("value"))->setList(nullptr, QVariant(values).toList(), false);
    relay()->command(sender, QStringLiteral("register.set"), &wanted);
}

} // namespace registers
} // namespace pendant
