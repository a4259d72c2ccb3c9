#pragma once

#include "style/theme.h"

#include <QHash>
#include <QPixmap>
#include <QStyledItemDelegate>

namespace pendant {

class LineTypes;

/// Draws a line of a program: its number, the icon of its type, the line, and beneath it what kind of line it is.
/// Only lines that are drawn are looked at.
class ProgramDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static const int rowHeight = 56;

    /// \param types outlives the delegate
    ProgramDelegate(const LineTypes* types, const Theme& theme, QObject* parent);

    void setTheme(const Theme& theme);
    /// After the types were read again.
    void forgetIcons() { m_icons.clear(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintGround(QPainter* painter, const QStyleOptionViewItem& option) const;
    void paintWords(QPainter* painter, const QStyleOptionViewItem& option, const QString& line,
                    const QString& type) const;
    const QPixmap& iconOf(const QString& type) const;

    const LineTypes* m_types;
    Theme m_theme;
    mutable QHash<QString, QPixmap> m_icons;
};

} // namespace pendant
