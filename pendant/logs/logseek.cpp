#include "logseek.h"

#include "logtext.h"

namespace pendant {

namespace {

// Lines without a time are passed over as far as this.
const int farthest = 1048576;

struct Head {
    LogPlace place;
    LogMoment moment = -1;
};

LogMoment momentAt(const LogText& text, const LogPlace& row) {
    const QByteArray line = text.row(row);
    return isLogHead(line.constData(), line.size()) ? momentOf(parseLogLine(line), text.dayOf(row.file)) : -1;
}

// The first row from `row` on, before `end` and in the same file, that has a time.
Head headFrom(const LogText& text, const LogPlace& row, qint64 end) {
    LogPlace at = row;
    while (at.file == row.file && at.offset < end && at.offset - row.offset < farthest) {
        const LogMoment moment = momentAt(text, at);
        if (moment >= 0)
            return {at, moment};
        at = text.next(at);
    }
    return Head();
}

// The last file that begins before the moment, or else the first.
int fileOf(const LogText& text, LogMoment moment) {
    int low = text.firstFile();
    int high = low + text.fileCount();
    while (high - low > 1) {
        const int middle = (low + high) / 2;
        const Head head = headFrom(text, {middle, 0}, text.fileSize(middle));
        if (head.moment >= moment)
            high = middle;
        else
            low = middle;
    }
    return low;
}

} // namespace

LogPlace seekLogMoment(const LogText& text, LogMoment moment) {
    const int file = fileOf(text, moment);
    qint64 low = 0;
    qint64 high = text.fileSize(file);
    while (low < high) {
        const LogPlace middle = text.rowAt({file, low + (high - low) / 2});
        const Head head = headFrom(text, middle, high);
        if (head.moment >= 0 && head.moment < moment)
            low = text.next(head.place).file == file ? text.next(head.place).offset : high;
        else if (middle.offset > low)
            high = middle.offset;
        else
            break;
    }
    const LogPlace found = text.rowAt({file, low});
    const Head head = headFrom(text, found, text.fileSize(found.file));
    return head.moment >= 0 ? head.place : text.rowAt({file + 1, 0});
}

} // namespace pendant
