#pragma once

#include <QPointF>
#include <QVector>

namespace pendant {
namespace view {

class Camera;

/// Fingers, or a mouse, on the picture: one turns the scene, two take it along and zoom, a tap means what is there and
/// two taps show all. Times are ms of any clock.
class Gestures {
public:
    enum Meaning { Nothing, Moved, Tapped, TappedTwice };

    /// How far a finger that taps may slide.
    static constexpr double tapPixels = 8;
    static constexpr qint64 doubleTapMs = 400;

    explicit Gestures(Camera* camera) : m_camera(camera) {}

    /// All fingers that are down, after one was put down or lifted.
    void touch(const QVector<QPointF>& fingers);
    /// All fingers that are down, after one slid.
    /// \param pans whether one finger takes the scene along
    Meaning slide(const QVector<QPointF>& fingers, bool pans);
    /// The last one was lifted.
    Meaning lift(qint64 nowMs);
    /// What touches from here on is neither a tap nor a drag of what was before.
    void cancel();

    /// Where the tap was.
    QPointF place() const { return m_start; }

private:
    void slideOne(const QPointF& finger, bool pans);
    void slideTwo(const QVector<QPointF>& fingers);

    Camera* m_camera;
    QVector<QPointF> m_fingers;
    QPointF m_start;
    bool m_mayTap = false;
    QPointF m_lastTap;
    qint64 m_lastTapMs = -doubleTapMs;
};

} // namespace view
} // namespace pendant
