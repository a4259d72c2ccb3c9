#pragma once

#include <vector>

namespace controller {

/// How far something is on its way, and how fast it goes, per second.
struct Progress {
    double at = 0;
    double speed = 0;
};

/// A course over time that ends at rest: phases of even acceleration, one after the other.
class Profile {
public:
    /// From rest at 0 to rest at `length` as fast as it may.
    /// \param speed the greatest, more than 0
    /// \param acceleration the greatest, and that of slowing down, more than 0
    static Profile over(double length, double speed, double acceleration);
    /// From `now` to rest as soon as `acceleration` lets it.
    static Profile braking(const Progress& now, double acceleration);

    /// At rest at the start before, at rest at the end after.
    Progress after(double seconds) const;
    double seconds() const;
    /// Where it comes to rest.
    double end() const { return m_end; }

private:
    struct Phase {
        double seconds;
        double acceleration;
    };
    Profile(const Progress& start, double end, const std::vector<Phase>& phases);

    Progress m_start;
    double m_end;
    std::vector<Phase> m_phases;
};

/// How far it is from `now` to rest.
double brakingDistance(const Progress& now, double acceleration);

} // namespace controller
