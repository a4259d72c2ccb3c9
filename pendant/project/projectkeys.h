#pragma once

#include <QString>

namespace pendant {

/// Where the project stands in the data tree.
namespace projectkeys {

inline QString project() {
    return QStringLiteral("orca.project");
}
/// The project's name. Triggering it asks for a reload.
inline QString name() {
    return QStringLiteral("orca.project.cur_project");
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
