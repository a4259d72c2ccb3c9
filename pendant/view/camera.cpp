#include "camera.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace pendant {
namespace view {

namespace {

const double fieldDeg = 28; // of the smaller side
// From below the floor would hide the robot.
const double lowestDeg = 2;
const double highestDeg = 89;
const double degPerPixel = 0.35;
const double nearestShare = 0.12; // of the distance that shows all
const double farthestShare = 4;

// Of the viewport, by half of what is fitted in.
const double usedShare = 0.41;

struct Range {
    double least = std::numeric_limits<double>::max();
    double most = std::numeric_limits<double>::lowest();

    void take(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
    double middle() const { return (least + most) / 2; }
};

double rad(double degrees) {
    return degrees * M_PI / 180;
}

} // namespace

Camera::Camera() {
    turn();
}

double Camera::focalPixels() const {
    return std::min(m_viewport.width(), m_viewport.height()) / 2 / std::tan(rad(fieldDeg) / 2);
}

void Camera::fit(const QVector<Vector>& positions) {
    if (positions.isEmpty())
        return;
    const Rotation toEye = inverse(m_basis);
    Range x, y, z;
    for (const Vector& position : positions) {
        const Vector seen = toEye * position;
        x.take(seen.x);
        y.take(seen.y);
        z.take(seen.z);
    }
    const Vector middle{x.middle(), y.middle(), z.middle()};
    m_target = m_basis * middle;
    double distance = nearestMm * 10;
    for (const Vector& position : positions) {
        const Vector seen = toEye * position - middle;
        distance = std::max({distance, seen.z + std::abs(seen.x) * focalPixels() / (m_viewport.width() * usedShare),
                             seen.z + std::abs(seen.y) * focalPixels() / (m_viewport.height() * usedShare)});
    }
    m_fittedMm = distance;
    m_distanceMm = distance;
}

void Camera::lookFrom(double azimuthDeg, double elevationDeg) {
    m_azimuthDeg = std::remainder(azimuthDeg, 360);
    m_elevationDeg = std::min(std::max(elevationDeg, lowestDeg), highestDeg);
    turn();
}

void Camera::orbit(const QPointF& pixels) {
    lookFrom(m_azimuthDeg - pixels.x() * degPerPixel, m_elevationDeg + pixels.y() * degPerPixel);
}

void Camera::pan(const QPointF& pixels) {
    const double mmPerPixel = m_distanceMm / focalPixels();
    m_target = m_target + m_basis.x * (-pixels.x() * mmPerPixel) + m_basis.y * (pixels.y() * mmPerPixel);
}

void Camera::zoom(double factor, const QPointF& pixel) {
    const double before = m_distanceMm;
    m_distanceMm = std::min(std::max(before / factor, m_fittedMm * nearestShare), m_fittedMm * farthestShare);
    const QPointF fromCentre = pixel - QPointF(m_viewport.width(), m_viewport.height()) / 2;
    // At the target's distance it was that far away and comes to be so much nearer.
    const QPointF drift = fromCentre * (before / m_distanceMm - 1);
    pan(-drift);
}

void Camera::turn() {
    const double a = rad(m_azimuthDeg);
    const double e = rad(m_elevationDeg);
    m_basis.z = {std::cos(e) * std::cos(a), std::cos(e) * std::sin(a), std::sin(e)};
    m_basis.x = {-std::sin(a), std::cos(a), 0};
    m_basis.y = cross(m_basis.z, m_basis.x);
}

double Camera::depthMm(const Vector& position) const {
    return dot(eye() - position, m_basis.z);
}

QPointF Camera::pixel(const Vector& position) const {
    const Vector seen = position - eye();
    const double scale = focalPixels() / depthMm(position);
    return {m_viewport.width() / 2 + dot(seen, m_basis.x) * scale,
            m_viewport.height() / 2 - dot(seen, m_basis.y) * scale};
}

} // namespace view
} // namespace pendant
