#pragma once

#include "armgeometry.h"

namespace pendant {
namespace view {

/// Goes from one told stance to the next, axis by axis, in the time that lies between them: the picture is a step
/// behind and never jerks. Times are ms of any clock.
class StanceMotion {
public:
    /// A stance that comes later than this after the one before is the first of a motion.
    static constexpr qint64 longestStepMs = 150;
    static constexpr qint64 usualStepMs = 50;

    /// Stands there at once.
    void jumpTo(const Stance& stance, qint64 nowMs);
    void moveTo(const Stance& stance, qint64 nowMs);

    bool isMoving(qint64 nowMs) const { return nowMs < m_endMs; }
    Stance at(qint64 nowMs) const;
    const Stance& goal() const { return m_to; }

private:
    Stance m_from;
    Stance m_to;
    qint64 m_startMs = 0;
    qint64 m_endMs = 0;
};

} // namespace view
} // namespace pendant
