#include "statewriter.h"

#include "project/projectkeys.h"
#include "statekeys.h"
#include "writechanges.h"

#include "brisk/modulemanager.h"

#include <QVector>

#include <functional>

using brisk::ModuleObject;

namespace pendant {
namespace statewriter {

namespace {

using Writer = std::function<void(ModuleObject* value, QObject* sender)>;

void writeOwn(const QString& treeKey, const QVariant& value, QObject* sender) {
    ModuleObject own{QString()};
    own.setValue(nullptr, value, false);
    writeChanges(&own, m(treeKey), sender);
}

void writeChild(ModuleObject* value, const char* child, const QString& treeKey, QObject* sender) {
    if (const ModuleObject* node = value->r(QLatin1String(child)))
        writeChanges(node, m(treeKey), sender);
}

void writeHost(ModuleObject* value, QObject* sender) {
    writeChild(value, "id", statekeys::robotId(), sender);
    writeChild(value, "type", statekeys::robotType(), sender);
    writeChild(value, "level", statekeys::operatingLevel(), sender);
    writeChild(value, "version", projectkeys::hostVersion(), sender);
}

void writeDrives(ModuleObject* value, QObject* sender) {
    if (value->value().userType() == QMetaType::Bool)
        writeOwn(statekeys::power(), value->getBool() ? QStringLiteral("on") : QStringLiteral("off"), sender);
}

void writeMode(ModuleObject* value, QObject* sender) {
    if (value->value().userType() == QMetaType::QString)
        writeOwn(statekeys::mode(), value->value(), sender);
}

void writeRobotState(ModuleObject* value, QObject* sender) {
    writeChild(value, "state", statekeys::robotState(), sender);
}

void writePosition(ModuleObject* value, QObject* sender) {
    if (value->hasCmobj(QStringLiteral("joint")))
        writeChanges(value, m(statekeys::position()), sender);
}

void writeSignals(ModuleObject* value, QObject* sender) {
    // The details first: who hears of a new signal's value can ask for its type.
    for (const char* part : {"signal_detail", "signal_value"})
        writeChild(value, part, mName(statekeys::io(), QLatin1String(part)), sender);
}

void writeRegisters(ModuleObject* value, QObject* sender) {
    if (value->isList())
        writeChanges(value, m(statekeys::registers()), sender);
}

void writeMotionData(ModuleObject* value, QObject* sender) {
    writeChild(value, "tools.system", QStringLiteral("orca.project.tool.system_list"), sender);
    writeChild(value, "tools.project", QStringLiteral("orca.project.tool._list"), sender);
    writeChild(value, "tools.global", QStringLiteral("orca.setting.g_tool.g_tools"), sender);
    writeChild(value, "wobjs.system", QStringLiteral("orca.project.wobj.system_list"), sender);
    writeChild(value, "wobjs.project", QStringLiteral("orca.project.wobj._list"), sender);
    writeChild(value, "wobjs.global", QStringLiteral("orca.setting.g_wobj.g_wobjs"), sender);
    writeChild(value, "variables", QStringLiteral("orca.project.var.system_list"), sender);
}

struct Place {
    QString key;
    Writer write;
};

const QVector<Place>& places() {
    static const QVector<Place> all{
        {QStringLiteral("host.info"), writeHost},          {QStringLiteral("robot.drives"), writeDrives},
        {QStringLiteral("robot.mode"), writeMode},         {QStringLiteral("robot.state"), writeRobotState},
        {QStringLiteral("robot.position"), writePosition}, {QStringLiteral("motion.data"), writeMotionData},
        {QStringLiteral("io.signals"), writeSignals},      {QStringLiteral("register.list"), writeRegisters}};
    return all;
}

} // namespace

QStringList keys() {
    QStringList keys;
    for (const Place& place : places())
        keys << place.key;
    return keys;
}

void write(const QString& key, ModuleObject* value, QObject* sender) {
    for (const Place& place : places()) {
        if (value && place.key == key)
            place.write(value, sender);
    }
}

} // namespace statewriter
} // namespace pendant
