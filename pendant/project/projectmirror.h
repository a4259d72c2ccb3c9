#pragma once

#include "recordlist.h"

#include "brisk/link.h"
#include "brisk/moduleobject.h"

#include <QObject>
#include <QString>

#include <memory>

class QJsonObject;

namespace pendant {

class Autoload;

/// Keeps the project in the data tree and the one in the controller alike.
///
/// The tree leads. When both links are up and the tree holds no project yet, one is loaded: where the setting
/// "workspace" says where projects lie, the one that "orca.project.cur_project" names, or the one that was open last,
/// or the cell's; otherwise the controller's. Records that somebody has put into the tree before stay, save those whose
/// name the loaded project has too. After that the records of variables and points that change are sent to the
/// controller at the end of the turn of the event loop, and all of them when something changed with a link down.
///
/// When "orca.project.cur_project" names another project, that is opened at once: what is pending is sent, the
/// controller keeps the one before, and variables, points and templates of the new one take the place of what is in the
/// tree. One that cannot be opened is told of, and the name is taken back. With a link down it is opened when both
/// are up.
///
/// When "orca.project.cur_project" is triggered, a reload is queued: what is pending is sent, then the records go that
/// the controller has confirmed deleted, and nothing else. With a link down a reload changes nothing.
class ProjectMirror : public QObject {
    Q_OBJECT

public:
    explicit ProjectMirror(QObject* parent = nullptr);
    ~ProjectMirror() override;

    /// Has the controller keep what is pending, as far as the links are up; no project is opened from then on.
    void close();
    /// All records, as the command "mirror.put" takes them, when the controller does not have them all; otherwise null.
    std::unique_ptr<brisk::ModuleObject> unsent();

private:
    void listen(brisk::ModuleObject* name);
    void followLinks();
    void followName(const QObject* sender);

    void load();
    brisk::standin::Content askForStart();
    void take(const QJsonObject& project);

    bool isAnotherNamed() const;
    void open();
    void replaceBy(QJsonObject project);
    void refuse(const QString& reference, const QString& why);
    void takeBack(const QString& reference);

    void pushSoon();
    void push();
    void pushAll();
    void send(brisk::ModuleObject* changes, bool replace);
    void askForReload();
    void reload();

    RecordList m_variables;
    RecordList m_points;
    FollowedNode m_name;
    std::unique_ptr<Autoload> m_autoload; // null when projects are not kept on disk
    QString m_open;                       // the reference of the project that is in the tree
    bool m_isOpening = false;
    bool m_wereUp = false;
    bool m_pushQueued = false;
    bool m_reloadQueued = false;
};

} // namespace pendant
