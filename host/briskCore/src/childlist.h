#pragma once

#include <QMultiHash>
#include <QStringView>

#include <vector>

namespace brisk {

class ModuleObject;

/// The children of a node in order, found by name. Owns nothing and tells nobody.
class ChildList {
public:
    int count() const { return int(m_entries.size()); }
    bool isEmpty() const { return m_entries.empty(); }
    ModuleObject* at(int index) const { return m_entries[size_t(index)].node; }
    ModuleObject* find(QStringView name, uint hash) const;
    int indexOf(const ModuleObject* node) const;

    void reserve(int count);
    void insert(int index, ModuleObject* node);
    void removeAt(int index);
    ModuleObject* takeLast();
    /// Gives the nodes the names "#0", "#1", ... in order.
    void renumber();

    /// The number for the next item; above that of every item that was ever inserted.
    int nextNumber() const { return m_nextNumber; }
    void setNextNumber(int number) { m_nextNumber = number; }

private:
    // The hash beside the pointer lets a search run through the entries without touching the nodes.
    struct Entry {
        uint hash;
        ModuleObject* node;
    };

    ModuleObject* findIndexed(QStringView name, uint hash) const;
    void buildIndex();

    std::vector<Entry> m_entries;
    QMultiHash<uint, ModuleObject*> m_index; // empty while the children are few
    int m_nextNumber = 0;
};

} // namespace brisk
