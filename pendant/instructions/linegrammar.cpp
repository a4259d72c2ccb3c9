#include "linegrammar.h"

namespace pendant {

namespace {

// Nothing here is tried twice: a line of any length is read in one go.
const QString plainName = QStringLiteral("[\\p{L}_][\\p{L}\\p{N}_]*+");
const QString quoted = QStringLiteral("\"(?:[^\"\\\\]++|\\\\.)*+\"");
const QLatin1Char quote('"');
const QLatin1Char backslash('\\');

} // namespace

LineGrammar::LineGrammar(const QString& body)
    : m_expression(QStringLiteral("^(?<indent>\\s*)%1(?<tail>\\s*(?://.*)?)$").arg(body)) {}

bool LineGrammar::read(const QString& line, LineParts* parts) const {
    const QRegularExpressionMatch match = m_expression.match(line);
    if (!match.hasMatch() || !parts)
        return match.hasMatch();
    *parts = LineParts{match.captured(QStringLiteral("indent")), {}, match.captured(QStringLiteral("tail"))};
    for (const QString& name : m_expression.namedCaptureGroups()) {
        if (!name.isEmpty())
            parts->values.insert(name, match.captured(name));
    }
    return true;
}

QString LineGrammar::nameExpression() {
    return QStringLiteral("(?:%1|%2)").arg(plainName, quoted);
}

QString LineGrammar::quotedExpression() {
    return quoted;
}

// home -> home, part "1" -> "part \"1\""
QString LineGrammar::written(const QString& name) {
    static const QRegularExpression plain(QStringLiteral("\\A%1\\z").arg(plainName));
    if (plain.match(name).hasMatch())
        return name;
    QString inside = name;
    inside.replace(backslash, QStringLiteral("\\\\")).replace(quote, QStringLiteral("\\\""));
    return quote + inside + quote;
}

// "part \"1\"" -> part "1"
QString LineGrammar::nameIn(const QString& written) {
    if (!written.startsWith(quote))
        return written;
    QString name;
    for (int i = 1; i < written.size() - 1; ++i) {
        if (written.at(i) == backslash)
            ++i;
        name += written.at(i);
    }
    return name;
}

} // namespace pendant
