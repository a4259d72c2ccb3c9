#pragma once

#include "controller/robot/moveerror.h"
#include "controller/robot/posture.h"

namespace controller {

/// The way of a move, on which places are from 0 to 1.
class MovePath {
public:
    virtual ~MovePath() = default;

    /// The greatest, of the whole way a second; more than 0.
    double speed() const { return m_speed; }
    /// The greatest, of the whole way a second and a second; more than 0.
    double acceleration() const { return m_acceleration; }

    /// Looks whether the arm can go on to `to`, from where it looked before; at first from the start. Goes on from
    /// rest at 0 to rest at 1.
    virtual MoveError lookAheadTo(double to) = 0;
    /// Brings the joints to `at`, from a place nearby.
    /// \return false when it cannot
    virtual bool bringTo(double at, Posture* posture) const = 0;

protected:
    /// Lets the way last so long that what is `length` of it keeps to these.
    void limit(double length, double speed, double acceleration);

private:
    // A way of no length is over at once.
    double m_speed = 1e6;
    double m_acceleration = 1e9;
};

} // namespace controller
