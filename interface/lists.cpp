// The names that a motion instruction can refer to.

#include "kite/interfacemanager.h"

#include "interface/records.h"

#include "brisk/modulemanager.h"

namespace kite {

using brisk::ModuleObject;

namespace {

QList<ModuleObject*> recordsAt(const QString& key) {
    const ModuleObject* list = m(key);
    return list ? list->cmobjs(false) : QList<ModuleObject*>();
}

QStringList namesAt(const QString& key) {
    QStringList names;
    for (ModuleObject* record : recordsAt(key))
        names.append(nameOf(record));
    return names;
}

QStringList namesOfType(const QString& key, const QString& type) {
    QStringList names;
    for (ModuleObject* record : recordsAt(key)) {
        if (textOf(record, QStringLiteral("type")) == type)
            names.append(nameOf(record));
    }
    return names;
}

QStringList variablesOfType(const QString& type) {
    return namesOfType(QStringLiteral("orca.project.var.system_list"), type) +
           namesOfType(QStringLiteral("orca.project.var._list"), type);
}

} // namespace

QStringList InterfaceManager::getToolList() {
    return namesAt(QStringLiteral("orca.project.tool.system_list")) +
           namesAt(QStringLiteral("orca.project.tool._list")) + namesAt(QStringLiteral("orca.setting.g_tool.g_tools"));
}

QStringList InterfaceManager::getWobjList() {
    return namesAt(QStringLiteral("orca.project.wobj.system_list")) +
           namesAt(QStringLiteral("orca.project.wobj._list")) + namesAt(QStringLiteral("orca.setting.g_wobj.g_wobjs"));
}

QStringList InterfaceManager::getSpeedList() {
    return variablesOfType(QStringLiteral("speed"));
}

QStringList InterfaceManager::getZoneList() {
    return variablesOfType(QStringLiteral("zone"));
}

} // namespace kite
