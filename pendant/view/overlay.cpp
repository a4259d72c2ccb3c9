#include "overlay.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

const double fingerPixels = 28;
const double markRadius = 4.5;
const double hiddenShare = 0.35;
const int panelMargin = 8;

QColor faded(QColor colour, double share) {
    colour.setAlphaF(colour.alphaF() * share);
    return colour;
}

double distance(const QPointF& one, const QPointF& other) {
    const QPointF way = one - other;
    return std::sqrt(QPointF::dotProduct(way, way));
}

} // namespace

int markerAt(const QVector<Marker>& markers, const Camera& camera, const QPointF& pixel) {
    int nearest = -1;
    double least = fingerPixels;
    for (int i = 0; i < markers.size(); ++i) {
        if (!camera.sees(markers.at(i).at))
            continue;
        const double away = distance(camera.pixel(markers.at(i).at), pixel);
        if (away < least) {
            least = away;
            nearest = i;
        }
    }
    return nearest;
}

Overlay::Overlay(QPainter* painter, const Content& content, const Colours& colours, const QFont& font)
    : m_painter(painter), m_content(content), m_colours(colours), m_font(font) {
    m_font.setPixelSize(13);
    m_digits = m_font;
    // Its digits have one width.
    m_digits.setFamily(QStringLiteral("DejaVu Sans"));
}

void Overlay::draw() {
    m_painter->setRenderHint(QPainter::Antialiasing);
    m_painter->setFont(m_font);
    drawValues();
    drawTrace();
    drawSelected();
    drawMarkers();
    drawWobjNames();
}

void Overlay::drawTrace() {
    const QVector<Trace::Step>& steps = m_content.trace->steps();
    for (int i = 1; i < steps.size(); ++i) {
        const Vector& from = steps.at(i - 1).at;
        const Vector& to = steps.at(i).at;
        if (!m_content.camera->sees(from) || !m_content.camera->sees(to))
            continue;
        const double share = m_content.picture->hides(to) ? hiddenShare : 1;
        m_painter->setPen(
            QPen(faded(m_colours.trace, m_content.trace->strength(i) * share), 2, Qt::SolidLine, Qt::FlatCap));
        m_painter->drawLine(m_content.camera->pixel(from), m_content.camera->pixel(to));
    }
}

// The world has no name: its frame stands at the foot of everything.
void Overlay::drawWobjNames() {
    const QMap<QString, Mount>& wobjs = m_content.picture->arm().wobjs;
    for (auto wobj = wobjs.constBegin(); wobj != wobjs.constEnd(); ++wobj) {
        const Place place = m_content.chain->inWorld(wobj.value());
        if (length(place.at) == 0 || !m_content.camera->sees(place.at))
            continue;
        const double width = QFontMetricsF(m_font).horizontalAdvance(wobj.key());
        const QPointF at = m_content.camera->pixel(place.at) + QPointF(-width / 2, 22);
        const double share = m_content.picture->hides(place.at) ? hiddenShare : 1;
        if (takeRoom(roomFor(at, wobj.key())))
            drawText(at, wobj.key(), faded(m_colours.dimText, share));
    }
}

void Overlay::drawMarkers() {
    for (int i = 0; i < m_content.markers.size(); ++i) {
        if (i != m_content.selected && m_content.camera->sees(m_content.markers.at(i).at))
            drawMarker(m_content.markers.at(i), false);
    }
}

void Overlay::drawMarker(const Marker& marker, bool isSelected) {
    const QPointF at = m_content.camera->pixel(marker.at);
    const double share = m_content.picture->hides(marker.at) && !isSelected ? hiddenShare : 1;
    const double radius = isSelected ? markRadius * 1.5 : markRadius;
    m_painter->setPen(QPen(faded(m_colours.halo, share), 2));
    m_painter->setBrush(faded(isSelected ? m_colours.selected : m_colours.point, share));
    m_painter->drawEllipse(at, radius, radius);
    if (isSelected) {
        m_painter->setPen(QPen(m_colours.selected, 2));
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawEllipse(at, radius + 5, radius + 5);
        return;
    }
    const QPointF beside = at + QPointF(9, 4.5);
    if (takeRoom(roomFor(beside, marker.point.name)))
        drawText(beside, marker.point.name, faded(m_colours.text, share));
}

