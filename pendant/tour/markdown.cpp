#include "markdown.h"

#include <QRegularExpression>

namespace pendant {

QString markdownText(const QString& text) {
    static const QRegularExpression markup(QStringLiteral("([\\\\`*_\\[\\]<>|#])"));
    return text.simplified().replace(markup, QStringLiteral("\\\\1"));
}

QString markdownTableHead(const QStringList& headings) {
    QString head = QStringLiteral("|");
    QString dashes = QStringLiteral("|");
    for (const QString& heading : headings) {
        const bool numbers = heading.endsWith(QLatin1Char('|'));
        head += QStringLiteral(" %1 |").arg(numbers ? heading.chopped(1) : heading);
        dashes += numbers ? QStringLiteral(" --: |") : QStringLiteral(" --- |");
    }
    return head + QLatin1Char('\n') + dashes + QLatin1Char('\n');
}

QString markdownTableRow(const QStringList& cells) {
    QString row = QStringLiteral("|");
    for (const QString& cell : cells)
        row += QStringLiteral(" %1 |").arg(markdownText(cell));
    return row + QLatin1Char('\n');
}

} // namespace pendant
