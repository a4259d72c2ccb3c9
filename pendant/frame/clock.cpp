#include "clock.h"

#include <QTime>
#include <QVariant>

namespace pendant {

Clock::Clock(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("status:clock"));
    setProperty("live", true);
    setContentsMargins(12, 0, 12, 0);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Clock::tick);
    tick();
}

void Clock::tick() {
    const QTime now = QTime::currentTime();
    setText(now.toString(QStringLiteral("HH:mm")));
    const int intoMinuteMs = now.second() * 1000 + now.msec();
    m_timer.start(60000 - intoMinuteMs + 20); // a timer may fire a little early
}

} // namespace pendant
