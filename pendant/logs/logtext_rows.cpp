#include "logtext.h"

#include <algorithm>

namespace pendant {

LogPlace LogText::first() const {
    return firstFrom(m_firstFile);
}

LogPlace LogText::end() const {
    if (m_files.isEmpty())
        return {m_firstFile, 0};
    return {m_firstFile + m_files.size() - 1, m_files.last().look.size};
}

LogPlace LogText::next(const LogPlace& row) const {
    if (!has(row.file))
        return rowAt(row);
    const qint64 after = rowEnd(row.file, row.offset);
    return after < fileSize(row.file) ? LogPlace{row.file, after} : firstFrom(row.file + 1);
}

LogPlace LogText::previous(const LogPlace& row) const {
    if (has(row.file) && row.offset > 0)
        return {row.file, rowStart(row.file, row.offset - 1)};
    for (int number = row.file - 1; has(number); --number) {
        if (fileSize(number) > 0)
            return {number, rowStart(number, fileSize(number) - 1)};
    }
    return LogPlace();
}

LogPlace LogText::rowAt(const LogPlace& place) const {
    if (place.file < m_firstFile)
        return first();
    if (place.offset < fileSize(place.file))
        return {place.file, rowStart(place.file, place.offset)};
    return firstFrom(place.file + 1);
}

double LogText::fractionBefore(const LogPlace& row) const {
    return m_size > 0 ? static_cast<double>(distance(first(), row)) / static_cast<double>(m_size) : 0;
}

LogPlace LogText::rowAtFraction(double fraction) const {
    const auto wanted = static_cast<qint64>(fraction * static_cast<double>(m_size));
    for (int i = m_files.size() - 1; i >= 0; --i) {
        if (wanted >= m_files.at(i).before)
            return rowAt({m_firstFile + i, wanted - m_files.at(i).before});
    }
    return first();
}

QByteArray LogText::row(const LogPlace& row) const {
    if (!has(row.file))
        return QByteArray();
    const qint64 end = rowEnd(row.file, row.offset);
    QByteArray text;
    for (qint64 at = row.offset; at < end;) {
        const qint64 index = at / blockSize;
        const QByteArray part =
            block(row.file, index).mid(static_cast<int>(at % blockSize), static_cast<int>(end - at));
        text += part;
        at = (index + 1) * blockSize;
    }
    if (text.endsWith('\n'))
        text.chop(1);
    if (text.endsWith('\r'))
        text.chop(1);
    return text;
}

// A file that shrinks under the reader leaves a block short; it is read again then, and found out at the next refresh.
QByteArray LogText::block(int number, qint64 index) const {
    const QPair<int, qint64> key(number, index);
    const qint64 wanted = std::min<qint64>(blockSize, fileSize(number) - index * blockSize);
    const QByteArray* known = m_blocks.object(key);
    if (known && known->size() == wanted)
        return *known;
    const QByteArray read = bytes({number, index * blockSize}, blockSize);
    m_blocks.insert(key, new QByteArray(read));
    return read;
}

qint64 LogText::rowStart(int number, qint64 offset) const {
    const qint64 index = offset / blockSize;
    const qint64 start = index * blockSize;
    const QByteArray text = block(number, index);
    // From -1 would mean from its end.
    const int before = offset > start ? text.lastIndexOf('\n', static_cast<int>(offset - start - 1)) : -1;
    if (before >= 0 || index == 0)
        return start + before + 1;
    const int earlier = block(number, index - 1).lastIndexOf('\n');
    return earlier < 0 ? start : start - blockSize + earlier + 1;
}

qint64 LogText::rowEnd(int number, qint64 offset) const {
    const qint64 index = offset / blockSize;
    const qint64 after = (index + 1) * blockSize;
    const QByteArray text = block(number, index);
    const int found = text.indexOf('\n', static_cast<int>(offset % blockSize));
    if (found >= 0)
        return index * blockSize + found + 1;
    if (after >= fileSize(number) || !text.contains('\n'))
        return std::min(after, fileSize(number));
    const int later = block(number, index + 1).indexOf('\n');
    return later >= 0 ? after + later + 1 : std::min(after + blockSize, fileSize(number));
}

LogPlace LogText::firstFrom(int number) const {
    for (; has(number); ++number) {
        if (fileSize(number) > 0)
            return {number, 0};
    }
    return end();
}

} // namespace pendant
