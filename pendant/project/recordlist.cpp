#include "recordlist.h"

#include <QStringList>

#include <algorithm>

using brisk::ModuleObject;

namespace pendant {

namespace {

const ModuleObject* recordOf(const ModuleObject* node, const ModuleObject* list) {
    while (node && node->pmobj() != list)
        node = node->pmobj();
    return node;
}

QString nameOf(ModuleObject* record) {
    const ModuleObject* name = record->c(QStringLiteral("name"));
    return name ? name->getString() : QString();
}

// "#2" before "#10".
QStringList inOrder(const QSet<QString>& names) {
    QStringList sorted = names.values();
    std::sort(sorted.begin(), sorted.end(), [](const QString& one, const QString& other) {
        return one.size() == other.size() ? one < other : one.size() < other.size();
    });
    return sorted;
}

} // namespace

RecordList::RecordList(const QString& key, QObject* owner) : QObject(owner), m_owner(owner), m_list(key) {
    connect(&m_list, &FollowedNode::renewed, this, &RecordList::takeUnsure);
    listen(m_list.node());
    m_isUnsure = m_list.node()->cmobjCount() > 0;
}

void RecordList::listen(ModuleObject* list) {
    connect(list, &ModuleObject::touched, this, &RecordList::noteTouched);
    connect(list, &ModuleObject::inserted, this, [this](const ModuleObject* record) {
        m_inserted.insert(record->name());
        m_arrived.insert(record->name());
    });
}

// What became of the records of the list that was there before, nobody knows.
void RecordList::takeUnsure(ModuleObject* list) {
    listen(list);
    m_isUnsure = true;
    emit changed();
}

// A record that came in counts as changed also where the list had one of its name: it may be another.
void RecordList::noteTouched(const ModuleObject* node, const QObject* sender) {
    const ModuleObject* list = m_list.node();
    const QSet<QString> inserted = node == list ? m_inserted : QSet<QString>();
    if (node == list)
        m_inserted.clear();
    if (sender == m_owner)
        return;
    if (const ModuleObject* record = node == list ? nullptr : recordOf(node, list))
        m_changed.insert(record->name());
    m_changed += inserted;
    m_namesMayDiffer = m_namesMayDiffer || node == list;
    emit changed();
}

void RecordList::takeChanges(ModuleObject* target) {
    if (m_namesMayDiffer) {
        const QSet<QString> present = names();
        m_changed += (present - m_told) + (m_told - present);
    }
    for (const QString& name : inOrder(m_changed))
        put(name, target);
    setAllTold();
}

void RecordList::takeAll(ModuleObject* target) {
    m_namesMayDiffer = true;
    for (const QString& name : inOrder(names()))
        put(name, target);
    setAllTold();
}

// A record that came and went in between, the controller never had.
void RecordList::put(const QString& name, ModuleObject* target) const {
    const ModuleObject* record = m_list.node() ? m_list.node()->c(name) : nullptr;
    if (record || m_told.contains(name))
        (new ModuleObject(name, target))->copyFrom(record);
}

void RecordList::setTold(int count) {
    m_told.clear();
    for (int i = 0; i < count; ++i)
        m_told.insert(QLatin1Char('#') + QString::number(i));
    m_changed.clear();
    m_namesMayDiffer = false;
    m_isUnsure = false;
}

void RecordList::setAllTold() {
    m_told = m_namesMayDiffer ? names() : m_told + m_changed;
    m_changed.clear();
    m_namesMayDiffer = false;
    m_isUnsure = false;
}

void RecordList::removeTold(const QString& node) {
    ModuleObject* record = m_list.node() ? m_list.node()->c(node) : nullptr;
    m_told.remove(node);
    if (record)
        m_list.node()->removeChild(record);
}

void RecordList::removeCalled(const QString& name) {
    for (const QString& node : names() - m_arrived) {
        ModuleObject* record = m_list.node() ? m_list.node()->c(node) : nullptr;
        if (record && nameOf(record) == name)
            m_list.node()->removeChild(record);
    }
}

QSet<QString> RecordList::names() const {
    QSet<QString> names;
    const QList<ModuleObject*> records = m_list.node() ? m_list.node()->cmobjs() : QList<ModuleObject*>();
    names.reserve(records.size());
    for (const ModuleObject* record : records)
        names.insert(record->name());
    return names;
}

} // namespace pendant
