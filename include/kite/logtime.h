#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QLatin1String>
#include <QString>

namespace kite {
namespace detail {

/// What a second is called in the local time zone. Plain data, so that it can be asked for until the process is gone.
struct LocalSecond {
    bool isKnown;
    qint64 secondsSinceEpoch;
    bool hasZone;
    char zone[64]; ///< the variable TZ
    char day[9];   ///< "yyyyMMdd"
    char time[15]; ///< "MM/dd hh:mm:ss"

    bool isOf(qint64 seconds, const QByteArray& wantedZone) const {
        return isKnown && secondsSinceEpoch == seconds && hasZone == !wantedZone.isNull() && wantedZone == zone;
    }
};

/// Each look at the local time costs a look at the zone's file, so a thread remembers the last one: for that very
/// second and that value of TZ, and no longer. Midnight, summer time, another zone and a clock that jumps ask again; a
/// new zone file under the old name counts from the next second on.
///
/// Hidden, or plugins that are built without -fvisibility=hidden would share what is remembered, in whichever of them
/// was loaded first.
__attribute__((visibility("hidden"))) inline const LocalSecond& localSecond(qint64 seconds) {
    static thread_local LocalSecond known;
    const QByteArray zone = qgetenv("TZ");
    if (known.isOf(seconds, zone))
        return known;
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(seconds * 1000);
    known.secondsSinceEpoch = seconds;
    known.hasZone = !zone.isNull();
    qstrncpy(known.zone, zone.constData(), sizeof known.zone);
    qstrncpy(known.day, local.toString(QStringLiteral("yyyyMMdd")).toLatin1().constData(), sizeof known.day);
    qstrncpy(known.time, local.toString(QStringLiteral("MM/dd hh:mm:ss")).toLatin1().constData(), sizeof known.time);
    known.isKnown = true;
    return known;
}

/// Whole seconds, towards the past also before 1970.
inline qint64 secondOf(qint64 msecsSinceEpoch) {
    const qint64 seconds = msecsSinceEpoch / 1000;
    return msecsSinceEpoch % 1000 < 0 ? seconds - 1 : seconds;
}

} // namespace detail

/// The local time as it stands in the tag of a log line, "03/14 09:26:53.058".
/// \param msecsSinceEpoch QDateTime::currentMSecsSinceEpoch(), or another moment
///
/// Any thread.
/// \since 0.1
inline QString logTime(qint64 msecsSinceEpoch) {
    const qint64 seconds = detail::secondOf(msecsSinceEpoch);
    const int ms = static_cast<int>(msecsSinceEpoch - seconds * 1000);
    const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
    const char fraction[] = {'.', digit(ms / 100), digit(ms / 10), digit(ms), '\0'};
    return QLatin1String(detail::localSecond(seconds).time) + QLatin1String(fraction);
}

/// The same for this moment.
inline QString logTime() {
    return logTime(QDateTime::currentMSecsSinceEpoch());
}

} // namespace kite
