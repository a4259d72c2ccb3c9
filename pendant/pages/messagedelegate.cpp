#include "messagedelegate.h"

#include "frame/messagewords.h"
#include "helm/messagelist.h"
#include "style/icons.h"

#include <QAbstractItemView>
#include <QDateTime>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

namespace {

const int margin = 12;
const int textLeft = margin + 24 + margin;
const int headHeight = 20;

QFont headFont(const QFont& body) {
    QFont font = body;
    font.setPixelSize(13);
    return font;
}

QString head(const QModelIndex& index, const QString& level) {
    const QDateTime time = index.data(MessageList::TimeRole).toDateTime();
    return QStringLiteral("%1   %2   %3")
        .arg(level, time.toString(QStringLiteral("HH:mm:ss")), index.data(MessageList::SourceRole).toString());
}

// At the ends of words, and within one that is wider than the row, such as a long path.
QTextOption wrapping() {
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

int heightOf(const QString& text, const QFont& font, int width) {
    // What is a line to people is a paragraph to a text layout.
    QTextLayout layout(QString(text).replace(QLatin1Char('\n'), QChar::LineSeparator), font);
    layout.setTextOption(wrapping());
    layout.beginLayout();
    double height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        height += line.height();
    }
    layout.endLayout();
    return static_cast<int>(std::ceil(height));
}

QRect textArea(const QRect& row) {
    return row.adjusted(textLeft, margin + headHeight, -margin, -margin);
}

} // namespace

MessageDelegate::MessageDelegate(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), m_theme(theme) {}

void MessageDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto level = static_cast<MessageLevel>(index.data(MessageList::LevelRole).toInt());
    const QColor levelColor = m_theme.color(levelToken(level));
    const QRect row = option.rect;
    painter->save();
    painter->drawPixmap(row.topLeft() + QPoint(margin, margin), linePixmap(levelName(level), levelColor, 24));
    painter->setFont(headFont(option.font));
    painter->setPen(levelColor);
    painter->drawText(row.adjusted(textLeft, margin, -margin, 0), Qt::AlignLeft | Qt::AlignTop,
                      head(index, levelWord(level)));
    painter->setFont(option.font);
    painter->setPen(m_theme.color(QStringLiteral("text")));
    painter->drawText(textArea(row), index.data().toString(), wrapping());
    painter->setPen(m_theme.color(QStringLiteral("divider")));
    painter->drawLine(row.bottomLeft(), row.bottomRight());
    painter->restore();
}

QSize MessageDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    const int text = heightOf(index.data().toString(), option.font, std::max(1, width - textLeft - margin));
    return {width, std::max(56, margin + headHeight + text + margin)};
}

} // namespace pendant
