#pragma once

#include "treesearch.h"

#include <QAbstractTableModel>

namespace pendant {

/// What a search has found, for a view: key and value.
class SearchHits : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { KeyColumn, ValueColumn, ColumnCount };

    explicit SearchHits(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    void clear();
    void append(const QList<TreeSearch::Hit>& hits);
    /// Null when the node is gone.
    brisk::ModuleObject* node(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<TreeSearch::Hit> m_hits;
};

} // namespace pendant
