// Teaches points: writes down where the robot is.

#include "kite/interfacemanager.h"

#include "interface/controllermanager.h"
#include "interface/hotupdate.h"
#include "interface/records.h"

#include "brisk/modulemanager.h"

#include <QDateTime>

namespace kite {

using brisk::ModuleObject;

namespace {

const int positionTimeoutMs = 1600;

// "conf.cf", 1, 2 -> "conf.cf1", "conf.cf2"
QStringList numbered(const QString& prefix, int first, int count) {
    QStringList keys;
    for (int i = first; i < first + count; ++i)
        keys.append(prefix + QString::number(i));
    return keys;
}

// A list of axes: where it stands and how long it is.
struct Axes {
    QString list;
    int count;
    QStringList keys() const { return numbered(list + QStringLiteral(".#"), 0, count); }
};

Axes robotJoints() {
    return {QStringLiteral("inner_pos"), 7};
}

Axes externalAxes() {
    return {QStringLiteral("extern_pos"), 6};
}

Axes externalAxesOfPose() {
    return {QStringLiteral("external_joint"), 6};
}

QStringList cartesianKeys() {
    return QStringList{QStringLiteral("pose.frame.pos.x"),       QStringLiteral("pose.frame.pos.y"),
                       QStringLiteral("pose.frame.pos.z"),       QStringLiteral("pose.elb"),
                       QStringLiteral("pose.frame.ori.euler.a"), QStringLiteral("pose.frame.ori.euler.b"),
                       QStringLiteral("pose.frame.ori.euler.c")} +
           numbered(QStringLiteral("pose.frame.ori.quaternion.q"), 1, 4) + numbered(QStringLiteral("conf.cf"), 1, 7) +
           QStringList{QStringLiteral("conf.cfx")};
}

/// Copies numbers from the controller's reply into a point.
class Taught {
public:
    Taught(QObject* sender, ModuleObject* position, ModuleObject* reply)
        : m_sender(sender), m_position(position), m_joint(part(reply, QStringLiteral("joint"))),
          m_cartesian(part(reply, QStringLiteral("cartesian"))) {}

    void writeJoint() {
        copyAxes(robotJoints(), robotJoints());
        copyAxes(externalAxes(), externalAxes());
    }
    void writeCartesian() {
        copy(m_cartesian, cartesianKeys(), cartesianKeys());
        // Intended: the external axes stand in the joint part of the reply, also for a Cartesian point.
        copyAxes(externalAxes(), externalAxesOfPose());
    }

private:
    static ModuleObject* part(ModuleObject* reply, const QString& key) { return reply ? reply->c(key) : nullptr; }

    // Intended: the reply is not examined, and what it lacks is 0: without an answer the point is taught all the same.
    static double number(ModuleObject* source, const QString& key) {
        const ModuleObject* leaf = source ? source->rmobj(key) : nullptr;
        return leaf ? leaf->getDouble(0.0) : 0.0;
    }

    void copy(ModuleObject* source, const QStringList& from, const QStringList& to) {
        for (int i = 0; i < from.size(); ++i)
            m_position->set(m_sender, to.at(i), number(source, from.at(i)));
    }

    // The template may have more axes than there are, or lack some: of a list with a gap, items cannot be set.
    void copyAxes(const Axes& from, const Axes& to) {
        if (ModuleObject* list = m_position->rmobj(to.list))
            list->clear(nullptr, false, true);
        copy(m_joint, from.keys(), to.keys());
    }

    QObject* m_sender;
    ModuleObject* m_position;
    ModuleObject* m_joint;
    ModuleObject* m_cartesian;
};

void describe(QObject* sender, ModuleObject* record, const QString& name, bool isJoint) {
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    const auto set = [=](const char* key, const QString& text) { record->set(sender, QLatin1String(key), text); };
    set("name", name);
    set("property", isJoint ? QStringLiteral("joint") : QStringLiteral("cart"));
    set("description", InterfaceManager::tr("Auto generate at: %1").arg(now));
    set("func", textOf(m(QStringLiteral("orca.project.cur_func"))));
    set("task", textOf(m(QStringLiteral("orca.project.cur_task"))));
}

ModuleObject* askPosition(const QString& tool, const QString& wobj) {
    QJsonObject params;
    params.insert(QStringLiteral("tool"), tool);
    params.insert(QStringLiteral("wobj"), wobj);
    return controllerManager()->execRequest(QStringLiteral("project"), QStringLiteral("vex_program.get_rob_pos"),
                                            params,
                                            /*wait*/ true, positionTimeoutMs);
}

// The record's own place for its position, with what the template has put there.
ModuleObject* positionOf(QObject* sender, ModuleObject* record) {
    const QString key = QStringLiteral("value.[0][0][0]");
    record->set(sender, key, QVariant());
    return record->rmobj(key);
}

void removePoints(const QPointer<ModuleObject>& list, const QString& name) {
    for (const QPointer<ModuleObject>& point : findRecords(list, name, Qt::CaseInsensitive)) {
        if (list && point)
            list->removeChild(point);
    }
}

} // namespace

bool InterfaceManager::addCurrentPoint(const QString& name, bool isJoint, const QString& tool, const QString& wobj) {
    if (!controllerManager()->controllerConnected())
        return false;
    // Copies: who hears that a point goes may change what was passed, as what is selected on a page changes.
    const QString pointName = name;
    const QString toolName = tool;
    const QString wobjName = wobj;
    const QPointer<ModuleObject> list = m(QStringLiteral("orca.project.point._list"));
    removePoints(list, pointName);
    if (!list)
        return false;

    std::unique_ptr<ModuleObject> record = newRecord(list);
    record->watch(true, false);
    copyTemplate(list, record.get());
    record->set(this, QStringLiteral("id"), list->cmobjCount());
    describe(this, record.get(), pointName, isJoint);

    ModuleObject* reply = askPosition(toolName, wobjName);
    if (ModuleObject* position = positionOf(this, record.get())) {
        Taught taught(this, position, reply);
        isJoint ? taught.writeJoint() : taught.writeCartesian();
        position->set(this, QStringLiteral("coord.tool"), toolName);
        position->set(this, QStringLiteral("coord.wobj"), wobjName);
    }
    appendRecord(this, list, std::move(record));
    announcePoint(this, list, QStringLiteral("add"));
    return true;
}

} // namespace kite
