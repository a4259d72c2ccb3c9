#pragma once

#include "recordlist.h"

#include "brisk/moduleobject.h"

#include <QObject>
#include <QString>

namespace pendant {

/// Keeps the project in the data tree and the one in the controller alike.
///
/// The tree leads. When both links are up and the tree holds no project yet, the controller's is loaded; records that
/// somebody has put into the tree before stay, save those whose name the loaded project has too. After that the
/// records of variables and points that change are sent to the controller at the end of the turn of the event loop, and
/// all of them when something changed with a link down.
///
/// When "orca.project.cur_project" is triggered, a reload is queued: what is pending is sent, then the records go that
/// the controller has confirmed deleted, and nothing else. With a link down a reload changes nothing.
class ProjectMirror : public QObject {
    Q_OBJECT

public:
    explicit ProjectMirror(QObject* parent = nullptr);
    ~ProjectMirror() override;

private:
    void listen(brisk::ModuleObject* name);
    void followLinks();
    void load();
    void pushSoon();
    void push();
    void pushAll();
    void send(brisk::ModuleObject* changes, bool replace);
    void askForReload(const QObject* sender);
    void reload();

    RecordList m_variables;
    RecordList m_points;
    FollowedNode m_name;
    bool m_wereUp = false;
    bool m_pushQueued = false;
    bool m_reloadQueued = false;
};

} // namespace pendant
