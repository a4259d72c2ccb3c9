#include "programpickerdelegate.h"

#include "programpickermodel.h"
#include "style/icons.h"

#include <QPainter>

namespace pendant {

namespace {

const int typeHeight = 64;
const int groupHeight = 40;
const int margin = 12;
const int textLeft = margin + 24 + margin;

bool isGroup(const QModelIndex& index) {
    return index.data(ProgramPickerModel::TypeRole).toString().isEmpty();
}

QFont captionFont(const QFont& body, bool bold) {
    QFont font = body;
    font.setPixelSize(13);
    font.setBold(bold);
    return font;
}

void drawElided(QPainter* painter, const QRect& where, const QString& text) {
    const QString shown = painter->fontMetrics().elidedText(text, Qt::ElideRight, where.width());
    painter->drawText(where, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace

ProgramPickerDelegate::ProgramPickerDelegate(const Theme& theme, QObject* parent)
    : QStyledItemDelegate(parent), m_theme(theme) {}

void ProgramPickerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
    painter->save();
    if (isGroup(index)) {
        painter->setFont(captionFont(option.font, true));
        paintGroup(painter, option.rect, index.data().toString());
    } else {
        paintType(painter, option, index);
    }
    painter->restore();
}

void ProgramPickerDelegate::paintGroup(QPainter* painter, const QRect& row, const QString& title) const {
    painter->fillRect(row, m_theme.color(QStringLiteral("panel")));
    painter->setPen(m_theme.color(QStringLiteral("textDim")));
    drawElided(painter, row.adjusted(margin, 0, -margin, 0), title);
}

void ProgramPickerDelegate::paintType(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
    const QRect row = option.rect;
    const bool isChosen = option.state & QStyle::State_Selected;
    if (isChosen)
        painter->fillRect(row, m_theme.color(QStringLiteral("accentSoft")));
    const QIcon icon =
        entryIcon({index.data(ProgramPickerModel::IconRole).toString(), QStringLiteral("instruction")}, m_theme);
    icon.paint(painter, QRect(row.left() + margin, row.top() + (row.height() - 24) / 2, 24, 24));
    const QString description = index.data(ProgramPickerModel::DescriptionRole).toString();
    const QRect text = row.adjusted(textLeft, 10, -margin, -10);
    const QRect upper = description.isEmpty() ? text : text.adjusted(0, 0, 0, -20);
    painter->setFont(option.font);
    painter->setPen(m_theme.color(isChosen ? QStringLiteral("onAccentSoft") : QStringLiteral("text")));
    drawElided(painter, upper, index.data().toString());
    painter->setFont(captionFont(option.font, false));
    painter->setPen(m_theme.color(QStringLiteral("textDim")));
    drawElided(painter, text.adjusted(0, 24, 0, 0), description);
    painter->setPen(m_theme.color(QStringLiteral("divider")));
    painter->drawLine(row.bottomLeft(), row.bottomRight());
}

QSize ProgramPickerDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return {0, isGroup(index) ? groupHeight : typeHeight};
}

} // namespace pendant
