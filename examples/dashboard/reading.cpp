#include "reading.h"

#include <kite/interfacemanager.h>

#include <QJsonArray>
#include <QJsonObject>

namespace reading {

namespace {

kite::InterfaceManager* manager() {
    return kite::kiteInterface();
}

// A name that stands in two places, such as the project's and the global ones, is listed twice.
QStringList once(QStringList names) {
    names.removeDuplicates();
    return names;
}

} // namespace

Robot robot() {
    Robot robot;
    robot.id = manager()->getRobotID();
    robot.type = manager()->getRobotType();
    robot.address = manager()->getRobotIP();
    robot.model = manager()->getRobotModelType();
    robot.hasPower = manager()->getRobotEleStatus();
    robot.state = manager()->getRobotPhyStatus();
    // For the mode there is no call: it is read where the pendant keeps it.
    robot.mode = manager()->getNodeData(QStringLiteral("helm.r.mode")).toString();
    robot.level = manager()->getUserOperateLevel();
    robot.tool = manager()->getCurTool();
    robot.wobj = manager()->getCurWobj();
    return robot;
}

Names names() {
    return {once(manager()->getToolList()), once(manager()->getWobjList()), once(manager()->getSpeedList()),
            once(manager()->getZoneList())};
}

QHash<QString, QVariant> signalValues() {
    return manager()->getIOHash();
}

QList<Signal> signalsOfType(int type, const QHash<QString, QVariant>& values) {
    QList<Signal> found;
    for (const QString& name : manager()->getIOByType(type))
        found.append({name, values.value(name)});
    return found;
}

QStringList outputsOn(const QHash<QString, QVariant>& values) {
    QStringList on;
    for (const QString& name : manager()->getIOByType(QStringLiteral("DO"))) {
        if (values.value(name).toBool())
            on << name;
    }
    return on;
}

// The hash knows no order and leaves out a register without a value; the JSON has both.
QList<Register> registers() {
    const QHash<QString, QStringList> values = manager()->getRegisterHash();
    QList<Register> found;
    for (const QJsonValue& entry : manager()->getRegisterValue().toArray()) {
        const QString name = entry.toObject().value(QLatin1String("name")).toString();
        found.append({name, values.contains(name), values.value(name)});
    }
    return found;
}

} // namespace reading
