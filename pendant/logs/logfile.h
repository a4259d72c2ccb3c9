#pragma once

#include <QDate>
#include <QString>
#include <QVector>

namespace pendant {

/// One log file, by its name: path_yyyyMMdd.log, path_yyyyMMdd_N.log.
struct LogFile {
    QString path;  ///< absolute
    QString log;   ///< the log it belongs to, with its folder below the log folder: "kite", "cell/feeder"
    QDate day;     ///< invalid when the name holds none
    int index = 0; ///< of rotation, 0 for none

    bool operator==(const LogFile& other) const { return path == other.path; }
    bool operator!=(const LogFile& other) const { return path != other.path; }
};

/// Log, day and index out of the path of a file below `folder`.
LogFile logFileOf(const QString& folder, const QString& path);

/// In the order of writing: by log, then by day, then by index.
bool isWrittenBefore(const LogFile& left, const LogFile& right);

/// Every "*.log" below `folder`, in the order of writing. Links to folders are not followed.
QVector<LogFile> findLogFiles(const QString& folder);

} // namespace pendant
