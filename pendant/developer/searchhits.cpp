#include "searchhits.h"

#include "valuetext.h"

namespace pendant {

void SearchHits::clear() {
    beginResetModel();
    m_hits.clear();
    endResetModel();
}

void SearchHits::append(const QList<TreeSearch::Hit>& hits) {
    if (hits.isEmpty())
        return;
    beginInsertRows(QModelIndex(), m_hits.size(), m_hits.size() + hits.size() - 1);
    m_hits += hits;
    endInsertRows();
}

brisk::ModuleObject* SearchHits::node(int row) const {
    return row >= 0 && row < m_hits.size() ? m_hits.at(row).node.data() : nullptr;
}

int SearchHits::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_hits.size();
}

int SearchHits::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SearchHits::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return QVariant();
    const TreeSearch::Hit& hit = m_hits.at(index.row());
    if (index.column() == KeyColumn)
        return hit.key;
    return hit.node ? valueText(hit.node->value()) : tr("gone");
}

QVariant SearchHits::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == KeyColumn ? tr("Found at") : tr("Value");
}

} // namespace pendant
