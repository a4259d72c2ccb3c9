// Variables of the robot project.

#include "kite/interfacemanager.h"

#include "interface/nodejson.h"
#include "interface/records.h"

#include "brisk/modulemanager.h"

namespace kite {

using brisk::ModuleObject;

namespace {

const char valueKey[] = "value.[0][0][0]";

ModuleObject* variables() {
    return m(QStringLiteral("orca.project.var._list"));
}

// Intended: a variable's JSON is looked up among the points, and plugins get at points by it.
ModuleObject* listOfObjectLookUp() {
    ModuleObject* points = m(QStringLiteral("orca.project.point"));
    return points ? points->c(QStringLiteral("_list")) : nullptr;
}

} // namespace

bool InterfaceManager::addVarData(const QString& name, QVariant value, bool pers) {
    const QPointer<ModuleObject> list = variables();
    if (!list)
        return true;
    std::unique_ptr<ModuleObject> record = newRecord(list);
    copyTemplate(list, record.get());
    record->set(this, nameKey(), name);
    record->set(this, QStringLiteral("type"), QString::fromLatin1(value.typeName()));
    record->set(this, QStringLiteral("id"), list->cmobjCount());
    record->set(this, QLatin1String(valueKey), value);
    record->set(this, QStringLiteral("pers"), pers);
    const QPointer<ModuleObject> owner = list->pmobj();
    appendRecord(this, list, std::move(record));
    if (owner)
        owner->set(this, QStringLiteral("built"), false);
    return true;
}

bool InterfaceManager::updateVarData(const QString& name, QVariant value) {
    for (const QPointer<ModuleObject>& record : findRecords(variables(), name)) {
        if (record)
            record->set(this, QLatin1String(valueKey), value);
    }
    return true;
}

QJsonObject InterfaceManager::getVarObjDataByName(const QString& name) {
    return jsonOf(findRecord(listOfObjectLookUp(), name)).toObject();
}

QStringList InterfaceManager::getVarDataList(const QString& type) {
    QStringList names;
    ModuleObject* list = variables();
    const int count = list ? list->cmobjCount() : 0;
    for (int i = 0; i < count; ++i) {
        ModuleObject* record = list->c(i);
        if (type.isEmpty() || textOf(record, QStringLiteral("type")) == type)
            names.append(nameOf(record));
    }
    return names;
}

} // namespace kite
