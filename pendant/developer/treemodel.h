#pragma once

#include "touchlog.h"
#include "treeitem.h"

#include "brisk/moduleobject.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QSet>
#include <QTimer>

namespace pendant {

/// The data tree for a view: name, value, who wrote last and when.
///
/// Children get rows when they are asked for. While it follows a tree the model listens to touched() of its root and to
/// nothing else, and repaints what has changed at most ten times a second; what is written without notice shows when it
/// is painted anew. Nodes may go at any time.
class TreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, WhoColumn, WhenColumn, ColumnCount };
    static const int repaintMs = 100;

    explicit TreeModel(QObject* parent = nullptr);
    ~TreeModel() override;

    /// Follows the tree of `root`, which gets no row; with null it follows none and knows nothing any more.
    void follow(brisk::ModuleObject* root);
    /// Of what is there less for reading than for knowing that there is something: counts, nobody.
    void setDimColor(const QColor& color) { m_dim = color; }

    /// Null for an invalid index and for a row whose node is gone.
    brisk::ModuleObject* node(const QModelIndex& index) const;
    /// The row of `node`; rows on the way to it are made. Invalid when it is not below the root.
    QModelIndex reveal(const brisk::ModuleObject* node);
    /// Why `text` cannot be the node's value, a sentence; empty when it can.
    QString refusal(const QModelIndex& index, const QString& text) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    TreeItem* item(const QModelIndex& index) const;
    QModelIndex indexOf(const TreeItem* item, int column = NameColumn) const;
    QString text(brisk::ModuleObject* node, int column) const;
    bool isDim(brisk::ModuleObject* node, int column) const;

    void touched(brisk::ModuleObject* node, QObject* sender);
    void markDirty(TreeItem* item) const;
    void flush();
    void repaint(const QSet<const void*>& dirty);
    void refresh(TreeItem* item);
    void sync(TreeItem* item);
    void removeGone(TreeItem* item, const QList<brisk::ModuleObject*>& nodes);
    void insertNew(TreeItem* item, const QList<brisk::ModuleObject*>& nodes);
    void remove(TreeItem* item, int first, int last);

    mutable TreeItems m_items;
    TouchLog m_touches;
    mutable QSet<const void*> m_dirty; ///< addresses of nodes with rows, null for the root's
    mutable QTimer m_flush;
    QColor m_dim;
};

} // namespace pendant
