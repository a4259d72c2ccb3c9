#pragma once

#include <QDateTime>

/// The clock that the log's sources and headers read in these tests, QDateTime::currentMSecsSinceEpoch(). It is the
/// machine's until a test sets it, and stands still from then on.
class Clock {
public:
    Clock();
    explicit Clock(const QDateTime& time);
    /// The clock runs again.
    ~Clock();

    void set(const QDateTime& time);
    void run();
    void advance(qint64 ms);
    /// From now on, whoever looks finds it so much later than the one before.
    void advanceAtEachLook(qint64 ms);

private:
    Q_DISABLE_COPY(Clock)
};
