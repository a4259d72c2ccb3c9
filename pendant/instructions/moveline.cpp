#include "moveline.h"

namespace pendant {

namespace {

const QString percent = QStringLiteral("%");
const QString mmPerS = QStringLiteral("mm/s");

QString unitOf(MoveLine::Kind kind) {
    return kind == MoveLine::Joint ? percent : mmPerS;
}

QString speedExpression(MoveLine::Kind kind) {
    return kind == MoveLine::Joint ? QStringLiteral("100|[1-9][0-9]?") : QStringLiteral("[1-9][0-9]{0,3}");
}

QString bodyOf(MoveLine::Kind kind) {
    return QStringLiteral("%1\\s+(?<point>%2)\\s+speed=(?<speed>%3)%4(?:\\s+zone=(?<zone>[1-9][0-9]{0,2})mm)?"
                          "(?:\\s+tool=(?<tool>%2))?(?:\\s+wobj=(?<wobj>%2))?")
        .arg(MoveLine::type(kind), LineGrammar::nameExpression(), speedExpression(kind), unitOf(kind));
}

QString named(const char* key, const QString& name) {
    return name.isEmpty() ? QString() : QStringLiteral(" %1=%2").arg(QLatin1String(key), LineGrammar::written(name));
}

} // namespace

QString MoveLine::type(Kind kind) {
    return kind == Joint ? QStringLiteral("MoveJ") : QStringLiteral("MoveL");
}

const LineGrammar& MoveLine::grammar(Kind kind) {
    static const LineGrammar joint(bodyOf(Joint));
    static const LineGrammar linear(bodyOf(Linear));
    return kind == Joint ? joint : linear;
}

MoveLine MoveLine::of(Kind kind, const LineParts& parts) {
    return {kind,
            LineGrammar::nameIn(parts.value("point")),
            parts.value("speed").toInt(),
            parts.value("zone").toInt(),
            LineGrammar::nameIn(parts.value("tool")),
            LineGrammar::nameIn(parts.value("wobj"))};
}

QString MoveLine::text() const {
    const QString zone = zoneMm > 0 ? QStringLiteral(" zone=%1mm").arg(zoneMm) : QString();
    const QString start = QStringLiteral("%1 %2 speed=").arg(type(kind), LineGrammar::written(point));
    return start + QString::number(speed) + unitOf(kind) + zone + named("tool", tool) + named("wobj", workObject);
}

} // namespace pendant
