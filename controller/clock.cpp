#include "controller/clock.h"

#include <QScopedValueRollback>

namespace controller {

Clock::Clock(QObject* parent) : QObject(parent) {
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(int(tickMs));
    connect(&m_timer, &QTimer::timeout, this, &Clock::follow);
}

void Clock::step(qint64 ms) {
    if (ms <= 0)
        return;
    m_untilMs += ms;
    if (m_isStepping)
        return;
    // A listener may throw.
    const QScopedValueRollback<bool> stepping(m_isStepping, true);
    while (m_nowMs < m_untilMs) {
        const qint64 byMs = nextStop() - m_nowMs;
        m_nowMs += byMs;
        emit advanced(m_nowMs, byMs);
    }
}

void Clock::runByItself(bool on) {
    if (on == m_timer.isActive())
        return;
    if (!on)
        return m_timer.stop();
    m_wall.start();
    m_followedMs = 0;
    m_timer.start();
}

qint64 Clock::nextStop() const {
    return qMin(m_untilMs, (m_nowMs / tickMs + 1) * tickMs);
}

// What is left of a tick waits for the next call.
void Clock::follow() {
    const qint64 nextMs = m_nowMs + m_wall.elapsed() - m_followedMs;
    const qint64 byMs = nextMs / tickMs * tickMs - m_nowMs;
    if (byMs <= 0)
        return;
    m_followedMs += byMs;
    step(byMs);
}

} // namespace controller
