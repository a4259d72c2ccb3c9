#pragma once

#include <QByteArray>
#include <QVector>

namespace pendant {

class LogText;
struct LogPlace;

/// Lines that belong together: one with a tag and those without that follow it. A line without a tag that follows none
/// stands alone.
struct LogEntry {
    int offset = 0; ///< bytes from the beginning of what was taken apart
    int length = 0; ///< with the line break
};

/// No entry is longer than this and one line; what comes after is taken for lines that stand alone.
const int longestLogEntry = 65536;

/// Takes apart whole lines.
QVector<LogEntry> logEntries(const QByteArray& lines);

/// Where the entry begins that holds the row at `row`: the row itself when no tag is near above it.
LogPlace logEntryStart(const LogText& text, const LogPlace& row);

/// The entry that holds the row at `row`, its lines as they are.
QByteArray logEntryAt(const LogText& text, const LogPlace& row);

} // namespace pendant
