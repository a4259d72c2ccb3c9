#include "controller/robot/movepath.h"

#include <algorithm>

namespace controller {

void MovePath::limit(double length, double speed, double acceleration) {
    const double dust = 1e-9;
    if (length < dust)
        return;
    m_speed = std::min(m_speed, speed / length);
    m_acceleration = std::min(m_acceleration, acceleration / length);
}

} // namespace controller
