#pragma once

#include "style/theme.h"

#include <QStyledItemDelegate>

namespace pendant {

/// Draws the title of a group, or an instruction: icon, title, and its description beneath.
class ProgramPickerDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    ProgramPickerDelegate(const Theme& theme, QObject* parent);

    void setTheme(const Theme& theme) { m_theme = theme; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintGroup(QPainter* painter, const QRect& row, const QString& title) const;
    void paintType(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    Theme m_theme;
};

} // namespace pendant
