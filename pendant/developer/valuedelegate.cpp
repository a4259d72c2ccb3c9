#include "valuedelegate.h"

#include "treemodel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPersistentModelIndex>

namespace pendant {

namespace {

const char indexProperty[] = "treeIndex";

bool wouldCommit(const QEvent* event) {
    if (event->type() == QEvent::FocusOut)
        return true;
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

ValueDelegate::ValueDelegate(TreeModel* model, QObject* parent) : QStyledItemDelegate(parent), m_model(model) {}

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QStringLiteral("valueEdit"));
    edit->setFrame(false);
    edit->setProperty(indexProperty, QVariant::fromValue(QPersistentModelIndex(index)));
    connect(edit, &QLineEdit::textEdited, this, [this] { emit refused(QString()); });
    connect(edit, &QObject::destroyed, this, [this] { emit refused(QString()); });
    return edit;
}

// The value may change while one types; what was typed stays.
void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit || edit->isModified())
        return;
    edit->setText(index.data(Qt::EditRole).toString());
    edit->selectAll();
}

void ValueDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    const auto* edit = qobject_cast<QLineEdit*>(editor);
    if (edit && edit->isModified())
        model->setData(index, edit->text(), Qt::EditRole);
}

bool ValueDelegate::eventFilter(QObject* watched, QEvent* event) {
    const auto* edit = qobject_cast<QLineEdit*>(watched);
    if (!edit || !wouldCommit(event))
        return QStyledItemDelegate::eventFilter(watched, event);
    const QModelIndex index = edit->property(indexProperty).value<QPersistentModelIndex>();
    const QString refusal = edit->isModified() && index.isValid() ? m_model->refusal(index, edit->text()) : QString();
    if (refusal.isEmpty())
        return QStyledItemDelegate::eventFilter(watched, event);
    emit refused(refusal);
    // A key stays here; the line edit itself must still see that it lost the focus.
    return event->type() == QEvent::KeyPress;
}

} // namespace pendant
