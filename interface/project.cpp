#include "interface/project.h"

#include "interface/settings.h"
#include "interface/treevalue.h"
#include "log/hostline.h"

namespace kite {

namespace {

QString robotName() {
    const QString id = textAt(QStringLiteral("helm.r.id"));
    return id.isEmpty() ? QStringLiteral("LOCALHOST") : id;
}

} // namespace

Project::Project(const QString& projectName)
    : name(projectName), reference(robotName() + QLatin1Char('/') + name),
      folder(setting(QStringLiteral("workspace")) + QLatin1Char('/') + reference) {}

bool Project::checkName(const QString& name) {
    if (!name.isEmpty() && name != QLatin1String("_temp"))
        return true;
    hostline::error(QString()) << "Project name unuesful!";
    return false;
}

QString currentProjectKey() {
    return QStringLiteral("orca.project.cur_project");
}
QString currentToolKey() {
    return QStringLiteral("orca.toolpage.tool");
}
QString currentWobjKey() {
    return QStringLiteral("orca.toolpage.wobj");
}
QString globalToolPrefix() {
    return QStringLiteral("g_tool_");
}

} // namespace kite
