#include "treemodel.h"

#include <QHash>

namespace pendant {

TreeModel::TreeModel(QObject* parent) : QAbstractItemModel(parent) {
    setObjectName(QStringLiteral("developer dock"));
    m_flush.setInterval(repaintMs);
    m_flush.setSingleShot(true);
    connect(&m_flush, &QTimer::timeout, this, &TreeModel::flush);
}

TreeModel::~TreeModel() = default;

void TreeModel::follow(brisk::ModuleObject* root) {
    beginResetModel();
    if (m_items.top()->node)
        m_items.top()->node->disconnect(this);
    m_flush.stop();
    m_dirty.clear();
    m_touches.clear();
    m_items.reset(root);
    if (root) {
        m_items.insert(m_items.top(), 0, root->cmobjs());
        m_items.top()->fetched = true;
        connect(root, &brisk::ModuleObject::touched, this, &TreeModel::touched);
    }
    endResetModel();
}

QModelIndex TreeModel::reveal(const brisk::ModuleObject* node) {
    QList<const brisk::ModuleObject*> way;
    const brisk::ModuleObject* at = node;
    for (; at && at != m_items.top()->node; at = at->pmobj())
        way.prepend(at);
    if (!at)
        return QModelIndex();
    TreeItem* item = m_items.top();
    for (const brisk::ModuleObject* step : qAsConst(way)) {
        sync(item);
        item = m_items.find(step);
        if (!item)
            return QModelIndex();
    }
    return indexOf(item);
}

void TreeModel::touched(brisk::ModuleObject* node, QObject* sender) {
    m_touches.record(node, sender);
    if (TreeItem* item = m_items.find(node))
        markDirty(item);
}

void TreeModel::markDirty(TreeItem* item) const {
    m_dirty.insert(item->address);
    if (!m_flush.isActive())
        m_flush.start();
}

void TreeModel::flush() {
    const QSet<const void*> dirty = m_dirty;
    m_dirty.clear();
    for (const void* address : dirty) {
        if (TreeItem* item = address ? m_items.findAt(address) : m_items.top())
            refresh(item);
    }
    repaint(dirty);
}

// One signal for the rows of a parent and not one each: a view looks for every row that it is told of.
void TreeModel::repaint(const QSet<const void*>& dirty) {
    QHash<TreeItem*, QPair<int, int>> rows;
    for (const void* address : dirty) {
        const TreeItem* item = m_items.findAt(address);
        if (!item)
            continue;
        auto range = rows.find(item->parent);
        if (range == rows.end())
            range = rows.insert(item->parent, {item->row, item->row});
        *range = {qMin(range->first, item->row), qMax(range->second, item->row)};
    }
    for (auto range = rows.constBegin(); range != rows.constEnd(); ++range) {
        const auto& children = range.key()->children;
        emit dataChanged(indexOf(children[static_cast<size_t>(range->first)].get(), NameColumn),
                         indexOf(children[static_cast<size_t>(range->second)].get(), WhenColumn));
    }
}

void TreeModel::refresh(TreeItem* item) {
    if (item->fetched) {
        sync(item);
        // An import renumbers the items of a list.
        if (item->count() > 0)
            emit dataChanged(indexOf(item->children.front().get()), indexOf(item->children.back().get()));
        return;
    }
    if (item->nodeCount() > 0)
        return;
    // A view does not ask a second time whether a row that it never opened has children.
    emit layoutAboutToBeChanged();
    item->fetched = true;
    emit layoutChanged();
}

void TreeModel::sync(TreeItem* item) {
    item->fetched = true;
    const QList<brisk::ModuleObject*> nodes = item->node ? item->node->cmobjs() : QList<brisk::ModuleObject*>();
    if (item->count() > 0)
        removeGone(item, nodes);
    insertNew(item, nodes);
}

// The nodes that stay keep their order, for no operation of the tree changes it.
void TreeModel::removeGone(TreeItem* item, const QList<brisk::ModuleObject*>& nodes) {
    const QSet<brisk::ModuleObject*> living(nodes.begin(), nodes.end());
    const auto stays = [&](int row) {
        const auto& node = item->children[static_cast<size_t>(row)]->node;
        return node && living.contains(node);
    };
    for (int last = item->count() - 1; last >= 0; --last) {
        if (stays(last))
            continue;
        int first = last;
        while (first > 0 && !stays(first - 1))
            --first;
        remove(item, first, last);
        last = first;
    }
}

void TreeModel::insertNew(TreeItem* item, const QList<brisk::ModuleObject*>& nodes) {
    int row = 0;
    while (row < nodes.size()) {
        const brisk::ModuleObject* next =
            row < item->count() ? item->children[static_cast<size_t>(row)]->node.data() : nullptr;
        const int end = next ? nodes.indexOf(const_cast<brisk::ModuleObject*>(next), row) : nodes.size();
        if (end > row) {
            beginInsertRows(indexOf(item), row, end - 1);
            m_items.insert(item, row, nodes.mid(row, end - row));
            endInsertRows();
        }
        row = end + 1;
    }
}

void TreeModel::remove(TreeItem* item, int first, int last) {
    beginRemoveRows(indexOf(item), first, last);
    m_items.remove(item, first, last);
    endRemoveRows();
}

} // namespace pendant
