// Lists the projects of the robot, and changes to one.

#include "kite/interfacemanager.h"

#include "interface/project.h"
#include "interface/records.h"
#include "interface/treevalue.h"

#include "brisk/relay.h"

namespace kite {

QStringList InterfaceManager::getProjectList() {
    QStringList names;
    const brisk::ModuleObject* backups = relay()->get(nullptr, QStringLiteral("backup.backup_list"));
    if (!backups)
        return names;
    for (brisk::ModuleObject* project : backups->cmobjs(false))
        names.append(nameOf(project));
    return names;
}

int InterfaceManager::changeProject(const QString& name) {
    if (!Project::checkName(name))
        return -1;
    writeAt(this, currentProjectKey(), Project(name).reference);
    return 0;
}

} // namespace kite
