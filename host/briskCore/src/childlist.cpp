#include "childlist.h"

#include "brisk/moduleobject.h"
#include "names.h"

namespace {

constexpr int indexAbove = 16;

} // namespace

namespace brisk {

bool ChildList::matches(const Entry& entry, QStringView name, uint tag) {
    return entry.tag == tag && sameName(entry.node->m_name, name);
}

ModuleObject* ChildList::find(QStringView name) const {
    if (!m_index.isEmpty())
        return findIndexed(name);
    const uint tag = nameTag(name);
    for (const Entry& entry : m_entries) {
        if (matches(entry, name, tag))
            return entry.node;
    }
    return nullptr;
}

ModuleObject* ChildList::findIndexed(QStringView name) const {
    // An item mostly stands at the place its name says.
    const int number = itemNumber(name);
    if (number >= 0 && number < count() && matches(m_entries.at(number), name, nameTag(name)))
        return at(number);
    const uint hash = nameHash(name);
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
    m_entries.reserve(count);
    if (count > indexAbove)
        m_index.reserve(count);
}

void ChildList::insert(int index, ModuleObject* node) {
    // insert() alone would move all of them for each new one.
    if (count() == m_entries.capacity())
        m_entries.reserve(2 * count());
    m_entries.insert(index, Entry{nameTag(node->m_name), node});
    if (!m_index.isEmpty())
        m_index.insert(nameHash(node->m_name), node);
    else if (count() > indexAbove)
        buildIndex();
    m_nextNumber = qMax(m_nextNumber, itemNumber(node->m_name) + 1);
}

void ChildList::removeAt(int index) {
    if (!m_index.isEmpty())
        m_index.remove(nameHash(at(index)->m_name), at(index));
    m_entries.remove(index);
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
        m_entries[i].tag = nameTag(name);
    }
    m_nextNumber = count();
    m_index.clear();
    if (count() > indexAbove)
        buildIndex();
}

void ChildList::buildIndex() {
    m_index.reserve(count());
    for (const Entry& entry : m_entries)
        m_index.insert(nameHash(entry.node->m_name), entry.node);
}

} // namespace brisk
