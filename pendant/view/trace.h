#pragma once

#include "spatial.h"

#include <QVector>

namespace pendant {
namespace view {

/// Where the tip of the tool has been in the last seconds of motion. It stays while the robot stands.
class Trace {
public:
    static constexpr qint64 lengthMs = 4000;

    struct Step {
        Vector at;
        qint64 ms; ///< of motion
    };

    void clear() { m_steps.clear(); }
    void add(const Vector& tip, qint64 nowMs);
    const QVector<Step>& steps() const { return m_steps; }
    /// Of a step: 1 when it is the newest, down to 0.
    double strength(int step) const;

private:
    QVector<Step> m_steps;
    qint64 m_lastMs = 0;
};

} // namespace view
} // namespace pendant
