#include "logsearch.h"

#include "logentries.h"
#include "logtext.h"

#include <QElapsedTimer>

#include <algorithm>

namespace pendant {

namespace {

const int sliceMs = 8;
const int stretchSize = 262144;
// How far back it looks for a line with a tag before it takes what it has.
const int longestStretch = 4 * stretchSize;

} // namespace

LogSearch::LogSearch(const LogText* text, QObject* parent) : QObject(parent), m_text(text), m_hits(text) {
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &LogSearch::slice);
}

void LogSearch::start(const LogFilter& filter) {
    forget();
    m_matcher = std::make_unique<LogMatcher>(filter);
    const LogPlace last = m_text->previous(m_text->end());
    m_newest = last.isValid() ? logEntryStart(*m_text, last) : m_text->end();
    m_upper = m_newest;
    m_end = m_newest;
    m_done = false;
    goOn();
}

void LogSearch::goOn() {
    if (isActive() && !m_isPaused)
        m_timer.start();
}

void LogSearch::setPaused(bool paused) {
    m_isPaused = paused;
    m_timer.stop();
    goOn();
}

void LogSearch::stop() {
    m_done = true;
}

void LogSearch::forget() {
    m_timer.stop();
    m_matcher.reset();
    m_hits.clear();
    m_sizes.clear();
    m_done = true;
    m_complete = false;
}

void LogSearch::textGrown() {
    if (!isActive())
        return;
    m_hits.dropBefore(m_text->firstFile());
    goOn();
}

double LogSearch::progress() const {
    if (m_text->size() == 0 || m_complete)
        return 1;
    const qint64 left = m_text->distance(m_text->first(), m_upper);
    return 1 - static_cast<double>(left) / static_cast<double>(m_text->size());
}

void LogSearch::slice() {
    QElapsedTimer spent;
    spent.start();
    m_found = false;
    bool more = true;
    while (more && !spent.hasExpired(sliceMs))
        more = step();
    if (!more)
        m_timer.stop();
    emit progressed(m_found);
}

bool LogSearch::step() {
    if (m_end != m_text->end())
        return stepForward();
    if (stepBetween())
        return true;
    return !m_done && stepBack();
}

// The last entry of a stretch may go on behind it, so the next stretch begins with it.
bool LogSearch::stepForward() {
    m_hits.dropFrom(m_newest);
    const qint64 left = m_text->fileSize(m_newest.file) - m_newest.offset;
    if (left <= 0 && m_newest.file < m_text->end().file) {
        m_sizes[m_newest.file] = m_newest.offset;
        m_newest = m_end = {std::max(m_newest.file + 1, m_text->firstFile()), 0};
        return true;
    }
    const LogPlace from = m_newest;
    const QByteArray bytes = m_text->bytes(from, stretchSize);
    const QVector<LogEntry> entries = logEntries(bytes);
    for (const LogEntry& entry : entries) {
        m_newest = {from.file, from.offset + entry.offset};
        if (matches(QByteArray::fromRawData(bytes.constData() + entry.offset, entry.length)))
            m_hits.append(m_newest, entry.length);
    }
    m_end = {from.file, from.offset + bytes.size()};
    const bool fileEnds = bytes.size() >= left || bytes.isEmpty();
    if (fileEnds && from.file < m_text->end().file) {
        m_sizes[from.file] = m_end.offset;
        m_newest = m_end = {from.file + 1, 0};
    } else if (fileEnds)
        m_end = m_text->end();
    else if (entries.size() == 1)
        m_newest = m_end;
    return true;
}

// What somebody wrote to an older file who did not go on to the next one.
bool LogSearch::stepBetween() {
    for (auto size = m_sizes.begin(); size != m_sizes.end(); ++size) {
        if (m_text->fileSize(size.key()) <= size.value())
            continue;
        const LogPlace from{size.key(), size.value()};
        const QByteArray bytes = m_text->bytes(from, stretchSize);
        for (const LogEntry& entry : logEntries(bytes)) {
            if (matches(QByteArray::fromRawData(bytes.constData() + entry.offset, entry.length)))
                m_hits.insert({from.file, from.offset + entry.offset}, entry.length);
        }
        size.value() = bytes.isEmpty() ? m_text->fileSize(size.key()) : from.offset + bytes.size();
        return true;
    }
    return false;
}

bool LogSearch::stepBack() {
    while (m_upper.file >= m_text->firstFile() && m_upper.offset == 0) {
        m_upper = {m_upper.file - 1, m_text->fileSize(m_upper.file - 1)};
        m_sizes[m_upper.file] = m_upper.offset;
    }
    if (m_upper.file < m_text->firstFile() || m_hits.isFull()) {
        m_done = true;
        m_complete = m_upper.file < m_text->firstFile();
        return false;
    }
    const LogPlace from = stretchBefore(m_upper);
    const QByteArray bytes = m_text->bytes(from, m_upper.offset - from.offset);
    const QVector<LogEntry> entries = logEntries(bytes);
    for (auto entry = entries.crbegin(); entry != entries.crend() && !m_hits.isFull(); ++entry) {
        if (matches(QByteArray::fromRawData(bytes.constData() + entry->offset, entry->length)))
            m_hits.prepend({from.file, from.offset + entry->offset}, entry->length);
    }
    m_upper = from;
    return true;
}

// Begins with a line that has a tag where there is one near.
LogPlace LogSearch::stretchBefore(const LogPlace& upper) const {
    for (qint64 size = stretchSize;; size += stretchSize) {
        if (upper.offset <= size)
            return {upper.file, 0};
        LogPlace row = m_text->rowAt({upper.file, upper.offset - size});
        const LogPlace whole = row;
        const QByteArray bytes = m_text->bytes(row, stretchSize);
        for (const LogEntry& entry : logEntries(bytes)) {
            const bool head = isLogHead(bytes.constData() + entry.offset, entry.length);
            row = {upper.file, whole.offset + entry.offset};
            if (head && row < upper)
                return row;
        }
        if (size >= longestStretch)
            return whole;
    }
}

bool LogSearch::matches(const QByteArray& entry) {
    const bool found = m_matcher->matches(entry);
    m_found = m_found || found;
    return found;
}

} // namespace pendant
