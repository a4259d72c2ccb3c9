#include "logfeed.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace pendant {

namespace {

const int pollMs = 1000;
// What comes in a burst is taken together.
const int pauseMs = 50;
// A change within the resolution of the file system's clock would leave the time of the folder as it was.
const int settledMs = 2000;

} // namespace

LogFeed::LogFeed(const QString& folder, QObject* parent) : QObject(parent), m_folder(QDir(folder).absolutePath()) {
    m_poll.setInterval(pollMs);
    for (QTimer* timer : {&m_listSoon, &m_stirSoon}) {
        timer->setInterval(pauseMs);
        timer->setSingleShot(true);
    }
    connect(&m_poll, &QTimer::timeout, this, &LogFeed::poll);
    connect(&m_listSoon, &QTimer::timeout, this, &LogFeed::list);
    connect(&m_stirSoon, &QTimer::timeout, this, &LogFeed::stirred);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_listSoon, [this] { m_listSoon.start(); });
    // Not started anew by every line: a log that is written to all the time would never be shown.
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        if (!m_stirSoon.isActive())
            m_stirSoon.start();
    });
}

bool LogFeed::folderExists() const {
    return QFileInfo(m_folder).isDir();
}

void LogFeed::setActive(bool active) {
    if (active) {
        list();
        m_poll.start();
        return;
    }
    for (QTimer* timer : {&m_poll, &m_listSoon, &m_stirSoon})
        timer->stop();
    watchFile(QString());
    watchFolders({});
}

void LogFeed::watchFile(const QString& path) {
    const bool watching = m_watcher.files().contains(path);
    if (path == m_watched && (watching || path.isEmpty()))
        return;
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_watched = path;
    if (QFileInfo(path).isFile())
        m_watcher.addPath(path);
}

void LogFeed::list() {
    m_listed = QDateTime::currentDateTimeUtc();
    const QStringList all = folders();
    m_folderTimes.clear();
    for (const QString& folder : all)
        m_folderTimes.insert(folder, QFileInfo(folder).lastModified());
    watchFolders(all);
    m_files = findLogFiles(m_folder);
    watchFile(m_watched);
    emit listed();
}

void LogFeed::poll() {
    if (foldersChanged())
        list();
    else
        emit stirred();
}

void LogFeed::watchFolders(const QStringList& folders) {
    const QStringList before = m_watcher.directories();
    for (const QString& folder : before) {
        if (!folders.contains(folder))
            m_watcher.removePath(folder);
    }
    for (const QString& folder : folders) {
        if (!before.contains(folder))
            m_watcher.addPath(folder);
    }
}

QStringList LogFeed::folders() const {
    QStringList result;
    if (folderExists())
        result.append(m_folder);
    QDirIterator walk(m_folder, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        result.append(walk.next());
    return result;
}

bool LogFeed::foldersChanged() const {
    if (folderExists() != m_folderTimes.contains(m_folder))
        return true;
    for (auto folder = m_folderTimes.cbegin(); folder != m_folderTimes.cend(); ++folder) {
        const QDateTime changed = QFileInfo(folder.key()).lastModified();
        if (changed != folder.value() || changed.addMSecs(settledMs) > m_listed)
            return true;
    }
    return false;
}

} // namespace pendant
