#pragma once

#include "hostsettings.h"

#include <QDir>
#include <QFileInfo>

/// removeProject() deletes what the setting "workspace" and a name lead to, and neither is looked at. So no test calls
/// it before this has seen where it would go.
struct RemovalGuard {
    /// The folder that nothing may be removed outside of, and the workspace, which lies three folders below it.
    QString temporary;
    QString workspace;

    /// Ends the process rather than have the project of that name and robot removed where it is not safe.
    void check(const QString& robot, const QString& name) const {
        const QString reason = danger(HostSettings::get("workspace"), robot, name);
        if (!reason.isEmpty())
            qFatal("No project is removed: %s", qPrintable(reason));
    }

    /// Why it is not safe where `set` is the host's setting; empty when it is.
    QString danger(const QString& set, const QString& robot, const QString& name) const {
        if (set.isEmpty() || set != workspace)
            return QString("the workspace is set to \"%1\".").arg(set);
        const QString top = QFileInfo(temporary).canonicalFilePath();
        if (top.isEmpty() || QDir(top).isRoot())
            return QString("\"%1\" is no temporary folder.").arg(temporary);
        // Also empty where it is not there, or in a folder that is closed to this user.
        if (QFileInfo(set).canonicalFilePath() != top + "/one/two/workspace")
            return QString("there is no workspace three folders below %1.").arg(top);
        const QString target = set + "/" + robot + "/" + name;
        return isInside(target) ? QString() : target + " is outside the temporary folder.";
    }

    /// Whether the path leads below the temporary folder, both as it is written and as it is on the disk.
    bool isInside(const QString& path) const {
        const QString top = QFileInfo(temporary).canonicalFilePath();
        return !top.isEmpty() && QDir::cleanPath(path).startsWith(QDir::cleanPath(temporary) + "/") &&
               nearestThere(path).startsWith(top + "/");
    }

private:
    // The path itself where it is there, or else the nearest of the folders that lead to it, with all links followed.
    static QString nearestThere(QString path) {
        while (path.contains('/') && QFileInfo(path).canonicalFilePath().isEmpty())
            path.truncate(path.lastIndexOf('/'));
        return QFileInfo(path).canonicalFilePath();
    }
};
