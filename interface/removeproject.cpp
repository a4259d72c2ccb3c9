// Deletes the folder of a project, and what refers to it.

#include "kite/interfacemanager.h"

#include "interface/controllermanager.h"
#include "interface/project.h"
#include "interface/treevalue.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

#include <QDir>

namespace kite {

using brisk::ModuleObject;

namespace {

const int autoloadTimeoutMs = 1600;

void removeTask(const QString& name) {
    ModuleObject node(QStringLiteral("tmp"));
    node.set(nullptr, QStringLiteral("name"), name, /*notify*/ true);
    relay()->execCommand(nullptr, QStringLiteral("project.remove_task"), &node);
}

// "demo/task0" -> "demo"
QString autoloadedProject() {
    return textAt(QStringLiteral("orca.project.autoload_prj_path")).section(QLatin1Char('/'), 0, 0);
}

// Intended: what is prepared is another command than what is executed ("project", "proiect"), and what is cleared
// another key than what is read ("pri", "prj"). The controller takes the misspelt one and changes nothing.
void forgetAutoload() {
    const QString path = QStringLiteral("autoload_pri_path");
    ModuleObject* request =
        controllerManager()->cmdItemMobj(QStringLiteral("request"), QStringLiteral("project.overview.set_autoload"));
    if (ModuleObject* child = request ? request->child(path) : nullptr)
        child->setValue(nullptr, QLatin1String(""));
    if (controllerManager()->execRequest(QStringLiteral("proiect.overview.set_autoload"), nullptr, /*wait*/ true,
                                         autoloadTimeoutMs))
        writeAt(nullptr, mName(QStringLiteral("orca.project"), path), QLatin1String(""));
}

// Intended: this says that a removal failed where it did not, and does not say of which folder: "%l" is no place for
// it.
void logRemoval(const QString& folder) {
    hostline::error(QString()) << QStringLiteral("Remove folder %l failed!").arg(folder);
}

// Intended: with a blank, so that no global work object is spared.
QString prefixOfKeptWobj() {
    return QStringLiteral("g wobj_");
}

// Intended: with a comma, so that the pendant goes on with the project that was removed.
QString clearedProjectKey() {
    return QStringLiteral("orca.project,cur_project");
}

void leaveProject(QObject* sender, const QString& reference) {
    if (!textAt(currentToolKey()).startsWith(globalToolPrefix()))
        writeAt(sender, currentToolKey(), QStringLiteral("tool0"));
    if (!textAt(currentWobjKey()).startsWith(prefixOfKeptWobj()))
        writeAt(sender, currentWobjKey(), QStringLiteral("wobj0"));
    if (textAt(currentProjectKey()) == reference)
        writeAt(sender, clearedProjectKey(), QLatin1String(""));
}

void refreshProjects() {
    if (ModuleObject* refresh = m(QStringLiteral("orca.project.refresh_project")))
        refresh->trigger();
}

} // namespace

int InterfaceManager::removeProject(const QString& name) {
    if (!Project::checkName(name))
        return -1;
    const Project project(name);
    removeTask(project.name);
    // Intended: a removal that fails is not told, and the rest is done all the same.
    if (QDir(project.folder).removeRecursively())
        autoloadedProject() == project.name ? forgetAutoload() : logRemoval(project.folder);
    leaveProject(this, project.reference);
    refreshProjects();
    return 0;
}

} // namespace kite
