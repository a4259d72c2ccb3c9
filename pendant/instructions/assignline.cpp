#include "assignline.h"

namespace pendant {

namespace {

// Words with blanks between them, up to a comment; what stands in quotation marks is one word.
QString valueExpression() {
    const QString word = QStringLiteral("(?:[^\\s\"/]|/(?!/)|%1)++").arg(LineGrammar::quotedExpression());
    return QStringLiteral("%1(?:\\s++(?!//|$)%1)*+").arg(word);
}

} // namespace

const LineGrammar& AssignLine::grammar() {
    static const LineGrammar grammar(QStringLiteral("Assign\\s+(?<variable>%1)\\s*=\\s*(?<value>%2)")
                                         .arg(LineGrammar::nameExpression(), valueExpression()));
    return grammar;
}

AssignLine AssignLine::of(const LineParts& parts) {
    return {LineGrammar::nameIn(parts.value("variable")), parts.value("value")};
}

QString AssignLine::text() const {
    return QStringLiteral("Assign ") + LineGrammar::written(variable) + QStringLiteral(" = ") + value.trimmed();
}

} // namespace pendant
