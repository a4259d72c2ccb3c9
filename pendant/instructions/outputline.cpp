#include "outputline.h"

namespace pendant {

namespace {

const QString on = QStringLiteral("on");
const QString off = QStringLiteral("off");

} // namespace

const LineGrammar& OutputLine::grammar() {
    static const LineGrammar grammar(
        QStringLiteral("SetDO\\s+(?<signal>%1)\\s+(?<state>%2|%3)").arg(LineGrammar::nameExpression(), on, off));
    return grammar;
}

OutputLine OutputLine::of(const LineParts& parts) {
    return {LineGrammar::nameIn(parts.value("signal")), parts.value("state") == on};
}

QString OutputLine::text() const {
    return QStringLiteral("SetDO ") + LineGrammar::written(signal) + QLatin1Char(' ') + (isOn ? on : off);
}

} // namespace pendant
