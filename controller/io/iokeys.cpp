#include "controller/io/iokeys.h"

#include "controller/bustable.h"
#include "controller/io/motiondata.h"
#include "controller/io/registers.h"
#include "controller/io/signaltable.h"

#include <QJsonArray>

using brisk::standin::contentOf;
using brisk::standin::jsonOf;

namespace controller {

namespace {

QString signalsKey() {
    return QStringLiteral("io.signals");
}

QString registersKey() {
    return QStringLiteral("register.list");
}

QString motionDataKey() {
    return QStringLiteral("motion.data");
}

// Not by way of JSON's object: what is missing there is Undefined, which no value fits.
QJsonValue childOf(const Content& content, const char* name) {
    const brisk::ModuleObject* child = content ? content->c(QLatin1String(name)) : nullptr;
    return child ? jsonOf(contentOf(child)) : QJsonValue();
}

bool areTexts(const QJsonArray& array) {
    for (const QJsonValue& item : array) {
        if (!item.isString())
            return false;
    }
    return true;
}

} // namespace

IoKeys::IoKeys(SignalTable* signalTable, Registers* registers, const MotionData* motionData, BusTable* bus,
               QObject* parent)
    : QObject(parent), m_registers(registers), m_bus(bus) {
    bus->defineComputed(signalsKey(), [signalTable] { return signalTable->content(); });
    bus->defineComputed(registersKey(), [registers] { return registers->content(); });
    bus->defineComputed(motionDataKey(), [motionData] { return motionData->content(); });
    onSignal(QStringLiteral("io.set"),
             [signalTable](const QString& name, const QJsonValue& value) { return signalTable->set(name, value); });
    onSignal(QStringLiteral("io.force"),
             [signalTable](const QString& name, const QJsonValue& value) { return signalTable->force(name, value); });
    onSignal(QStringLiteral("io.release"),
             [signalTable](const QString& name, const QJsonValue&) { return signalTable->release(name); });
    bus->onCommand(QStringLiteral("register.set"), [this](const Content& sent) { return setRegister(sent); });
    connect(signalTable, &SignalTable::changed, this, [bus] { bus->tell(signalsKey()); });
    connect(registers, &Registers::changed, this, [bus] { bus->tell(registersKey()); });
    connect(motionData, &MotionData::changed, this, [bus] { bus->tell(motionDataKey()); });
}

void IoKeys::onSignal(const QString& command,
                      const std::function<QString(const QString&, const QJsonValue&)>& carryOut) {
    m_bus->onCommand(command, [this, carryOut](const Content& sent) {
        const QString refusal = carryOut(childOf(sent, "name").toString(), childOf(sent, "value"));
        return refusal.isEmpty() ? nullptr : m_bus->refused(refusal);
    });
}

Content IoKeys::setRegister(const Content& sent) {
    const QString name = childOf(sent, "name").toString();
    const QJsonValue value = childOf(sent, "value");
    if (!value.isArray() || !areTexts(value.toArray()))
        return m_bus->refused(QStringLiteral("The register \"%1\" takes a list of texts.").arg(name));
    if (m_registers->set(name, QVariant(value.toArray().toVariantList()).toStringList()))
        return nullptr;
    return m_bus->refused(QStringLiteral("The controller has no register \"%1\".").arg(name));
}

void defineState(BusTable* bus) {
    const QStringList keys{"host.info",      "robot.drives", "robot.mode",   "robot.state",
                           "robot.position", signalsKey(),   registersKey(), motionDataKey()};
    bus->defineComputed(QStringLiteral("mirror.state"), [bus, keys] {
        const Content state = copied(nullptr);
        for (const QString& key : keys) {
            if (bus->hasValue(key))
                state->append(nullptr, key)->copyFrom(bus->value(key).get());
        }
        return state;
    });
}

} // namespace controller