// How high it is, and above what.
void Overlay::drawDrop(const Vector& from) {
    const Vector below{from.x, from.y, 0};
    if (!m_content.camera->sees(below))
        return;
    m_painter->setPen(QPen(faded(m_colours.selected, 0.7), 1.5, Qt::DashLine));
    m_painter->drawLine(m_content.camera->pixel(from), m_content.camera->pixel(below));
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(faded(m_colours.selected, 0.7));
    m_painter->drawEllipse(m_content.camera->pixel(below), 3, 1.5);
}

void Overlay::drawSelected() {
    const int selected = m_content.selected;
    if (selected < 0 || !m_content.camera->sees(m_content.markers.at(selected).at))
        return;
    const Marker& marker = m_content.markers.at(selected);
    drawDrop(marker.at);
    drawMarker(marker, true);
    const QStringList lines{marker.point.name, m_content.selectedText};
    const QFontMetricsF metrics(m_font);
    const double width = std::max(metrics.horizontalAdvance(lines.at(0)), metrics.horizontalAdvance(lines.at(1)));
    QRectF card(m_content.camera->pixel(marker.at) + QPointF(16, -56), QSizeF(width + 24, 48));
    const QSizeF all = m_content.camera->viewport();
    card.moveLeft(std::max(std::min(card.left(), all.width() - card.width() - 8), 8.0));
    card.moveTop(std::max(std::min(card.top(), all.height() - card.height() - 8), 8.0));
    m_painter->setPen(QPen(m_colours.selected, 1));
    m_painter->setBrush(m_colours.halo);
    m_painter->drawRoundedRect(card, 6, 6);
    m_painter->setPen(m_colours.text);
    m_painter->drawText(card.adjusted(12, 6, 0, 0), Qt::AlignLeft | Qt::AlignTop, lines.at(0));
    m_painter->setPen(m_colours.dimText);
    m_painter->drawText(card.adjusted(12, 0, 0, -6), Qt::AlignLeft | Qt::AlignBottom, lines.at(1));
    m_taken.append(card);
}

void Overlay::drawValues() {
    if (m_content.values.isEmpty())
        return;
    const QFontMetricsF metrics(m_font);
    double name = 0;
    const QFontMetricsF digits(m_digits);
    double value = digits.horizontalAdvance(QStringLiteral("-000.0°"));
    for (const auto& row : m_content.values) {
        name = std::max(name, metrics.horizontalAdvance(row.first));
        value = std::max(value, digits.horizontalAdvance(row.second));
    }
    const double line = metrics.height() + 4;
    const QRectF panel(panelMargin, panelMargin, name + value + 36, line * m_content.values.size() + 12);
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(faded(m_colours.halo, 0.8));
    m_painter->drawRoundedRect(panel, 6, 6);
    QRectF row(panel.left() + 12, panel.top() + 6, panel.width() - 24, line);
    for (const auto& shown : m_content.values) {
        m_painter->setPen(m_colours.dimText);
        m_painter->setFont(m_font);
        m_painter->drawText(row, Qt::AlignLeft | Qt::AlignVCenter, shown.first);
        m_painter->setPen(m_colours.text);
        m_painter->setFont(m_digits);
        m_painter->drawText(row, Qt::AlignRight | Qt::AlignVCenter, shown.second);
        row.translate(0, line);
    }
    m_painter->setFont(m_font);
    m_taken.append(panel);
}

void Overlay::drawText(const QPointF& at, const QString& text, const QColor& colour) {
    m_painter->setPen(faded(m_colours.halo, 0.75 * colour.alphaF()));
    for (const QPointF& side : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
        m_painter->drawText(at + side, text);
    m_painter->setPen(colour);
    m_painter->drawText(at, text);
}

QRectF Overlay::roomFor(const QPointF& at, const QString& text) const {
    const QFontMetricsF metrics(m_font);
    return {at.x(), at.y() - metrics.ascent(), metrics.horizontalAdvance(text), metrics.height()};
}

// A name that would stand on another one is left out.
bool Overlay::takeRoom(const QRectF& room) {
    const bool isFree =
        std::none_of(m_taken.begin(), m_taken.end(), [&](const QRectF& taken) { return taken.intersects(room); });
    if (isFree)
        m_taken.append(room);
    return isFree;
}

} // namespace view
} // namespace pendant
