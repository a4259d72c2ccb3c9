#pragma once

#include "style/theme.h"

#include <QStyledItemDelegate>

namespace pendant {

/// Draws the rows of IoSignalsModel: headings, and signals with a lamp, the name, a mark when they are forced, and the
/// value.
class IoDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    IoDelegate(const Theme& theme, QObject* parent);

    void setTheme(const Theme& theme) { m_theme = theme; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    static QString forcedText();

private:
    void paintHeading(QPainter* painter, const QRect& row, const QModelIndex& index) const;
    void paintSignal(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintLamp(QPainter* painter, const QRect& row, bool isOn) const;
    int paintForced(QPainter* painter, const QStyleOptionViewItem& option, int right) const;

    Theme m_theme;
};

} // namespace pendant
