#include "signals.h"

#include "statekeys.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

#include <QJsonObject>

using brisk::ModuleObject;

namespace pendant {

bool isInput(SignalType type) {
    return type == SignalType::DigitalInput || type == SignalType::GroupInput || type == SignalType::AnalogueInput;
}

bool isDigital(SignalType type) {
    return type == SignalType::DigitalInput || type == SignalType::DigitalOutput;
}

bool isGroup(SignalType type) {
    return type == SignalType::GroupInput || type == SignalType::GroupOutput;
}

namespace ioSignals {

namespace {

ModuleObject* part(const char* name) {
    return m(mName(statekeys::io(), QLatin1String(name)));
}

double numberIn(ModuleObject* node, const char* name) {
    const ModuleObject* child = node->c(QLatin1String(name));
    return child ? child->getDouble() : 0;
}

bool isType(double number) {
    return number >= 1 && number <= 6;
}

Signal signalOf(ModuleObject* detail) {
    const ModuleObject* forced = detail->c(QStringLiteral("forced"));
    Signal signal;
    signal.name = detail->name();
    signal.type = SignalType(int(numberIn(detail, "signal_type")));
    signal.isForced = forced && forced->getBool();
    signal.minimum = numberIn(detail, "min");
    signal.maximum = numberIn(detail, "max");
    return signal;
}

} // namespace

QVector<Signal> all() {
    QVector<Signal> found;
    for (ModuleObject* detail : part("signal_detail")->cmobjs()) {
        if (isType(numberIn(detail, "signal_type")))
            found << signalOf(detail);
    }
    return found;
}

Signal named(const QString& name) {
    ModuleObject* detail = part("signal_detail")->c(name);
    if (!detail || !isType(numberIn(detail, "signal_type")))
        return Signal();
    Signal signal = signalOf(detail);
    const ModuleObject* value = part("signal_value")->c(name);
    signal.value = value ? value->value() : QVariant();
    return signal;
}

void set(QObject* sender, const QString& name, const QVariant& value) {
    const QJsonObject wanted{{QStringLiteral("name"), name}, {QStringLiteral("value"), QJsonValue::fromVariant(value)}};
    relay()->command(sender, QStringLiteral("io.set"), QVariant(wanted));
}

void force(QObject* sender, const QString& name, const QVariant& value) {
    const QJsonObject wanted{{QStringLiteral("name"), name}, {QStringLiteral("value"), QJsonValue::fromVariant(value)}};
    relay()->command(sender, QStringLiteral("io.force"), QVariant(wanted));
}

void release(QObject* sender, const QString& name) {
    relay()->command(sender, QStringLiteral("io.release"), QVariant(QJsonObject{{QStringLiteral("name"), name}}));
}

} // namespace ioSignals
} // namespace pendant
