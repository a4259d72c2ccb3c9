#include "controller/io/iosignal.h"

#include <cmath>

namespace controller {

bool isInput(SignalType type) {
    return type == SignalType::DigitalInput || type == SignalType::GroupInput || type == SignalType::AnalogueInput;
}

bool isDigital(SignalType type) {
    return type == SignalType::DigitalInput || type == SignalType::DigitalOutput;
}

bool isGroup(SignalType type) {
    return type == SignalType::GroupInput || type == SignalType::GroupOutput;
}

const QStringList& signalTypeNames() {
    static const QStringList names{"DI", "DO", "GI", "GO", "AI", "AO"};
    return names;
}

bool fits(const IoSignal& signal, const QJsonValue& json) {
    if (isDigital(signal.type))
        return json.isBool();
    const double number = json.toDouble();
    const bool isKind = json.isDouble() && (!isGroup(signal.type) || !(std::floor(number) < number));
    return isKind && number >= signal.minimum && number <= signal.maximum;
}

QString whatFits(const IoSignal& signal) {
    if (isDigital(signal.type))
        return QStringLiteral("true or false");
    return QStringLiteral("a %1 from %2 to %3")
        .arg(isGroup(signal.type) ? QStringLiteral("whole number") : QStringLiteral("number"),
             QString::number(signal.minimum, 'g', 12), QString::number(signal.maximum, 'g', 12));
}

QVariant valueFor(const IoSignal& signal, const QVariant& value) {
    if (isDigital(signal.type))
        return value.toBool();
    const double number = qBound(signal.minimum, value.toDouble(), signal.maximum);
    return isGroup(signal.type) ? QVariant(qRound(number)) : QVariant(number);
}

} // namespace controller
