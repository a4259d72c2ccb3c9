#include "iodelegate.h"

#include "iosignalsmodel.h"
#include "style/icons.h"

#include <QPainter>

namespace pendant {

namespace {

const int markWidth = 4;
const int margin = 16;
const int lampSize = 18;
const int nameLeft = margin + lampSize + 14;
const int headingHeight = 40;
const int rowHeight = 56;
const int valueWidth = 136;
const int forcedIcon = 20;
const int forcedHeight = 32;

QFont sized(QFont font, int pixels, bool bold) {
    font.setPixelSize(pixels);
    font.setWeight(bold ? QFont::DemiBold : QFont::Normal);
    return font;
}

// Its digits are of one width.
QFont valueFont() {
    return sized(QFont(QStringLiteral("DejaVu Sans")), 16, true);
}

} // namespace

IoDelegate::IoDelegate(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), m_theme(theme) {}

QString IoDelegate::forcedText() {
    return tr("Forced");
}

void IoDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index.data(IoSignalsModel::HeadingRole).toBool())
        paintHeading(painter, option.rect, index);
    else
        paintSignal(painter, option, index);
    painter->restore();
}

void IoDelegate::paintHeading(QPainter* painter, const QRect& row, const QModelIndex& index) const {
    painter->fillRect(row, m_theme.color(QStringLiteral("panel")));
    painter->setPen(m_theme.color(QStringLiteral("textDim")));
    painter->setFont(sized(painter->font(), 13, true));
    const QRect text = row.adjusted(margin, 0, -margin, 0);
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
    painter->drawText(text, Qt::AlignRight | Qt::AlignVCenter, index.data(IoSignalsModel::ValueRole).toString());
}

void IoDelegate::paintSignal(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QRect row = option.rect;
    const bool isSelected = option.state & QStyle::State_Selected;
    if (isSelected) {
        painter->fillRect(row, m_theme.color(QStringLiteral("accentSoft")));
        painter->fillRect(QRect(row.topLeft(), QSize(markWidth, row.height())),
                          m_theme.color(QStringLiteral("accent")));
    }
    const QVariant on = index.data(IoSignalsModel::OnRole);
    if (on.isValid())
        paintLamp(painter, row, on.toBool());
    const QColor ink = m_theme.color(isSelected ? QStringLiteral("onAccentSoft") : QStringLiteral("text"));
    painter->setPen(ink);
    painter->setFont(on.isValid() ? sized(option.font, 16, true) : valueFont());
    painter->drawText(row.adjusted(0, 0, -margin, 0), Qt::AlignRight | Qt::AlignVCenter,
                      index.data(IoSignalsModel::ValueRole).toString());
    int right = row.right() - margin - valueWidth;
    if (index.data(IoSignalsModel::ForcedRole).toBool())
        right = paintForced(painter, option, right);
    painter->setPen(ink);
    painter->setFont(option.font);
    const QRect name(row.left() + nameLeft, row.top(), right - row.left() - nameLeft, row.height());
    painter->drawText(name, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, name.width()));
    painter->setPen(m_theme.color(QStringLiteral("divider")));
    painter->drawLine(row.bottomLeft(), row.bottomRight());
}

// Full or hollow: the colour alone would not do.
void IoDelegate::paintLamp(QPainter* painter, const QRect& row, bool isOn) const {
    const QColor ink = m_theme.color(isOn ? QStringLiteral("good") : QStringLiteral("outline"));
    QRectF lamp(row.left() + margin, row.center().y() - lampSize / 2.0, lampSize, lampSize);
    painter->setPen(QPen(ink, 2));
    painter->setBrush(isOn ? QBrush(ink) : QBrush(Qt::NoBrush));
    painter->drawEllipse(lamp.adjusted(1, 1, -1, -1));
    painter->setBrush(Qt::NoBrush);
}

// Where the room for the name ends.
int IoDelegate::paintForced(QPainter* painter, const QStyleOptionViewItem& option, int right) const {
    const QColor ink = m_theme.color(QStringLiteral("warning"));
    painter->setFont(sized(option.font, 13, true));
    const int textWidth = painter->fontMetrics().horizontalAdvance(forcedText());
    const int width = 8 + forcedIcon + 6 + textWidth + 10;
    const QRect badge(right - width, option.rect.center().y() - forcedHeight / 2, width, forcedHeight);
    painter->setPen(QPen(ink, 1.5));
    painter->drawRoundedRect(badge, 6, 6);
    painter->drawPixmap(badge.left() + 8, badge.center().y() - forcedIcon / 2 + 1,
                        linePixmap(QStringLiteral("forced"), ink, forcedIcon));
    painter->drawText(badge.adjusted(8 + forcedIcon + 6, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, forcedText());
    return badge.left() - 8;
}

QSize IoDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return {0, index.data(IoSignalsModel::HeadingRole).toBool() ? headingHeight : rowHeight};
}

} // namespace pendant
