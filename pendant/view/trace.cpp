#include "trace.h"

#include <algorithm>

namespace pendant {
namespace view {

namespace {

const double leastMm = 1;
const qint64 pauseMs = 100; // longer than this between two steps the robot has stood

} // namespace

void Trace::add(const Vector& tip, qint64 nowMs) {
    const qint64 sinceMs = std::min(nowMs - m_lastMs, pauseMs);
    if (!m_steps.isEmpty() && length(tip - m_steps.last().at) < leastMm)
        return;
    m_lastMs = nowMs;
    const qint64 ms = m_steps.isEmpty() ? 0 : m_steps.last().ms + sinceMs;
    m_steps.append({tip, ms});
    const auto isOld = [ms](const Step& step) { return ms - step.ms > lengthMs; };
    m_steps.erase(m_steps.begin(), std::find_if_not(m_steps.begin(), m_steps.end(), isOld));
}

double Trace::strength(int step) const {
    return 1 - double(m_steps.last().ms - m_steps.at(step).ms) / double(lengthMs);
}

} // namespace view
} // namespace pendant
