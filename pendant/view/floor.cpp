#include "floor.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

#include <cmath>

namespace pendant {
namespace view {

namespace {

bool isSameView(const Camera& one, const Camera& other) {
    return one.viewport() == other.viewport() && one.azimuthDeg() == other.azimuthDeg() &&
           one.elevationDeg() == other.elevationDeg() && one.distanceMm() == other.distanceMm() &&
           length(one.target() - other.target()) == 0;
}

QColor faded(QColor colour, double share) {
    colour.setAlphaF(colour.alphaF() * share);
    return colour;
}

// What of a circle on the floor is in front of the eye.
QPolygonF circle(const Camera& camera, double radius) {
    QPolygonF corners;
    const int count = 64;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * M_PI * i / count;
        const Vector at{radius * std::cos(angle), radius * std::sin(angle), 0};
        if (camera.sees(at))
            corners << camera.pixel(at);
    }
    return corners;
}

void drawRoom(QPainter* painter, const Camera& camera, const Colours& colours) {
    QLinearGradient room(0, 0, 0, camera.viewport().height());
    room.setColorAt(0, colours.sky);
    room.setColorAt(1, colours.ground);
    painter->fillRect(QRectF(QPointF(), camera.viewport()), room);
}

// Fades out towards its rim.
void drawGround(QPainter* painter, const Camera& camera, const Colours& colours, double radius) {
    painter->setPen(Qt::NoPen);
    for (const double share : {1.12, 1.04, 0.96, 0.88, 0.8}) {
        painter->setBrush(faded(colours.floor, 0.24));
        painter->drawPolygon(circle(camera, radius * share));
    }
}

void drawPiece(QPainter* painter, const Camera& camera, const Vector& from, const Vector& to, const QColor& colour) {
    if (!camera.sees(from) || !camera.sees(to))
        return;
    painter->setPen(QPen(colour, 1));
    painter->drawLine(camera.pixel(from), camera.pixel(to));
}

// From rim to rim of the circle, paler towards its ends.
void drawLine(QPainter* painter, const Camera& camera, const QColor& colour, const Vector& middle,
              const Vector& direction, double radius) {
    const double half = std::sqrt(std::max(radius * radius - dot(middle, middle), 0.0));
    const double shares[] = {-1, -0.85, -0.7, 0.7, 0.85, 1};
    const double strengths[] = {0.25, 0.6, 1, 0.6, 0.25};
    const double strength = 1 - 0.75 * length(middle) / radius;
    for (int i = 0; i < 5; ++i)
        drawPiece(painter, camera, middle + direction * (half * shares[i]), middle + direction * (half * shares[i + 1]),
                  faded(colour, strengths[i] * strength));
}

} // namespace

double Floor::spacing(double radiusMm) {
    const double wanted = radiusMm / 9;
    double step = std::pow(10, std::floor(std::log10(wanted)));
    for (const double factor : {2.0, 2.5, 2.0}) {
        if (step >= wanted)
            break;
        step *= factor;
    }
    return step;
}

const QImage& Floor::picture(const Camera& camera, const Colours& colours, double radiusMm) {
    if (m_picture.isNull() || radiusMm != m_radiusMm || !isSameView(camera, m_camera) || !(colours == m_colours))
        draw(camera, colours, radiusMm);
    return m_picture;
}

void Floor::draw(const Camera& camera, const Colours& colours, double radiusMm) {
    m_camera = camera;
    m_colours = colours;
    m_radiusMm = radiusMm;
    const QSize size = camera.viewport().toSize();
    if (m_picture.size() != size)
        m_picture = QImage(size, QImage::Format_RGB32);
    QPainter painter(&m_picture);
    drawRoom(&painter, camera, colours);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGround(&painter, camera, colours, radiusMm);
    const double step = spacing(radiusMm);
    const int lines = int(radiusMm / step);
    for (int i = -lines; i <= lines; ++i) {
        drawLine(&painter, camera, colours.grid, {i * step, 0, 0}, {0, 1, 0}, radiusMm);
        drawLine(&painter, camera, colours.grid, {0, i * step, 0}, {1, 0, 0}, radiusMm);
    }
}

} // namespace view
} // namespace pendant
