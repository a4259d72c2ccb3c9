#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

namespace pendant {

enum class LogLevel {
    Error,       ///< tag "E"
    Service,     ///< tag "S"
    Information, ///< tag "I"
    Other,       ///< any other tag
    Plain        ///< a line without a tag
};

/// A line of a log file, taken apart: "[E|03/14 09:26:53.058]<weld>text".
///
/// A line that does not begin so belongs to the one above it.
struct LogLine {
    LogLevel level = LogLevel::Plain;
    QString tag;    ///< "E"
    QString time;   ///< "03/14 09:26:53.058"
    QString module; ///< "weld"; empty for none
    QString text;   ///< what is left

    bool isHead() const { return level != LogLevel::Plain; }
};

/// Takes a line apart. `line` is UTF-8 without its line break; an incomplete character at its end is left out, for it
/// may be half-written.
LogLine parseLogLine(const QByteArray& line);

/// Whether a line begins with tag and time. `line` may have more behind it.
bool isLogHead(const char* line, qint64 length);

/// A moment as a number that grows with it: yyyyMMddhhmmsszzz in local time as the clock on the wall shows it. An hour
/// that summer time repeats has its numbers twice.
using LogMoment = qint64;

LogMoment logMoment(const QDate& day, const QTime& time);

/// The moment of a line. Lines carry no year, so it is the one that brings the line nearest to `near`, the day of the
/// file; -1 when the line has no time.
LogMoment momentOf(const LogLine& line, const QDate& near);

} // namespace pendant
