#include "controller/robot/move.h"

namespace controller {

Move::Move(std::unique_ptr<MovePath> path)
    : m_path(std::move(path)), m_profile(Profile::over(1, m_path->speed(), m_path->acceleration())) {}

MoveStep Move::at(qint64 sinceStartMs, const Posture& present) {
    if (!m_isBraking) {
        const Progress next = progressAt(sinceStartMs);
        m_error = m_path->lookAheadTo(std::min(1.0, next.at + brakingDistance(next, m_path->acceleration())));
        if (m_error)
            brake();
    }
    m_goneMs = sinceStartMs;
    MoveStep step{present, false, m_error};
    if (!m_path->bringTo(progressAt(sinceStartMs).at, &step.posture))
        return {present, true, outOfReach()};
    step.isOver = double(sinceStartMs - m_profileStartMs) / 1000 >= m_profile.seconds();
    return step;
}

void Move::brake() {
    if (m_isBraking)
        return;
    m_profile = Profile::braking(progressAt(m_goneMs), m_path->acceleration());
    m_profileStartMs = m_goneMs;
    m_isBraking = true;
}

Progress Move::progressAt(qint64 sinceStartMs) const {
    return m_profile.after(double(sinceStartMs - m_profileStartMs) / 1000);
}

} // namespace controller
