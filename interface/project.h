#pragma once

#include <QString>

namespace kite {

/// A project of the robot: a folder in the host's workspace, below one for the robot.
struct Project {
    /// The project of that name of the present robot. Nothing of the name is looked at or cleaned: "a/b" is a folder
    /// in a folder, and ".." the workspace itself.
    explicit Project(const QString& projectName);

    /// "demo"; a copy, for the caller's text may be changed while the bus is waited for.
    QString name;
    /// "LOCALHOST/demo": what the host calls it.
    QString reference;
    /// "/home/robot/workspace/LOCALHOST/demo"
    QString folder;

    /// Writes an error line and says false for a name that no project may have.
    static bool checkName(const QString& name);
};

/// "orca.project.cur_project": the reference of the project that is open.
QString currentProjectKey();
/// "orca.toolpage.tool", "orca.toolpage.wobj": what is selected.
QString currentToolKey();
QString currentWobjKey();
/// "g_tool_": what the names of global tools begin with, which every project has.
QString globalToolPrefix();

} // namespace kite
