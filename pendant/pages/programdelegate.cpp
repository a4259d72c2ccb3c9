#include "programdelegate.h"

#include "program/linetypes.h"
#include "style/icons.h"

#include <QPainter>

#include <algorithm>

namespace pendant {

namespace {

const int margin = 12;
const int markWidth = 4;
const int iconSize = 24;
// More of a line is on no screen, and measuring all of a long one takes its time.
const int longestDrawn = 500;

QFont sized(const QFont& body, int pixelSize) {
    QFont font = body;
    font.setPixelSize(pixelSize);
    return font;
}

QFont lineFont(const QFont& body) {
    QFont font = sized(body, 14);
    font.setFamily(QStringLiteral("DejaVu Sans Mono"));
    return font;
}

// Wide enough for the number of the last line, so that numbers do not push the lines about.
int numberWidth(const QFont& font, int count) {
    const int digits = std::max(3, QString::number(count).size());
    return QFontMetrics(font).horizontalAdvance(QString(digits, QLatin1Char('0')));
}

bool isBlank(const QString& line) {
    return std::all_of(line.begin(), line.end(), [](QChar character) { return character.isSpace(); });
}

void drawElided(QPainter* painter, const QRect& where, const QString& text) {
    const QString shown = painter->fontMetrics().elidedText(text.left(longestDrawn), Qt::ElideRight, where.width());
    painter->drawText(where, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace

ProgramDelegate::ProgramDelegate(const LineTypes* types, const Theme& theme, QObject* parent)
    : QStyledItemDelegate(parent), m_types(types), m_theme(theme) {}

void ProgramDelegate::setTheme(const Theme& theme) {
    m_theme = theme;
    m_icons.clear();
}

void ProgramDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString line = index.data().toString();
    const QString type = m_types->typeOf(line);
    const QFont font = lineFont(option.font);
    const int number = numberWidth(font, index.model()->rowCount());
    const QRect row = option.rect;
    painter->save();
    paintGround(painter, option);
    painter->setFont(font);
    painter->setPen(m_theme.color(QStringLiteral("textDim")));
    painter->drawText(QRect(row.left() + margin, row.top(), number, row.height()), Qt::AlignRight | Qt::AlignVCenter,
                      QString::number(index.row() + 1));
    const int iconLeft = row.left() + margin + number + margin;
    if (!type.isEmpty() || !isBlank(line))
        painter->drawPixmap(iconLeft, row.top() + (row.height() - iconSize) / 2, iconOf(type));
    QStyleOptionViewItem words = option;
    words.rect = row.adjusted(iconLeft - row.left() + iconSize + margin, 0, -margin, 0);
    paintWords(painter, words, line, type);
    painter->restore();
}

void ProgramDelegate::paintGround(QPainter* painter, const QStyleOptionViewItem& option) const {
    const QRect row = option.rect;
    if (option.state & QStyle::State_Selected) {
        painter->fillRect(row, m_theme.color(QStringLiteral("accentSoft")));
        painter->fillRect(QRect(row.left(), row.top(), markWidth, row.height()),
                          m_theme.color(QStringLiteral("accent")));
    }
    painter->setPen(m_theme.color(QStringLiteral("divider")));
    painter->drawLine(row.bottomLeft(), row.bottomRight());
}

void ProgramDelegate::paintWords(QPainter* painter, const QStyleOptionViewItem& option, const QString& line,
                                 const QString& type) const {
    const QRect row = option.rect;
    const bool isChosen = option.state & QStyle::State_Selected;
    painter->setPen(m_theme.color(isChosen ? QStringLiteral("onAccentSoft") : QStringLiteral("text")));
    drawElided(painter, row.adjusted(0, 8, 0, -26), line);
    const QString unknown = isBlank(line) ? tr("Empty line") : tr("No instruction knows this line");
    const bool warns = type.isEmpty() && !isBlank(line);
    painter->setFont(sized(option.font, 13));
    painter->setPen(m_theme.color(warns ? QStringLiteral("warning") : QStringLiteral("textDim")));
    drawElided(painter, row.adjusted(0, 28, 0, -6), type.isEmpty() ? unknown : m_types->title(type));
}

const QPixmap& ProgramDelegate::iconOf(const QString& type) const {
    const auto known = m_icons.constFind(type);
    if (known != m_icons.constEnd())
        return *known;
    const QStringList names{m_types->icon(type), QStringLiteral("instruction")};
    const QPixmap icon = type.isEmpty()
                             ? linePixmap(QStringLiteral("warning"), m_theme.color(QStringLiteral("warning")), iconSize)
                             : entryIcon(names, m_theme).pixmap(iconSize, iconSize);
    return *m_icons.insert(type, icon);
}

QSize ProgramDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {0, rowHeight};
}

} // namespace pendant
