#include "messagefilter.h"

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

MessageFilter::MessageFilter(QObject* parent) : QSortFilterProxyModel(parent) {
    setSourceModel(MessageList::instance());
    sort(0, Qt::DescendingOrder);
}

void MessageFilter::setLowest(MessageLevel level) {
    m_lowest = level;
    invalidateFilter();
}

bool MessageFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    return index.data(MessageList::LevelRole).toInt() >= static_cast<int>(m_lowest);
}

bool MessageFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    return left.row() < right.row();
}

} // namespace pendant
