#pragma once

#include "controller/bustable.h"
#include "controller/clock.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

namespace controller {

/// Bus keys whose value the clock moves. From outside they cannot be set.
class ChangingValues : public QObject {
    Q_OBJECT

public:
    /// The value at a moment of the clock.
    using Course = std::function<QVariant(qint64 nowMs)>;

    ChangingValues(const Clock* clock, BusTable* bus, QObject* parent = nullptr);

    /// Lets the value of `key` follow `course`, which is asked at every moment of the clock; a value that differs from
    /// the one before is written. It ends when the key is defined anew.
    void add(const QString& key, Course course);
    /// `key` keeps its present value and can be set.
    void remove(const QString& key);
    bool contains(const QString& key) const { return m_courses.contains(key); }

private:
    struct Entry {
        Course course;
        QVariant present;
    };
    void advance(qint64 nowMs);
    void advance(const QString& key, qint64 nowMs);

    const Clock* m_clock;
    BusTable* m_bus;
    QHash<QString, Entry> m_courses;
};

/// Up and down between `min` and `max`, starting at `min` and back there after every `periodMs`; a new value, with two
/// places after the point, every 100 ms.
ChangingValues::Course wave(double min, double max, qint64 periodMs);
/// From `start` on one more every `everyMs`, up to the greatest int.
ChangingValues::Course counter(int start, qint64 everyMs);
/// False, and true for the last `onMs` of every `periodMs`.
ChangingValues::Course pulse(qint64 onMs, qint64 periodMs);

} // namespace controller
