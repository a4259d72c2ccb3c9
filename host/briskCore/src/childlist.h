#pragma once

#include <QMultiHash>
#include <QStringView>
#include <QVarLengthArray>

namespace brisk {

class ModuleObject;

/// The children of a node in order, found by name. Owns nothing and tells nobody.
class ChildList {
public:
    int count() const { return m_entries.size(); }
    bool isEmpty() const { return m_entries.isEmpty(); }
    ModuleObject* at(int index) const { return m_entries.at(index).node; }
    ModuleObject* find(QStringView name) const;
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
    // The tag of the name beside the pointer lets a search run through the entries without touching the nodes.
    struct Entry {
        uint tag;
        ModuleObject* node;
    };

    static bool matches(const Entry& entry, QStringView name, uint tag);
    ModuleObject* findIndexed(QStringView name) const;
    void buildIndex();

    QVarLengthArray<Entry, 4> m_entries;     // most nodes have no more, and so need no second block of memory
    QMultiHash<uint, ModuleObject*> m_index; // by nameHash(); empty while the children are few
    int m_nextNumber = 0;
};

} // namespace brisk
