#include "controller/robot/profile.h"

#include <cmath>

namespace controller {

namespace {

Progress after(const Progress& start, double seconds, double acceleration) {
    return {start.at + (start.speed + acceleration * seconds / 2) * seconds, start.speed + acceleration * seconds};
}

} // namespace

Profile::Profile(const Progress& start, double end, const std::vector<Phase>& phases)
    : m_start(start), m_end(end), m_phases(phases) {}

// Where the way is too short for the greatest speed nothing lies between speeding up and slowing down.
Profile Profile::over(double length, double speed, double acceleration) {
    const double top = std::min(speed, std::sqrt(length * acceleration));
    const double rampS = top / acceleration;
    const double evenS = top > 0 ? length / top - rampS : 0;
    return {{}, length, {{rampS, acceleration}, {std::max(0.0, evenS), 0}, {rampS, -acceleration}}};
}

Profile Profile::braking(const Progress& now, double acceleration) {
    return {now, now.at + brakingDistance(now, acceleration), {{now.speed / acceleration, -acceleration}}};
}

Progress Profile::after(double seconds) const {
    Progress progress = m_start;
    double leftS = std::max(0.0, seconds);
    for (const Phase& phase : m_phases) {
        progress = controller::after(progress, std::min(leftS, phase.seconds), phase.acceleration);
        if (leftS < phase.seconds)
            return progress;
        leftS -= phase.seconds;
    }
    return {m_end, 0};
}

double Profile::seconds() const {
    double sum = 0;
    for (const Phase& phase : m_phases)
        sum += phase.seconds;
    return sum;
}

double brakingDistance(const Progress& now, double acceleration) {
    return now.speed * now.speed / acceleration / 2;
}

} // namespace controller
