#include "stancemotion.h"

namespace pendant {
namespace view {

namespace {

QVector<double> between(const QVector<double>& from, const QVector<double>& to, double share) {
    QVector<double> values;
    for (int i = 0; i < to.size(); ++i)
        values.append(from.value(i) + (to.at(i) - from.value(i)) * share);
    return values;
}

} // namespace

void StanceMotion::jumpTo(const Stance& stance, qint64 nowMs) {
    m_from = stance;
    m_to = stance;
    m_startMs = nowMs;
    m_endMs = nowMs;
}

void StanceMotion::moveTo(const Stance& stance, qint64 nowMs) {
    if (stance == m_to)
        return;
    const qint64 sinceMs = nowMs - m_startMs;
    m_from = at(nowMs);
    m_to = stance;
    m_startMs = nowMs;
    m_endMs = nowMs + (sinceMs > 0 && sinceMs < longestStepMs ? sinceMs : usualStepMs);
}

Stance StanceMotion::at(qint64 nowMs) const {
    if (nowMs >= m_endMs)
        return m_to;
    const double share = double(nowMs - m_startMs) / double(m_endMs - m_startMs);
    return {between(m_from.joints, m_to.joints, share), between(m_from.externals, m_to.externals, share)};
}

} // namespace view
} // namespace pendant
