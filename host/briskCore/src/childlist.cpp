#include "childlist.h"

#include "brisk/moduleobject.h"
#include "names.h"

namespace {

constexpr int indexAbove = 16;

} // namespace

namespace brisk {

ModuleObject* ChildList::find(QStringView name, uint hash) const {
    if (!m_index.isEmpty())
        return findIndexed(name, hash);
    for (const Entry& entry : m_entries) {
        if (entry.hash == hash && sameName(entry.node->m_name, name))
            return entry.node;
    }
    return nullptr;
}

ModuleObject* ChildList::findIndexed(QStringView name, uint hash) const {
    const auto end = m_index.constEnd();
    for (auto entry = m_index.constFind(hash); entry != end && entry.key() == hash; ++entry) {
        if (sameName(entry.value()->m_name, name))
            return entry.value();
    }
    return nullptr;
}

// From the end, so that lists which are emptied from the end stay cheap. Compares addresses only: what is asked for may
// be no node any more.
int ChildList::indexOf(const ModuleObject* node) const {
    for (int i = count() - 1; i >= 0; --i) {
        if (at(i) == node)
            return i;
    }
    return -1;
}

void ChildList::reserve(int count) {
    m_entries.reserve(size_t(count));
    if (count > indexAbove)
        m_index.reserve(count);
}

void ChildList::insert(int index, ModuleObject* node) {
    const uint hash = nameHash(node->m_name);
    m_entries.insert(m_entries.begin() + index, Entry{hash, node});
    if (!m_index.isEmpty())
        m_index.insert(hash, node);
    else if (count() > indexAbove)
        buildIndex();
    m_nextNumber = qMax(m_nextNumber, itemNumber(node->m_name) + 1);
}

void ChildList::removeAt(int index) {
    const auto entry = m_entries.begin() + index;
    if (!m_index.isEmpty())
        m_index.remove(entry->hash, entry->node);
    m_entries.erase(entry);
}

ModuleObject* ChildList::takeLast() {
    ModuleObject* node = m_entries.back().node;
    removeAt(count() - 1);
    return node;
}

void ChildList::renumber() {
    for (int i = 0; i < count(); ++i) {
        ModuleObject* node = at(i);
        const QString name = itemName(i);
        if (node->m_name == name)
            continue;
        node->m_name = sharedName(name);
        m_entries[size_t(i)].hash = nameHash(name);
    }
    m_nextNumber = count();
    m_index.clear();
    if (count() > indexAbove)
        buildIndex();
}

void ChildList::buildIndex() {
    m_index.reserve(count());
    for (const Entry& entry : m_entries)
        m_index.insert(entry.hash, entry.node);
}

} // namespace brisk
