#pragma once

#include "logs/logline.h"
#include "style/theme.h"

#include <QFont>
#include <QHash>
#include <QPixmap>

class QPainter;

namespace pendant {

/// Draws a line of a log: its level with icon and word, the time, the module, the text.
class LogRowPainter {
public:
    static constexpr int rowHeight = 24;

    explicit LogRowPainter(const Theme& theme);

    void setTheme(const Theme& theme);
    /// Asks for the words of the levels anew.
    void retranslate();
    void paint(QPainter* painter, const QRect& row, const LogLine& line, bool current) const;

private:
    QColor color(LogLevel level) const;
    void paintLevel(QPainter* painter, const QRect& place, const LogLine& line) const;

    Theme m_theme;
    QFont m_words;
    QFont m_mono;
    QHash<int, QString> m_levels;
    QHash<int, QPixmap> m_icons;
    int m_levelWidth = 0;
    int m_timeWidth = 0;
};

} // namespace pendant
