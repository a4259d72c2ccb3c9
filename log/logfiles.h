#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace kite {

/// What the log file manager asks of the disk. Nothing here takes a lock or remembers anything. Nor does anything write
/// a message, which would come while the manager's lock is held.

/// False for a name with a NUL character, which no file has, and which Qt warns of.
bool canBeOnDisk(const QString& path);

/// A file's size in bytes; -1 when there is none.
qint64 sizeOnDisk(const QString& fileName);

/// Makes the folder that `path` lies in, with all above it, unless it is there.
void makeFolderOf(const QString& path);

/// The names, without the folder, of the files beside `path` that match a wildcard pattern, in any order.
QStringList fileNamesBeside(const QString& path, const QString& pattern);

/// The sum of the sizes in bytes of the files beside `path` that match a wildcard pattern.
qint64 sumOfSizesBeside(const QString& path, const QString& pattern);

struct OldFile {
    QString absolutePath;
    qint64 size;       ///< bytes
    qint64 modifiedNs; ///< since 1970
};

/// Every "*.log" file of the folder that `path` lies in and of those below it, the oldest first. Empty when there is no
/// such folder.
QVector<OldFile> logFilesByAge(const QString& path);

} // namespace kite
