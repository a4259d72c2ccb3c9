// Starts and stops moves to points of the robot project, and asks for paths between them.

#include "kite/interfacemanager.h"

#include "interface/helmversion.h"
#include "interface/movetarget.h"
#include "interface/nodejson.h"
#include "interface/records.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

namespace kite {

using brisk::ModuleObject;

namespace {

const int pointNotFound = -1;

const int samePoint = 1;
const int feasible = 0;
const int notFeasible = -2;

// What the controller says where a path is feasible all the same.
const int feasibleError = -50003;

/// Writes where to go into the command's node "point".
using TargetWriter = std::function<void(ModuleObject* target, ModuleObject* point)>;

QString lastErrorKey() {
    return QStringLiteral("move.last_error_with_setting");
}

QString moveCommand(bool joint) {
    if (isHelm23Or30Or31())
        return QStringLiteral("move.move_to.%1").arg(joint ? QLatin1String("jc") : QLatin1String("l"));
    return QStringLiteral("move.%1").arg(joint ? QLatin1String("j") : QLatin1String("l"));
}

// Intended: the first form asks the other way round whether the point has a pose. It would write one where there is
// none to read, and that would be the origin. So it writes nothing, and no robot moves by it.
void writeOfFirstForm(ModuleObject*, ModuleObject*) {}

// Intended: a start is an error record though nothing is wrong.
void logStart(const ModuleObject& command) {
    hostline::error(hostline::interfaceModule()) << " moveToStart : " << jsonOf(&command);
}

void start(QObject* sender, ModuleObject* record, int speed, bool joint, const TargetWriter& writeTarget) {
    // Whoever hears of what is sent may delete the point.
    const QPointer<ModuleObject> point(record);
    relay()->execCommand(sender, QStringLiteral("move.reset"));
    relay()->watch(sender, lastErrorKey(), true);

    ModuleObject command(QStringLiteral("tmp"));
    if (ModuleObject* target = command.append(sender, QStringLiteral("point")))
        writeTarget(target, point);
    command.set(sender, QStringLiteral("traj.speed"), speed / 1000.0);
    logStart(command);
    relay()->command(sender, moveCommand(joint), &command);
    relay()->command(sender, QStringLiteral("move.opr.enough"));
}

// Null, a log line and a result where there is no such point.
ModuleObject* findPoint(int& result, const QString& name) {
    ModuleObject* point = findRecord(below(m(QStringLiteral("orca.project.point")), {"_list"}), name);
    if (!point) {
        hostline::error(hostline::interfaceModule()) << "no point find!";
        result = pointNotFound;
    }
    return point;
}

} // namespace

void InterfaceManager::moveToStart(int& result, const QString& pointName, int speed, bool joint) {
    if (ModuleObject* point = findPoint(result, pointName))
        start(this, point, speed, joint, writeOfFirstForm);
}

void InterfaceManager::moveToStart(int& result, const QString& pointName, int speed, bool withConf, bool joint) {
    ModuleObject* found = findPoint(result, pointName);
    if (!found)
        return;
    start(this, found, speed, joint, [this, withConf](ModuleObject* target, ModuleObject* point) {
        if (withConf)
            writeConfiguration(this, target, point);
        writePose(this, target, point);
    });
}

void InterfaceManager::moveToStop() {
    relay()->watch(this, lastErrorKey(), false);
    const QString stop = QStringLiteral("move.stop");
    if (!isHelm23Or30Or31()) {
        relay()->command(this, stop);
        return;
    }
    ModuleObject node(QStringLiteral("tmp"));
    node.set(this, QStringLiteral("task_space"), 1);
    relay()->command(this, stop, &node);
}

int InterfaceManager::checkPointMoveTo(const QString& fromPoint, const QString& toPoint) {
    if (fromPoint == toPoint)
        return samePoint;
    ModuleObject node{QString()};
    node.append(this, fromPoint);
    node.append(this, toPoint);
    ModuleObject* reply = relay()->execCommand(this, QStringLiteral("move.path.check"), &node);
    const QString error = QStringLiteral("error");
    if (!reply || !reply->hasCmobj(error))
        return feasible;
    const ModuleObject* code = reply->c(error);
    return code && code->getInt(0) == feasibleError ? feasible : notFeasible;
}

} // namespace kite
