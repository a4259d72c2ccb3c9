#include "clock.h"

#include "log/wallclock.h"

#include <atomic>

namespace {

const qint64 running = -1;
std::atomic<qint64> setMs{running};

} // namespace

namespace kite {

qint64 wallClockMs() {
    const qint64 ms = setMs;
    return ms == running ? QDateTime::currentMSecsSinceEpoch() : ms;
}

} // namespace kite

Clock::Clock() = default;

Clock::Clock(const QDateTime& time) {
    set(time);
}

Clock::~Clock() {
    run();
}

void Clock::run() {
    setMs = running;
}

void Clock::set(const QDateTime& time) {
    setMs = time.toMSecsSinceEpoch();
}

void Clock::advance(qint64 ms) {
    setMs += ms;
}
