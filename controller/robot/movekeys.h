#pragma once

#include "controller/robot/movecommand.h"
#include "controller/robot/pathcheck.h"

#include <QObject>

namespace controller {

class BusTable;

/// The bus commands that move a robot to a target, and the key that tells why it has not come there.
class MoveKeys : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    MoveKeys(Robot* robot, const Project* project, BusTable* bus, QObject* parent = nullptr);

    /// Which names the commands have depends on the version of the host's libraries.
    void setHostVersion(const QString& version);
    PathCheck* pathCheck() { return &m_pathCheck; }

private:
    void know(const QString& command, MoveCommand::Way way);
    void refuse(const QString& command, const QString& inItsPlace);
    Content move(MoveCommand::Way way, const Content& sent);
    Content confirm();
    Content checkPath(const Content& sent);

    Robot* m_robot;
    BusTable* m_bus;
    PathCheck m_pathCheck;
    QString m_version;
};

} // namespace controller
