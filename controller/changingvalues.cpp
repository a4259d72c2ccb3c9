#include "controller/changingvalues.h"

#include <QtMath>

#include <cmath>
#include <limits>

namespace controller {

ChangingValues::ChangingValues(const Clock* clock, BusTable* bus, QObject* parent)
    : QObject(parent), m_clock(clock), m_bus(bus) {
    connect(clock, &Clock::advanced, this, [this](qint64 nowMs) { advance(nowMs); });
    connect(bus, &BusTable::defined, this, [this](const QString& key) { m_courses.remove(key); });
}

void ChangingValues::add(const QString& key, Course course) {
    const QVariant present = course(m_clock->nowMs());
    m_bus->define(key, present);
    m_bus->onSet(key, [key](const QString&, const Content&) {
        return QStringLiteral("The bus key \"%1\" changes by itself and cannot be set.").arg(key);
    });
    m_courses.insert(key, {std::move(course), present});
}

void ChangingValues::remove(const QString& key) {
    if (m_courses.remove(key) > 0)
        m_bus->onSet(key, nullptr);
}

void ChangingValues::advance(qint64 nowMs) {
    // Who is told of a new value may add and remove courses.
    const QStringList keys = m_courses.keys();
    for (const QString& key : keys)
        advance(key, nowMs);
}

// So may a course, itself included.
void ChangingValues::advance(const QString& key, qint64 nowMs) {
    const Course course = m_courses.value(key).course;
    if (!course)
        return;
    const QVariant next = course(nowMs);
    const auto entry = m_courses.find(key);
    if (entry == m_courses.end() || next == entry->present)
        return;
    entry->present = next;
    m_bus->write(key, next);
}

ChangingValues::Course wave(double min, double max, qint64 periodMs) {
    return [=](qint64 nowMs) {
        const qint64 everyMs = 100;
        const double turns = double(nowMs / everyMs * everyMs % periodMs) / double(periodMs);
        const double share = (1 - std::cos(2 * M_PI * turns)) / 2;
        const double value = min * (1 - share) + max * share;
        // Greater ones have no places after the point that could be told apart.
        return QVariant(std::abs(value) < 1e13 ? std::round(value * 100) / 100 : value);
    };
}

ChangingValues::Course counter(int start, qint64 everyMs) {
    return [=](qint64 nowMs) {
        const qint64 count = start + nowMs / everyMs;
        return QVariant(int(qMin<qint64>(count, std::numeric_limits<int>::max())));
    };
}

ChangingValues::Course pulse(qint64 onMs, qint64 periodMs) {
    return [=](qint64 nowMs) { return QVariant(nowMs % periodMs >= periodMs - onMs); };
}

} // namespace controller
