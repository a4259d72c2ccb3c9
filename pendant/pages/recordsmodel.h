#pragma once

#include "project/followednode.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QString>
#include <QTimer>
#include <QVector>

namespace pendant {

/// A list of records in the data tree as a table, a row for each. It follows the tree while it is active: what is
/// written is shown when control is back in the event loop.
class RecordsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Of any cell of a row: the name of the record's node, "#0".
    static const int NodeRole = Qt::UserRole + 1;

    explicit RecordsModel(const QString& key, QObject* parent = nullptr);

    /// Whether somebody looks. Nothing is read while nobody does.
    void setActive(bool active);
    /// Reads the list again, when control is back in the event loop.
    void refreshSoon();
    /// Null when it is gone.
    brisk::ModuleObject* record(const QString& node) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// The list was read again: any record may have changed.
    void refreshed();

protected:
    /// What a column shows of a record.
    virtual QString text(brisk::ModuleObject* record, int column) const = 0;
    virtual QString heading(int column) const = 0;

private:
    void listen(brisk::ModuleObject* list);
    void refresh();
    void takeNodes(const QVector<QString>& nodes);
    void removeAllBut(const QSet<QString>& kept);
    bool insertMissing(const QVector<QString>& nodes);
    void startAnew(const QVector<QString>& nodes);

    FollowedNode m_list;
    QVector<QString> m_nodes; // the names of the records, as the table has them
    QTimer m_timer;
    bool m_isActive = false;
};

} // namespace pendant
