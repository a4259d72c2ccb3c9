#include "logentries.h"

#include "logline.h"
#include "logtext.h"

#include <algorithm>

namespace pendant {

namespace {

bool isHead(const LogText& text, const LogPlace& row) {
    const QByteArray line = text.row(row);
    return isLogHead(line.constData(), line.size());
}

} // namespace

QVector<LogEntry> logEntries(const QByteArray& lines) {
    QVector<LogEntry> entries;
    bool open = false;
    for (int at = 0; at < lines.size();) {
        const int found = lines.indexOf('\n', at);
        const int end = found < 0 ? lines.size() : found + 1;
        const bool head = isLogHead(lines.constData() + at, end - at);
        if (!head && open && entries.last().length < longestLogEntry) {
            entries.last().length += end - at;
        } else {
            LogEntry entry;
            entry.offset = at;
            entry.length = end - at;
            entries.append(entry);
            open = head;
        }
        at = end;
    }
    return entries;
}

LogPlace logEntryStart(const LogText& text, const LogPlace& row) {
    LogPlace at = row;
    while (at.isValid() && at.file == row.file && row.offset - at.offset <= longestLogEntry) {
        if (isHead(text, at))
            return at;
        at = text.previous(at);
    }
    return row;
}

QByteArray logEntryAt(const LogText& text, const LogPlace& row) {
    const LogPlace start = logEntryStart(text, row);
    // Another line may be as long as two blocks.
    const QByteArray bytes = text.bytes(start, longestLogEntry + 2 * LogText::blockSize);
    const QVector<LogEntry> entries = logEntries(bytes);
    return entries.isEmpty() ? QByteArray() : bytes.left(entries.first().length);
}

} // namespace pendant
