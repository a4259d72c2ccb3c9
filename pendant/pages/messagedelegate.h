#pragma once

#include "style/theme.h"

#include <QStyledItemDelegate>

namespace pendant {

/// Draws a message: level with icon and word, time, plugin, and the whole text beneath.
class MessageDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    MessageDelegate(const Theme& theme, QObject* parent);

    void setTheme(const Theme& theme) { m_theme = theme; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    Theme m_theme;
};

} // namespace pendant
