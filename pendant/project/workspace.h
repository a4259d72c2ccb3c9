#pragma once

#include <QCoreApplication>
#include <QString>

class QObject;

namespace pendant {

/// The folder with the projects on disk: WORKSPACE/ROBOT/NAME. What is done to them here takes the same steps as a
/// plugin that asks the host.
class Workspace {
    Q_DECLARE_TR_FUNCTIONS(pendant::Workspace)

public:
    /// What people say of a project.
    struct Info {
        QString description;
        QString created; ///< "yyyy-MM-dd hh:mm:ss", as it stands in the file
    };

    /// Sees to it that the setting "workspace" says something: the folder "workspace" of the working folder. Paths of
    /// projects would begin at the root of the disk otherwise.
    static void declare();
    /// The setting.
    static QString path();
    /// The robot's identifier in the data tree, or "LOCALHOST".
    static QString robot();
    /// By which the data tree calls the open project: ROBOT/NAME.
    static QString reference(const QString& name);
    static QString folder(const QString& name);
    static Info info(const QString& name);
    /// Whether the folder of the project `reference`, ROBOT/NAME, is there and nothing was kept in it yet.
    static bool isBlank(const QString& reference);

    /// Why this cannot be the name of a new project, a sentence; empty when it can. More is refused than a plugin's
    /// call does: what leads elsewhere, and what people cannot tell from another name.
    static QString problemOfName(const QString& name);

    /// Makes the folder of a project with its description.
    /// \return what is wrong, a sentence; empty when it is there
    static QString create(const QString& name, const QString& description);
    /// Has the pendant open it.
    static void open(QObject* sender, const QString& name);
    /// Deletes the folder of a project with all that is in it; of one that is a link, the link. Tells who lists
    /// projects. \return what is wrong, a sentence; empty when it is gone
    static QString remove(QObject* sender, const QString& name);

private:
    static QString deleteFolder(const QString& name);
    static bool isInItsPlace(const QString& name);
};

} // namespace pendant
