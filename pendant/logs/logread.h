#pragma once

#include <QByteArray>
#include <QString>

namespace pendant {

/// What a file looks like now. A file is looked at and read anew each time and never kept open: the pendant must not
/// hold the room of a file that is cleaned up.
struct LogFileLook {
    qint64 size = 0;      ///< bytes; 0 when it cannot be read
    quint64 identity = 0; ///< another one when a new file took its place; 0 when it cannot be read
    QByteArray beginning; ///< the first bytes, at most 64
    QString problem;      ///< why it cannot be read, of the system; empty when it can
};

LogFileLook lookAtLogFile(const QString& path);

/// Whether `now` can be `before` with more at its end.
bool hasOnlyGrown(const LogFileLook& before, const LogFileLook& now);

/// Up to `length` bytes from `offset`; fewer where the file ends, none when it cannot be read. Never waits for a
/// writer.
QByteArray readLogFile(const QString& path, qint64 offset, qint64 length);

} // namespace pendant
