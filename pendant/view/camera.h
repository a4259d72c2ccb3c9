#pragma once

#include "spatial.h"

#include <QPointF>
#include <QSizeF>
#include <QVector>

namespace pendant {
namespace view {

/// Looks at a target from above the floor and goes around it. Pixels count from the upper left corner.
class Camera {
public:
    Camera();

    void setViewport(const QSizeF& size) { m_viewport = size; }
    QSizeF viewport() const { return m_viewport; }

    double azimuthDeg() const { return m_azimuthDeg; }
    double elevationDeg() const { return m_elevationDeg; }
    double distanceMm() const { return m_distanceMm; }
    Vector target() const { return m_target; }

    /// Shows all of these, with some room around them, from where it looks.
    void fit(const QVector<Vector>& positions);
    /// Looks from there, as far away as before.
    void lookFrom(double azimuthDeg, double elevationDeg);
    /// A drag by so many pixels turns the scene along.
    void orbit(const QPointF& pixels);
    /// A drag by so many pixels takes the target along.
    void pan(const QPointF& pixels);
    /// Above 1 comes nearer. What is at `pixel` stays there.
    void zoom(double factor, const QPointF& pixel);

    /// X to the right, Y up, Z towards the eye.
    Rotation basis() const { return m_basis; }
    Vector eye() const { return m_target + m_basis.z * m_distanceMm; }
    /// Pixels that a mm at a distance of one mm is wide.
    double focalPixels() const;

    /// How far in front of the eye; what is not, has no pixel.
    double depthMm(const Vector& position) const;
    bool sees(const Vector& position) const { return depthMm(position) > nearestMm; }
    QPointF pixel(const Vector& position) const;

    static constexpr double nearestMm = 10;

private:
    void turn();

    QSizeF m_viewport{600, 600};
    Vector m_target;
    double m_azimuthDeg = -52;
    double m_elevationDeg = 22;
    double m_distanceMm = 5000;
    double m_fittedMm = 5000;
    Rotation m_basis;
};

} // namespace view
} // namespace pendant
