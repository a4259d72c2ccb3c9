#include "controller/cell/coursereader.h"

#include <cmath>

namespace controller {

namespace {

const double leastWaveS = 1;
const double leastCountS = 0.1;
const double mostS = 1000000;
const double mostValue = 1e9;

qint64 toMs(double seconds) {
    return qRound64(seconds * 1000);
}

qint64 msIn(const CellValue& json, double leastS) {
    const double seconds = json.numberFrom(leastS, mostS, QStringLiteral("seconds"));
    return toMs(qBound(leastS, seconds, mostS));
}

ChangingValues::Course waveIn(const CellValue& json) {
    json.mayHave({"min", "max", "periodS"});
    const double min = json["min"].numberFrom(-mostValue, mostValue);
    const double max = json["max"].numberFrom(-mostValue, mostValue);
    if (min > max)
        json.fail(QStringLiteral("\"min\" is greater than \"max\". Exchange them."));
    return wave(min, max, msIn(json["periodS"], leastWaveS));
}

ChangingValues::Course countIn(const CellValue& json) {
    json.mayHave({"from", "everyS"});
    const double from = json["from"].exists() ? json["from"].numberFrom(-mostValue, mostValue) : 0;
    if (std::floor(from) < from)
        json["from"].fail(QStringLiteral("Write a whole number."));
    return counter(json["from"].json().toInt(), msIn(json["everyS"], leastCountS));
}

ChangingValues::Course pulseIn(const CellValue& json) {
    json.mayHave({"onS", "periodS"});
    const qint64 onMs = msIn(json["onS"], leastCountS);
    const qint64 periodMs = msIn(json["periodS"], leastCountS);
    if (onMs >= periodMs)
        json["onS"].fail(QStringLiteral("It must be less than \"periodS\"."));
    return pulse(onMs, periodMs);
}

} // namespace

ChangingValues::Course courseIn(const CellValue& json) {
    const QStringList names = json.json().toObject().keys();
    if (names == QStringList{"wave"})
        return waveIn(json["wave"]);
    if (names == QStringList{"count"})
        return countIn(json["count"]);
    if (names == QStringList{"pulse"})
        return pulseIn(json["pulse"]);
    json.fail(QStringLiteral("Write {\"wave\": {...}}, {\"count\": {...}} or {\"pulse\": {...}}."));
    return nullptr;
}

} // namespace controller
