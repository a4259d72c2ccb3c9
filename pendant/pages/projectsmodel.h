#pragma once

#include "project/followednode.h"
#include "project/workspace.h"

#include <QAbstractTableModel>
#include <QString>
#include <QTimer>
#include <QVector>

namespace pendant {

/// The projects of the robot as a table, a row for each in the order of the bus. It is read while it is active: at
/// first, when "orca.project.refresh_project" is triggered, another project is opened or the bus comes up. With the bus
/// down the last rows stay.
class ProjectsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, State, Created, Description, ColumnCount };

    explicit ProjectsModel(QObject* parent = nullptr);

    /// Whether somebody looks. Nothing is read while nobody does.
    void setActive(bool active);

    QString name(int row) const { return m_rows.value(row).name; }
    /// -1 when there is none.
    int rowOf(const QString& name) const;
    /// Whether it is the project in the data tree.
    static bool isOpen(const QString& name);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// The list was read again.
    void refreshed();

private:
    struct Row {
        QString name;
        Workspace::Info info;
    };

    void listen(brisk::ModuleObject* node);
    void refreshSoon();
    void refresh();
    QVector<Row> read();
    QString text(const Row& row, int column) const;

    FollowedNode m_refresh;
    FollowedNode m_open;
    QVector<Row> m_rows;
    QTimer m_timer;
    bool m_isActive = false;
};

} // namespace pendant
