#include "interface/records.h"

namespace kite {

using brisk::ModuleObject;

namespace {

// Names mostly differ at their end ("P1", "P2"). To fold the case of all that stands before it takes longer than the
// rest of the walk.
bool endAlike(const QString& a, const QString& b) {
    if (a.size() != b.size() || a.isEmpty())
        return a.size() == b.size();
    const QChar end = *(a.cend() - 1);
    return end.isSurrogate() || end.toCaseFolded() == (b.cend() - 1)->toCaseFolded();
}

bool isNamed(ModuleObject* record, const QString& name, Qt::CaseSensitivity sensitivity) {
    if (!record)
        return false;
    const QString own = nameOf(record);
    return sensitivity == Qt::CaseSensitive ? own == name
                                            : endAlike(own, name) && own.compare(name, Qt::CaseInsensitive) == 0;
}

int countOf(const ModuleObject* list) {
    return list ? list->cmobjCount() : 0;
}

} // namespace

QString textOf(const ModuleObject* node) {
    const QString none = QStringLiteral("");
    return node ? node->getString(none) : none;
}

QString textOf(ModuleObject* node, const QString& key) {
    return textOf(node ? node->c(key) : nullptr);
}

ModuleObject* below(ModuleObject* node, std::initializer_list<const char*> names) {
    for (const char* name : names)
        node = node ? node->c(QLatin1String(name)) : nullptr;
    return node;
}

QString nameKey() {
    return QStringLiteral("name");
}

QString nameOf(ModuleObject* record) {
    return textOf(record, nameKey());
}

ModuleObject* findRecord(ModuleObject* list, const QString& name, Qt::CaseSensitivity sensitivity) {
    const int count = countOf(list);
    for (int i = 0; i < count; ++i) {
        ModuleObject* record = list->c(i);
        if (isNamed(record, name, sensitivity))
            return record;
    }
    return nullptr;
}

QList<QPointer<ModuleObject>> findRecords(ModuleObject* list, const QString& name, Qt::CaseSensitivity sensitivity) {
    QList<QPointer<ModuleObject>> records;
    const int count = countOf(list);
    for (int i = 0; i < count; ++i) {
        ModuleObject* record = list->c(i);
        if (isNamed(record, name, sensitivity))
            records.append(record);
    }
    return records;
}

std::unique_ptr<ModuleObject> newRecord(ModuleObject* list) {
    return std::make_unique<ModuleObject>(ModuleObject::generateId(list));
}

void copyTemplate(ModuleObject* list, ModuleObject* record) {
    ModuleObject* parent = list ? list->pmobj() : nullptr;
    const ModuleObject* pattern = parent ? parent->cmobj(QStringLiteral("default")) : nullptr;
    if (pattern)
        record->copyFrom(pattern);
}

void appendRecord(QObject* sender, ModuleObject* list, std::unique_ptr<ModuleObject> record) {
    // Whoever hears of the new record may delete it at once.
    const QPointer<ModuleObject> appended(record.get());
    if (!list || !list->insertChild(-1, record.get()))
        return;
    static_cast<void>(record.release());
    if (appended)
        appended->setValue(sender, QVariant());
}

} // namespace kite
