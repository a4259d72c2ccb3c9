#pragma once

#include <QStyledItemDelegate>

class QLineEdit;

namespace pendant {

class TreeModel;

/// Lets a value be typed. A text that does not do stays in the field, and refused() says why.
class ValueDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    ValueDelegate(TreeModel* model, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Writes what was typed; a value that was only looked at is not written.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

signals:
    /// `sentence` is empty when there is no reason to complain any more.
    void refused(const QString& sentence) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TreeModel* m_model;
};

} // namespace pendant
