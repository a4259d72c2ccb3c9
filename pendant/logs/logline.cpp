#include "logline.h"

#include <QTime>

#include <cstdlib>
#include <cstring>

namespace pendant {

namespace {

const char timeShape[] = "00/00 00:00:00.000";
const int timeLength = sizeof(timeShape) - 1;
const int longestTag = 16;

bool fitsTime(const char* text) {
    for (int i = 0; i < timeLength; ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (timeShape[i] == '0' ? !digit : text[i] != timeShape[i])
            return false;
    }
    return true;
}

// Where the tag ends, at its '|'; -1 when the line does not begin with tag and time.
int tagEnd(const char* line, qint64 length) {
    if (length < timeLength + 4 || line[0] != '[')
        return -1;
    const auto searched = static_cast<size_t>(qMin<qint64>(length, longestTag + 2));
    const auto* bar = static_cast<const char*>(std::memchr(line, '|', searched));
    if (!bar || bar == line + 1)
        return -1;
    const auto at = static_cast<int>(bar - line);
    const bool whole = length >= at + timeLength + 2 && line[at + 1 + timeLength] == ']' && fitsTime(bar + 1);
    return whole ? at : -1;
}

LogLevel levelOf(const QString& tag) {
    if (tag == QLatin1String("E"))
        return LogLevel::Error;
    if (tag == QLatin1String("S"))
        return LogLevel::Service;
    return tag == QLatin1String("I") ? LogLevel::Information : LogLevel::Other;
}

bool isInsideCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

int lengthOfCharacter(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0xc0)
        return 1;
    return byte < 0xe0 ? 2 : byte < 0xf0 ? 3 : 4;
}

// The length without a character at the end whose last bytes are missing.
int wholeCharacters(const QByteArray& line) {
    int last = line.size() - 1;
    while (last > 0 && line.size() - last < 4 && isInsideCharacter(line.at(last)))
        --last;
    return last >= 0 && last + lengthOfCharacter(line.at(last)) > line.size() ? last : line.size();
}

QString decoded(const QByteArray& line) {
    return QString::fromUtf8(line.constData(), wholeCharacters(line));
}

LogMoment momentIn(int year, const LogLine& line) {
    const QString& t = line.time;
    const QDate day(year, t.midRef(0, 2).toInt(), t.midRef(3, 2).toInt());
    return day.isValid() ? logMoment(day, QTime::fromString(t.mid(6), QStringLiteral("HH:mm:ss.zzz"))) : -1;
}

} // namespace

bool isLogHead(const char* line, qint64 length) {
    return tagEnd(line, length) > 0;
}

LogLine parseLogLine(const QByteArray& line) {
    LogLine result;
    const int bar = tagEnd(line.constData(), line.size());
    if (bar < 0) {
        result.text = decoded(line);
        return result;
    }
    result.tag = QString::fromUtf8(line.mid(1, bar - 1));
    result.level = levelOf(result.tag);
    result.time = QString::fromLatin1(line.mid(bar + 1, timeLength));
    result.text = decoded(line.mid(bar + timeLength + 2));
    const int moduleEnd = result.text.startsWith(QLatin1Char('<')) ? result.text.indexOf(QLatin1Char('>')) : -1;
    if (moduleEnd > 0) {
        result.module = result.text.mid(1, moduleEnd - 1);
        result.text.remove(0, moduleEnd + 1);
    }
    return result;
}

LogMoment logMoment(const QDate& day, const QTime& time) {
    const qint64 date = (day.year() * 100LL + day.month()) * 100 + day.day();
    const qint64 clock = (time.hour() * 100LL + time.minute()) * 100 + time.second();
    return (date * 1000000 + clock) * 1000 + time.msec();
}

LogMoment momentOf(const LogLine& line, const QDate& near) {
    if (!line.isHead())
        return -1;
    const int month = line.time.midRef(0, 2).toInt();
    const int year = near.year();
    if (month - near.month() > 6)
        return momentIn(year - 1, line);
    return momentIn(near.month() - month > 6 ? year + 1 : year, line);
}

} // namespace pendant
