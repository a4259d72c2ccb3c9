#pragma once

#include <QString>

namespace pendant {

/// Where the project stands in the data tree.
namespace projectkeys {

inline QString project() {
    return QStringLiteral("orca.project");
}
/// The open project: ROBOT/NAME. Triggering it asks for a reload.
inline QString name() {
    return QStringLiteral("orca.project.cur_project");
}
/// The name of the function, which is the program's.
inline QString function() {
    return QStringLiteral("orca.project.cur_func");
}
/// "description" and "create_time" of the open project. Intended: misspelt, as plugins write it.
inline QString info() {
    return QStringLiteral("orca.project.projetc_info");
}
/// What is opened at the next start: "NAME/FUNCTION".
inline QString autoload() {
    return QStringLiteral("orca.project.autoload_prj_path");
}
/// Triggering it has the list of projects read again.
inline QString refresh() {
    return QStringLiteral("orca.project.refresh_project");
}
inline QString robotId() {
    return QStringLiteral("helm.r.id");
}
/// What every new variable and point begins as.
inline QString variableTemplate() {
    return QStringLiteral("orca.project.var.default");
}
inline QString pointTemplate() {
    return QStringLiteral("orca.project.point.default");
}
/// The list of variable records.
inline QString variables() {
    return QStringLiteral("orca.project.var._list");
}
/// The list of point records.
inline QString points() {
    return QStringLiteral("orca.project.point._list");
}
/// Announces that points were added or edited.
inline QString pointsOperate() {
    return QStringLiteral("orca.project.point.hot_update.operate");
}
inline QString tool() {
    return QStringLiteral("orca.toolpage.tool");
}
inline QString workObject() {
    return QStringLiteral("orca.toolpage.wobj");
}
inline QString hostVersion() {
    return QStringLiteral("helm.r.version");
}

} // namespace projectkeys
} // namespace pendant
