#pragma once

#include "logfile.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

namespace pendant {

/// Tells when log files come and go, and when it is time to look whether one has grown.
///
/// It listens to the file system and looks by itself every second besides, for not every file system tells. While it
/// is not active it costs nothing.
class LogFeed : public QObject {
    Q_OBJECT

public:
    explicit LogFeed(const QString& folder, QObject* parent = nullptr);

    const QString& folder() const { return m_folder; }
    bool folderExists() const;
    /// All log files, in the order of writing, as they were listed last.
    const QVector<LogFile>& files() const { return m_files; }
    /// Lists the files at once when it becomes active.
    void setActive(bool active);
    /// Tells soon when this file is written to; the one that was named before is not watched any more.
    void watchFile(const QString& path);

signals:
    /// Files came or went, or one took the place of another; or it was looked whether they did.
    void listed();
    /// A file may have grown.
    void stirred();

private:
    void list();
    void poll();
    void watchFolders(const QStringList& folders);
    QStringList folders() const;
    bool foldersChanged() const;

    QString m_folder;
    QString m_watched;
    QVector<LogFile> m_files;
    QHash<QString, QDateTime> m_folderTimes; ///< of the last change, by path
    QDateTime m_listed;
    QFileSystemWatcher m_watcher;
    QTimer m_poll;
    QTimer m_listSoon;
    QTimer m_stirSoon;
};

} // namespace pendant
