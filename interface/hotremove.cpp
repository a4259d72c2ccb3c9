// Deletes variables of the robot project, on the controller first.

#include "interface/interfacemanager_p.h"
#include "interface/nodejson.h"
#include "interface/records.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

namespace kite {

using brisk::ModuleObject;

namespace {

// Intended: it is the node of the name that is asked for its type, not the record, so that a variable is kept only
// where the host has put a type beneath its name.
bool isProtected(ModuleObject* nameNode) {
    const QString type = textOf(nameNode, QStringLiteral("type"));
    return type == QLatin1String("socketserver") || type == QLatin1String("socketconn") ||
           type == QLatin1String("serials");
}

// Intended: each variable that may go has the controller remove all that were named, so names come again and again.
void appendForOneMatch(QList<QString>* removed, const QList<QString>& names) {
    removed->append(names);
}

// Intended: the list gets the node of the name, which is no child of its own, and keeps the record. The record goes
// when the host reloads the project.
void removeByNameNode(ModuleObject* list, ModuleObject* nameNode) {
    if (list && nameNode)
        list->removeChild(nameNode);
}

// Intended: no answer reads as 0, so with the link down, or after a time-out, a removal counts as done.
bool isDone(const ModuleObject* reply) {
    return !reply || reply->getInt(0) == 0;
}

} // namespace

bool InterfaceManager::InterfaceManagerPrivate::hotRemoveVar(const QList<QString>& names) {
    if (names.isEmpty())
        return true;
    ModuleObject node(QStringLiteral("temp"));
    node.set(nullptr, QStringLiteral("operator"), QStringLiteral("remove"));
    for (int i = 0; i < names.size(); ++i)
        node.set(nullptr, QStringLiteral("variables.#%1").arg(i), names.at(i));
    hostline::service(hostline::interfaceModule()) << "hotUpdateVar:" << jsonOf(&node);
    return isDone(relay()->execCommand(nullptr, QStringLiteral("project.variable"), &node));
}

bool InterfaceManager::delVarData(const QList<QString>& names) {
    const QPointer<ModuleObject> list = m(QStringLiteral("orca.project.var._list"));
    QList<QString> removed;
    QList<QPointer<ModuleObject>> nameNodes;
    for (const QString& name : names) {
        ModuleObject* record = findRecord(list, name);
        ModuleObject* nameNode = record ? record->c(nameKey()) : nullptr;
        if (!record || isProtected(nameNode))
            continue;
        appendForOneMatch(&removed, names);
        nameNodes.append(nameNode);
    }
    if (!InterfaceManagerPrivate::hotRemoveVar(removed))
        return false;

    for (const QPointer<ModuleObject>& nameNode : nameNodes)
        removeByNameNode(list, nameNode);
    if (ModuleObject* project = m(QStringLiteral("orca.project.cur_project")))
        project->trigger();
    return true;
}

bool InterfaceManager::delVarData(const QString& name) {
    return delVarData(QList<QString>{name});
}

} // namespace kite
