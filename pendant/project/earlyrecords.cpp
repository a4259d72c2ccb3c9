#include "earlyrecords.h"

#include <QJsonObject>
#include <QSet>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString nameField = QStringLiteral("name");

QSet<QString> namesIn(const QJsonArray& records) {
    QSet<QString> names;
    for (const QJsonValue& record : records)
        names.insert(record.toObject().value(nameField).toString());
    return names;
}

bool isCalledOneOf(const QSet<QString>& names, ModuleObject* record) {
    const ModuleObject* name = record->c(nameField);
    return name && names.contains(name->getString());
}

} // namespace

EarlyRecords::EarlyRecords(ModuleObject* list, const QJsonArray& loaded) {
    if (!list || list->cmobjCount() == 0)
        return;
    const QSet<QString> names = namesIn(loaded);
    for (ModuleObject* record : list->cmobjs()) {
        if (isCalledOneOf(names, record))
            continue;
        m_records.push_back(std::make_unique<ModuleObject>(record->name()));
        m_records.back()->copyFrom(record);
    }
    list->clear(nullptr, true, false);
}

void EarlyRecords::putBack(ModuleObject* list) const {
    if (!list)
        return;
    for (const std::unique_ptr<ModuleObject>& record : m_records) {
        auto* item = new ModuleObject(ModuleObject::generateId(list));
        item->copyFrom(record.get());
        list->insertChild(-1, item);
    }
}

} // namespace pendant
