#pragma once

#include "brisk/moduleobject.h"

#include <QHash>
#include <QPointer>

#include <memory>
#include <vector>

namespace pendant {

/// One row of the tree. It may outlive its node.
struct TreeItem {
    QPointer<brisk::ModuleObject> node;
    const void* address = nullptr; ///< of the node, also of one that is gone
    TreeItem* parent = nullptr;
    int row = 0;
    bool fetched = false; ///< the children have rows
    std::vector<std::unique_ptr<TreeItem>> children;

    int count() const { return static_cast<int>(children.size()); }
    int nodeCount() const { return node ? node->cmobjCount() : 0; }
};

/// The rows of the tree, found by their nodes. Tells nobody of changes.
class TreeItems {
public:
    /// Stands for `root` and has no row itself.
    TreeItem* top() { return &m_top; }
    const TreeItem* top() const { return &m_top; }
    void reset(brisk::ModuleObject* root);

    /// Null when the node has no row.
    TreeItem* find(const brisk::ModuleObject* node);
    /// The row made for the node that is, or was, at `address`; null when there is none.
    TreeItem* findAt(const void* address) const { return m_byAddress.value(address); }
    void insert(TreeItem* parent, int row, const QList<brisk::ModuleObject*>& nodes);
    void remove(TreeItem* parent, int first, int last);

private:
    void forget(TreeItem* item);
    static void renumber(TreeItem* parent, int from);

    TreeItem m_top;
    QHash<const void*, TreeItem*> m_byAddress;
};

} // namespace pendant
