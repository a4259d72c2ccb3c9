#include "controller/project/recordlist.h"

namespace controller {

namespace {

QString nodeName(int number) {
    return QStringLiteral("#%1").arg(number);
}

} // namespace

void RecordList::put(const QString& node, const Content& record) {
    if (!record) {
        if (m_records.remove(node) > 0)
            m_nodes.removeOne(node);
        return;
    }
    if (!m_records.contains(node))
        m_nodes << node;
    m_records.insert(node, record);
}

void RecordList::append(const Content& record) {
    int number = size();
    while (m_records.contains(nodeName(number)))
        ++number;
    put(nodeName(number), record);
}

void RecordList::clear() {
    m_nodes.clear();
    m_records.clear();
}

Content RecordList::content() const {
    const Content list = copied(nullptr);
    list->setList(nullptr, {}, false);
    for (const QString& node : m_nodes)
        list->append(nullptr, node)->copyFrom(m_records.value(node).get());
    return list;
}

QString textAt(const Content& record, const QString& path) {
    const brisk::ModuleObject* node = record ? record->r(path) : nullptr;
    return node ? node->getString() : QString();
}

} // namespace controller
