#pragma once

#include "controller/project/projectstart.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace controller {

class PersistentVariables;
class Project;

/// The projects on disk: a folder each, WORKSPACE/ROBOT/NAME. One of them is open: its variables and points are those
/// of the controller, and what changes is written a moment later.
///
/// A folder that goes is not made again: from then on the open project is kept nowhere, and failed() says so.
class ProjectStore : public QObject {
    Q_OBJECT

public:
    /// What keeps a name from being the name of a project, a sentence; empty when nothing does. A project is never
    /// looked for outside the robot's folder.
    static QString refusalOfName(const QString& name);

    /// Both must outlive it. \param saveDelayMs how long a change may wait until it is written
    ProjectStore(Project* project, PersistentVariables* variables, QObject* parent = nullptr, int saveDelayMs = 500);
    /// Writes what is not written yet.
    ~ProjectStore() override;

    /// Keeps the projects in the folder `workspace`, an absolute path. Opens `reference`, ROBOT/NAME, when it is not
    /// empty, otherwise the project called `autoload` when there is one; when that is nothing, the project of the cell,
    /// for which it makes the folder.
    void start(const QString& workspace, const QString& reference, const QString& autoload);
    /// Opens another project, ROBOT/NAME. A folder without variables and points in it is an empty project, one with the
    /// name of the cell's begins as that. Does nothing to the one that is open.
    /// \return what is wrong, a sentence, and the one before is still open; empty when it is open
    QString open(const QString& reference);
    /// Writes what is not written yet, now.
    /// \return what is wrong, a sentence; empty when all is well
    QString save();
    /// Writes what is not written yet and keeps nothing from then on.
    /// \return what is wrong, a sentence; empty when all is well
    QString close();

    /// The names of this robot's projects, in ascending order.
    QStringList names() const;
    /// The folder of the open project; empty when it is kept nowhere.
    QString folder() const { return m_folder; }
    /// The project of that name is about to be deleted.
    void expectRemoval(const QString& name);

signals:
    /// The open project cannot be kept, or the one to begin with cannot be opened; a sentence for the people at the
    /// pendant.
    void failed(const QString& text);

private:
    QString robotFolder() const;
    QString folderOf(const QString& reference) const;
    QString problemOf(const QString& reference) const;
    ProjectStart startOf(const QString& name) const;
    QString openCells();
    QString take(const QString& folder);
    void noteChange();
    void saveSoon();
    bool isGone() const;
    void tellGone();

    Project* m_project;
    PersistentVariables* m_variables;
    QString m_workspace;
    QString m_folder;
    QTimer m_soon;
    bool m_isUnsaved = false;
    bool m_isOpening = false;
    bool m_wasWritten = false; // the open project stands in its folder, unless somebody has deleted it
    bool m_isToldGone = false;
};

} // namespace controller
