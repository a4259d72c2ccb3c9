#include "treeitem.h"

namespace pendant {

void TreeItems::reset(brisk::ModuleObject* root) {
    m_byAddress.clear();
    m_top.children.clear();
    m_top.node = root;
    m_top.fetched = false;
}

TreeItem* TreeItems::find(const brisk::ModuleObject* node) {
    if (node == m_top.node)
        return &m_top;
    TreeItem* item = m_byAddress.value(node);
    // The row may be that of an earlier node at the same address.
    return item && item->node == node ? item : nullptr;
}

void TreeItems::insert(TreeItem* parent, int row, const QList<brisk::ModuleObject*>& nodes) {
    std::vector<std::unique_ptr<TreeItem>> items;
    items.reserve(static_cast<size_t>(nodes.size()));
    for (brisk::ModuleObject* node : nodes) {
        auto item = std::make_unique<TreeItem>();
        item->node = node;
        item->address = node;
        item->parent = parent;
        // Without children there is nothing to wait for: the first one that comes gets its row at once.
        item->fetched = node->cmobjCount() == 0;
        m_byAddress.insert(node, item.get());
        items.push_back(std::move(item));
    }
    parent->children.insert(parent->children.begin() + row, std::make_move_iterator(items.begin()),
                            std::make_move_iterator(items.end()));
    renumber(parent, row);
}

void TreeItems::remove(TreeItem* parent, int first, int last) {
    const auto begin = parent->children.begin();
    for (auto item = begin + first; item != begin + last + 1; ++item)
        forget(item->get());
    parent->children.erase(begin + first, begin + last + 1);
    renumber(parent, first);
}

void TreeItems::forget(TreeItem* item) {
    for (const auto& child : item->children)
        forget(child.get());
    if (m_byAddress.value(item->address) == item)
        m_byAddress.remove(item->address);
}

void TreeItems::renumber(TreeItem* parent, int from) {
    for (int row = from; row < parent->count(); ++row)
        parent->children[static_cast<size_t>(row)]->row = row;
}

} // namespace pendant
