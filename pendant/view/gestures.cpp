#include "gestures.h"

#include "camera.h"

#include <cmath>

namespace pendant {
namespace view {

namespace {

double lengthOf(const QPointF& way) {
    return std::sqrt(QPointF::dotProduct(way, way));
}

QPointF middleOf(const QVector<QPointF>& fingers) {
    return (fingers.at(0) + fingers.at(1)) / 2;
}

double spanOf(const QVector<QPointF>& fingers) {
    return lengthOf(fingers.at(1) - fingers.at(0));
}

} // namespace

void Gestures::touch(const QVector<QPointF>& fingers) {
    if (m_fingers.isEmpty() && fingers.size() == 1) {
        m_start = fingers.first();
        m_mayTap = true;
    } else if (fingers.size() > 1) {
        m_mayTap = false;
    }
    m_fingers = fingers;
}

Gestures::Meaning Gestures::slide(const QVector<QPointF>& fingers, bool pans) {
    if (m_fingers.isEmpty() || fingers.size() != m_fingers.size())
        return Nothing;
    if (m_mayTap && lengthOf(fingers.first() - m_start) < tapPixels)
        return Nothing;
    m_mayTap = false;
    if (fingers.size() == 1)
        slideOne(fingers.first(), pans);
    else
        slideTwo(fingers);
    m_fingers = fingers;
    return Moved;
}

void Gestures::slideOne(const QPointF& finger, bool pans) {
    const QPointF way = finger - m_fingers.first();
    pans ? m_camera->pan(way) : m_camera->orbit(way);
}

void Gestures::slideTwo(const QVector<QPointF>& fingers) {
    const QPointF middle = middleOf(fingers);
    m_camera->pan(middle - middleOf(m_fingers));
    const double before = spanOf(m_fingers);
    const double now = spanOf(fingers);
    if (before > 1 && now > 1)
        m_camera->zoom(now / before, middle);
}

Gestures::Meaning Gestures::lift(qint64 nowMs) {
    m_fingers.clear();
    if (!m_mayTap)
        return Nothing;
    m_mayTap = false;
    const bool isSecond = nowMs - m_lastTapMs < doubleTapMs && lengthOf(m_start - m_lastTap) < 4 * tapPixels;
    m_lastTap = m_start;
    m_lastTapMs = isSecond ? nowMs - doubleTapMs : nowMs;
    return isSecond ? TappedTwice : Tapped;
}

void Gestures::cancel() {
    m_fingers.clear();
    m_mayTap = false;
}

} // namespace view
} // namespace pendant
