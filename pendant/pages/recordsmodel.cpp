#include "recordsmodel.h"

using brisk::ModuleObject;

namespace pendant {

namespace {

QVector<QString> namesIn(const ModuleObject* list) {
    QVector<QString> names;
    const QList<ModuleObject*> records = list ? list->cmobjs() : QList<ModuleObject*>();
    names.reserve(records.size());
    for (const ModuleObject* record : records)
        names << record->name();
    return names;
}

QSet<QString> setOf(const QVector<QString>& names) {
    QSet<QString> set;
    set.reserve(names.size());
    for (const QString& name : names)
        set.insert(name);
    return set;
}

} // namespace

RecordsModel::RecordsModel(const QString& key, QObject* parent) : QAbstractTableModel(parent), m_list(key) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &RecordsModel::refresh);
    connect(&m_list, &FollowedNode::renewed, this, &RecordsModel::listen);
    listen(m_list.node());
}

void RecordsModel::listen(ModuleObject* list) {
    connect(list, &ModuleObject::touched, this, &RecordsModel::refreshSoon);
    refreshSoon();
}

void RecordsModel::setActive(bool active) {
    m_isActive = active;
    if (active)
        refresh();
}

void RecordsModel::refreshSoon() {
    if (m_isActive && !m_timer.isActive())
        m_timer.start();
}

void RecordsModel::refresh() {
    takeNodes(namesIn(m_list.node()));
    if (!m_nodes.isEmpty())
        emit dataChanged(index(0, 0), index(m_nodes.size() - 1, columnCount() - 1), {Qt::DisplayRole});
    emit refreshed();
}

// Rows that stay are not touched, and with them selection and scroll position.
void RecordsModel::takeNodes(const QVector<QString>& nodes) {
    if (nodes == m_nodes)
        return;
    removeAllBut(setOf(nodes));
    if (!insertMissing(nodes))
        startAnew(nodes);
}

void RecordsModel::removeAllBut(const QSet<QString>& kept) {
    for (int end = m_nodes.size(); end > 0; --end) {
        int first = end;
        while (first > 0 && !kept.contains(m_nodes.at(first - 1)))
            --first;
        if (first == end)
            continue;
        beginRemoveRows(QModelIndex(), first, end - 1);
        m_nodes.remove(first, end - first);
        endRemoveRows();
        end = first;
    }
}

// False when those that are there stand in another order.
bool RecordsModel::insertMissing(const QVector<QString>& nodes) {
    const QSet<QString> present = setOf(m_nodes);
    for (int row = 0; row < nodes.size(); ++row) {
        int end = row;
        while (end < nodes.size() && !present.contains(nodes.at(end)))
            ++end;
        if (end > row) {
            beginInsertRows(QModelIndex(), row, end - 1);
            m_nodes = m_nodes.mid(0, row) + nodes.mid(row, end - row) + m_nodes.mid(row);
            endInsertRows();
        }
        if (end < nodes.size() && m_nodes.at(end) != nodes.at(end))
            return false;
        row = end;
    }
    return true;
}

void RecordsModel::startAnew(const QVector<QString>& nodes) {
    beginResetModel();
    m_nodes = nodes;
    endResetModel();
}

ModuleObject* RecordsModel::record(const QString& node) const {
    return m_list.node() ? m_list.node()->c(node) : nullptr;
}

int RecordsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_nodes.size();
}

// The tree may be ahead of the table: a record that is gone is shown empty for a moment.
QVariant RecordsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return QVariant();
    const QString node = m_nodes.at(index.row());
    if (role == NodeRole)
        return node;
    const bool isShown = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    ModuleObject* of = isShown ? record(node) : nullptr;
    return of ? text(of, index.column()) : QVariant();
}

QVariant RecordsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? heading(section) : QVariant();
}

} // namespace pendant
