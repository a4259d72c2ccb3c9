#include "logrowpainter.h"

#include "logs/consolecolours.h"
#include "style/icons.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace pendant {

namespace {

const int margin = 8;
const int markWidth = 4;
const int iconSize = 16;
// More fits on no screen.
const int longestShown = 400;

const LogLevel levels[] = {LogLevel::Error, LogLevel::Service, LogLevel::Information};

QString iconName(LogLevel level) {
    if (level == LogLevel::Service)
        return QStringLiteral("bus");
    return level == LogLevel::Error ? QStringLiteral("error") : QStringLiteral("information");
}

QString word(LogLevel level) {
    if (level == LogLevel::Service)
        return QCoreApplication::translate("pendant::LogView", "Service");
    return level == LogLevel::Error ? QCoreApplication::translate("pendant::LogView", "Error")
                                    : QCoreApplication::translate("pendant::LogView", "Information");
}

QString shown(const QString& text) {
    QString result = withoutColours(text.left(longestShown));
    for (QChar& character : result) {
        if (character.category() == QChar::Other_Control)
            character = character == QLatin1Char('\t') ? QLatin1Char(' ') : QChar(0xb7);
    }
    return result;
}

} // namespace

LogRowPainter::LogRowPainter(const Theme& theme) : m_theme(theme) {
    m_words.setPixelSize(13);
    m_mono = QFont(QStringLiteral("DejaVu Sans Mono"));
    m_mono.setPixelSize(13);
    m_timeWidth = QFontMetrics(m_mono).horizontalAdvance(QStringLiteral("00/00 00:00:00.000"));
    setTheme(theme);
    retranslate();
}

void LogRowPainter::setTheme(const Theme& theme) {
    m_theme = theme;
    for (const LogLevel level : levels)
        m_icons.insert(static_cast<int>(level), linePixmap(iconName(level), color(level), iconSize));
}

void LogRowPainter::retranslate() {
    m_levelWidth = 0;
    for (const LogLevel level : levels) {
        m_levels.insert(static_cast<int>(level), word(level));
        m_levelWidth = std::max(m_levelWidth, QFontMetrics(m_words).horizontalAdvance(word(level)));
    }
}

QColor LogRowPainter::color(LogLevel level) const {
    if (level == LogLevel::Service)
        return m_theme.color(QStringLiteral("service"));
    return m_theme.color(level == LogLevel::Error ? QStringLiteral("error") : QStringLiteral("text"));
}

void LogRowPainter::paint(QPainter* painter, const QRect& row, const LogLine& line, bool current) const {
    if (current) {
        painter->fillRect(row, m_theme.color(QStringLiteral("accentSoft")));
        painter->fillRect(QRect(row.topLeft(), QSize(markWidth, row.height())),
                          m_theme.color(QStringLiteral("accent")));
    }
    const QColor dim = m_theme.color(QStringLiteral("textDim"));
    QRect place = row.adjusted(margin, 0, -margin, 0);
    paintLevel(painter, place, line);
    place.setLeft(place.left() + iconSize + margin / 2 + m_levelWidth + 2 * margin);
    painter->setFont(m_mono);
    painter->setPen(dim);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, line.time);
    place.setLeft(place.left() + m_timeWidth + 2 * margin);
    const QFontMetrics metrics(m_mono);
    if (!line.module.isEmpty()) {
        const QString module = metrics.elidedText(shown(line.module), Qt::ElideRight, place.width() / 3);
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, module);
        place.setLeft(place.left() + metrics.horizontalAdvance(module) + 2 * margin);
    }
    painter->setPen(line.isHead() ? color(line.level) : dim);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                      metrics.elidedText(shown(line.text), Qt::ElideRight, place.width()));
}

void LogRowPainter::paintLevel(QPainter* painter, const QRect& place, const LogLine& line) const {
    if (!line.isHead())
        return;
    const int top = place.top() + (place.height() - iconSize) / 2;
    painter->drawPixmap(place.left(), top, m_icons.value(static_cast<int>(line.level)));
    painter->setFont(m_words);
    painter->setPen(color(line.level));
    const QRect words(place.left() + iconSize + margin / 2, place.top(), m_levelWidth + margin, place.height());
    const QString text = m_levels.value(static_cast<int>(line.level), shown(line.tag));
    painter->drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(m_words).elidedText(text, Qt::ElideRight, words.width()));
}

} // namespace pendant
