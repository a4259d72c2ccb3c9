#include "treemodel.h"

#include "valuetext.h"

#include <QDateTime>

namespace pendant {

namespace {

QString childCount(const brisk::ModuleObject* node) {
    const QString form = node->isList() ? QStringLiteral("[%1]") : QStringLiteral("{%1}");
    return form.arg(node->cmobjCount());
}

bool isLeaf(const brisk::ModuleObject* node) {
    return node->cmobjCount() == 0 && !node->isList();
}

} // namespace

brisk::ModuleObject* TreeModel::node(const QModelIndex& index) const {
    return index.isValid() ? item(index)->node.data() : nullptr;
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, item(parent)->children[static_cast<size_t>(row)].get());
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOf(item(index)->parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : item(parent)->count();
}

int TreeModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

bool TreeModel::hasChildren(const QModelIndex& parent) const {
    if (parent.column() > 0)
        return false;
    const TreeItem* at = item(parent);
    return at->fetched ? at->count() > 0 : at->nodeCount() > 0;
}

bool TreeModel::canFetchMore(const QModelIndex& parent) const {
    const TreeItem* at = item(parent);
    return parent.column() <= 0 && !at->fetched && at->nodeCount() > 0;
}

void TreeModel::fetchMore(const QModelIndex& parent) {
    if (canFetchMore(parent))
        sync(item(parent));
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return QVariant();
    TreeItem* at = item(index);
    brisk::ModuleObject* node = at->node;
    // Children that came or went without a word are noticed here at the latest.
    if (!node)
        markDirty(at->parent);
    else if (at->fetched && at->nodeCount() != at->count())
        markDirty(at);
    if (!node)
        return QVariant();
    if (role == Qt::DisplayRole)
        return text(node, index.column());
    if (role == Qt::EditRole)
        return index.column() == ValueColumn ? editText(node->value()) : text(node, index.column());
    if (role == Qt::ForegroundRole && isDim(node, index.column()))
        return m_dim;
    return QVariant();
}

QString TreeModel::text(brisk::ModuleObject* node, int column) const {
    if (column == NameColumn)
        return node->name();
    if (column == ValueColumn) {
        const QString own = valueText(node->value());
        return own.isEmpty() && !isLeaf(node) ? childCount(node) : own;
    }
    const TouchLog::Touch* touch = m_touches.find(node);
    if (!touch)
        return QString();
    return column == WhoColumn ? touch->who
                               : QDateTime::fromMSecsSinceEpoch(touch->whenMs).toString(QStringLiteral("HH:mm:ss.zzz"));
}

bool TreeModel::isDim(brisk::ModuleObject* node, int column) const {
    return m_dim.isValid() && (column == WhenColumn || (column == ValueColumn && !node->value().isValid()));
}

QString TreeModel::refusal(const QModelIndex& index, const QString& text) const {
    const brisk::ModuleObject* at = node(index);
    if (!at)
        return tr("The node is gone.");
    return ValueReader::read(text, at->value()).refusal;
}

bool TreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    brisk::ModuleObject* at = node(index);
    if (!at || role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const ValueReader::Result result = ValueReader::read(value.toString(), at->value());
    if (!result.refusal.isEmpty())
        return false;
    at->setValue(this, result.value);
    return true;
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    const brisk::ModuleObject* at = node(index);
    return at && index.column() == ValueColumn && isLeaf(at) ? flags | Qt::ItemIsEditable : flags;
}

QVariant TreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Name");
    case ValueColumn:
        return tr("Value");
    case WhoColumn:
        return tr("Changed by");
    case WhenColumn:
        return tr("Changed at");
    default:
        return QVariant();
    }
}

TreeItem* TreeModel::item(const QModelIndex& index) const {
    return index.isValid() ? static_cast<TreeItem*>(index.internalPointer()) : m_items.top();
}

QModelIndex TreeModel::indexOf(const TreeItem* item, int column) const {
    return item == m_items.top() ? QModelIndex() : createIndex(item->row, column, const_cast<TreeItem*>(item));
}

} // namespace pendant
