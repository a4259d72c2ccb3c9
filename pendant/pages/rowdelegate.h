#pragma once

#include "style/theme.h"

#include <QStyledItemDelegate>

namespace pendant {

/// Draws the cells of a table and, at the side of a selected row, a mark that does not depend on its colour.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    RowDelegate(const Theme& theme, QObject* parent);

    void setTheme(const Theme& theme) { m_theme = theme; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    Theme m_theme;
};

} // namespace pendant
