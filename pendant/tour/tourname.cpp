#include "tourname.h"

namespace pendant {

namespace {

// "Wire and gas" -> "wire-and-gas"
QString slug(const QString& text) {
    QString result;
    for (const QChar c : text.toLower()) {
        if (c.isLetterOrNumber())
            result += c;
        else if (!result.endsWith(QLatin1Char('-')))
            result += QLatin1Char('-');
    }
    while (result.startsWith(QLatin1Char('-')))
        result.remove(0, 1);
    while (result.endsWith(QLatin1Char('-')))
        result.chop(1);
    return result;
}

} // namespace

QString pictureName(int number, const QString& kind, const QString& subject) {
    QString name = QStringLiteral("%1-%2").arg(number, 2, 10, QLatin1Char('0')).arg(kind);
    if (!slug(subject).isEmpty())
        name += QLatin1Char('-') + slug(subject);
    return name + QStringLiteral(".png");
}

} // namespace pendant
