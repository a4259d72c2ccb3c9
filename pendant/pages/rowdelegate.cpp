#include "rowdelegate.h"

#include <QPainter>

namespace pendant {

namespace {

const int markWidth = 4;

} // namespace

RowDelegate::RowDelegate(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), m_theme(theme) {}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (index.column() != 0 || !(option.state & QStyle::State_Selected))
        return;
    painter->fillRect(QRect(option.rect.topLeft(), QSize(markWidth, option.rect.height())),
                      m_theme.color(QStringLiteral("accent")));
}

} // namespace pendant
