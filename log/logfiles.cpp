#include "log/logfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sys/stat.h>

namespace kite {

namespace {

bool readStatus(const QString& fileName, struct stat* status) {
    return ::stat(QFile::encodeName(fileName).constData(), status) == 0;
}

qint64 modifiedNs(const struct stat& status) {
    return qint64(status.st_mtim.tv_sec) * 1000000000 + status.st_mtim.tv_nsec;
}

} // namespace

bool canBeOnDisk(const QString& path) {
    return !path.contains(QChar(0));
}

qint64 sizeOnDisk(const QString& fileName) {
    if (!canBeOnDisk(fileName))
        return -1;
    struct stat status;
    return readStatus(fileName, &status) ? status.st_size : -1;
}

void makeFolderOf(const QString& path) {
    if (!canBeOnDisk(path))
        return;
    const QDir folder = QFileInfo(path).dir();
    if (!folder.exists())
        folder.mkpath(QStringLiteral("."));
}

QStringList fileNamesBeside(const QString& path, const QString& pattern) {
    if (!canBeOnDisk(path))
        return {};
    return QFileInfo(path).dir().entryList({pattern}, QDir::Files, QDir::Unsorted);
}

qint64 sumOfSizesBeside(const QString& path, const QString& pattern) {
    const QDir folder = QFileInfo(path).dir();
    qint64 sum = 0;
    for (const QString& name : fileNamesBeside(path, pattern))
        sum += qMax<qint64>(0, sizeOnDisk(folder.filePath(name)));
    return sum;
}

// Each file's time is read once, before sorting: comparing files would read it at every comparison.
QVector<OldFile> logFilesByAge(const QString& path) {
    if (!canBeOnDisk(path))
        return {};
    QVector<OldFile> files;
    QDirIterator walk(QFileInfo(path).dir().absolutePath(), {QStringLiteral("*.log")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        struct stat status;
        if (readStatus(file, &status))
            files.append({file, status.st_size, modifiedNs(status)});
    }
    std::sort(files.begin(), files.end(),
              [](const OldFile& a, const OldFile& b) { return a.modifiedNs < b.modifiedNs; });
    return files;
}

} // namespace kite
