#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace controller {

/// Simulated time in milliseconds since the start. It is stepped by hand or runs by itself with wall time, and what
/// listens to it cannot tell the two apart.
///
/// Time moves in pieces that end at the multiples of `tickMs`, so one step of 1000 ms tells of the same moments on the
/// way as fifty of 20 ms. Running by itself it stops at these moments only; a step by hand may end between two.
class Clock : public QObject {
    Q_OBJECT

public:
    static constexpr qint64 tickMs = 20;

    explicit Clock(QObject* parent = nullptr);

    qint64 nowMs() const { return m_nowMs; }
    /// Moves on by `ms`; nothing happens for 0 or less. Called by a listener of advanced(), it adds to the step that is
    /// being made and returns at once. What a listener throws comes through; the next step makes up for the rest.
    void step(qint64 ms);

    bool runsByItself() const { return m_timer.isActive(); }
    /// Follows wall time, from the event loop. It makes up for the time in which the thread was blocked.
    void runByItself(bool on);

signals:
    void advanced(qint64 nowMs, qint64 byMs);

private:
    void follow();
    qint64 nextStop() const;

    qint64 m_nowMs = 0;
    qint64 m_untilMs = 0;
    bool m_isStepping = false;
    QTimer m_timer;
    QElapsedTimer m_wall;
    qint64 m_followedMs = 0; // of m_wall
};

} // namespace controller
