// IO signals of the robot.

#include "kite/interfacemanager.h"

#include "log/hostline.h"

#include "brisk/modulemanager.h"

namespace kite {

using brisk::ModuleObject;

namespace {

const int firstType = 1;
const int lastType = 6;
const int unknownType = -1;

QList<ModuleObject*> signalsBelow(const QString& part) {
    ModuleObject* io = m(QStringLiteral("orca.robot.io"));
    const ModuleObject* list = io ? io->c(part) : nullptr;
    return list ? list->cmobjs(false) : QList<ModuleObject*>();
}

int typeOf(ModuleObject* signal) {
    const ModuleObject* type = signal->c(QStringLiteral("signal_type"));
    return type ? type->getInt(0) : 0;
}

// "DI" -> 1, ..., "AO" -> 6
int typeOf(const QString& text) {
    static const char* const texts[] = {"DI", "DO", "GI", "GO", "AI", "AO"};
    for (int type = firstType; type <= lastType; ++type) {
        if (text == QLatin1String(texts[type - firstType]))
            return type;
    }
    return unknownType;
}

} // namespace

QHash<QString, QVariant> InterfaceManager::getIOHash() {
    QHash<QString, QVariant> values;
    for (const ModuleObject* signal : signalsBelow(QStringLiteral("signal_value"))) {
        if (signal)
            values.insert(signal->name(), signal->value(QVariant()));
    }
    return values;
}

QStringList InterfaceManager::getIOByType(int signalType) {
    QStringList names;
    if (signalType < firstType || signalType > lastType) {
        hostline::error(hostline::interfaceModule()) << "Get IO By Err Signaltype!";
        return names;
    }
    for (ModuleObject* signal : signalsBelow(QStringLiteral("signal_detail"))) {
        if (signal && typeOf(signal) == signalType)
            names.append(signal->name());
    }
    return names;
}

QStringList InterfaceManager::getIOByType(const QString& signalType) {
    return getIOByType(typeOf(signalType));
}

} // namespace kite
