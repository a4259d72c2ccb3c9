#include "armview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTouchEvent>
#include <QWheelEvent>

#include <cmath>

using pendant::view::ArmChain;
using pendant::view::Gestures;
using pendant::view::Marker;
using pendant::view::Overlay;
using pendant::view::Picture;
using pendant::view::TaughtPoint;
using pendant::view::Vector;

namespace pendant {

namespace {

const double cornerPixels = 6;
const int tickMs = 16;
const int settleMs = 150;
const double thicknessShare = 0.09; // of the arm, by what is around its joints
const double wheelFactor = 1.15;    // a click of the wheel

QVector<QPointF> fingersOf(const QTouchEvent& event) {
    QVector<QPointF> fingers;
    for (const QTouchEvent::TouchPoint& point : event.touchPoints()) {
        if (point.state() != Qt::TouchPointReleased)
            fingers << point.pos();
    }
    return fingers;
}

bool pans(const QMouseEvent& event) {
    return event.modifiers() & Qt::ShiftModifier || !(event.buttons() & Qt::LeftButton);
}

} // namespace

ArmView::ArmView(QWidget* parent) : QWidget(parent), m_gestures(&m_camera) {
    setObjectName(QStringLiteral("armView"));
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 160);
    m_clock.start();
    m_ticks.setInterval(tickMs);
    connect(&m_ticks, &QTimer::timeout, this, &ArmView::tick);
    m_settle.setInterval(settleMs);
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, QOverload<>::of(&QWidget::update));
}

void ArmView::setColours(const view::Colours& colours) {
    m_colours = colours;
    m_picture.setColours(colours);
    changed();
}

void ArmView::setArm(const view::ArmGeometry& arm) {
    m_picture.setArm(arm);
    m_trace.clear();
    m_hasStance = false;
    m_isFitted = true;
    changed();
}

void ArmView::setTool(const QString& tool) {
    if (tool == m_picture.tool())
        return;
    m_picture.setTool(tool);
    m_trace.clear();
    changed();
}

void ArmView::setWobj(const QString& wobj) {
    m_picture.setWobj(wobj);
    changed();
}

void ArmView::setStance(const view::Stance& stance) {
    if (m_hasStance && stance == m_motion.goal())
        return;
    const qint64 nowMs = m_clock.elapsed();
    if (isVisible() && m_hasStance) {
        m_motion.moveTo(stance, nowMs);
        m_ticks.start();
        return;
    }
    m_motion.jumpTo(stance, nowMs);
    m_trace.clear();
    m_hasStance = true;
    fitNow();
    changed();
}

void ArmView::setValues(const Values& values) {
    m_values = values;
    update();
}

void ArmView::setPoints(const QVector<TaughtPoint>& points) {
    m_points = points;
    fitNow();
    changed();
}

void ArmView::setSelectedText(const QString& text) {
    m_selectedText = text;
    update();
}

void ArmView::fit() {
    m_isFitted = true;
    fitNow();
    changed();
}

void ArmView::lookFrom(double azimuthDeg, double elevationDeg) {
    m_camera.lookFrom(azimuthDeg, elevationDeg);
    fit();
}

// What there is decides, not where the robot moves meanwhile.
void ArmView::fitNow() {
    m_camera.setViewport(size());
    if (!m_isFitted || m_picture.arm().isEmpty())
        return;
    const ArmChain at(m_picture.arm(), m_motion.goal());
    QVector<Vector> positions{at.foot().at, at.tip(m_picture.tool()).at};
    const Vector above{0, 0, m_picture.arm().size() * thicknessShare};
    for (int i = 0; i < m_picture.arm().links.size(); ++i)
        positions << at.link(i).at - above * 0.5 << at.link(i).at + above;
    for (const view::Mount& wobj : m_picture.arm().wobjs)
        positions << at.inWorld(wobj).at;
    for (const Marker& marker : markers())
        positions << marker.at;
    m_camera.fit(positions);
}

ArmChain ArmView::chain() const {
    return {m_picture.arm(), m_motion.at(m_clock.elapsed())};
}

QVector<Marker> ArmView::markers() const {
    const ArmChain present = chain();
    QVector<Marker> markers;
    for (const TaughtPoint& point : m_points)
        markers.append({point, point.inWorld(m_picture.arm(), present, m_picture.tool())});
    return markers;
}

void ArmView::changed() {
    m_settle.start();
    update();
}

void ArmView::tick() {
    if (!m_motion.isMoving(m_clock.elapsed()))
        m_ticks.stop();
    m_trace.add(chain().tip(m_picture.tool()).at, m_clock.elapsed());
    changed();
}

void ArmView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    m_ticks.stop();
    m_settle.stop();
    m_gestures.cancel();
    m_hasStance = false;
}

void ArmView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitNow();
    changed();
}

Overlay::Content ArmView::content(const ArmChain* chain) const {
    Overlay::Content content{&m_picture, chain, &m_camera, markers(), -1, m_selectedText, &m_trace, m_values};
    for (int i = 0; i < content.markers.size(); ++i) {
        if (content.markers.at(i).point.node == m_selected)
            content.selected = i;
    }
    return content;
}

void ArmView::paintEvent(QPaintEvent*) {
    const ArmChain now = chain();
    QPainter painter(this);
    painter.drawImage(0, 0, m_picture.draw(now, m_camera, m_settle.isActive() ? Picture::quick : Picture::fine));
    const Overlay::Content shown = content(&now);
    Overlay(&painter, shown, m_colours, font()).draw();
    drawEdge(&painter);
}

// Round corners upon a picture that has none.
void ArmView::drawEdge(QPainter* painter) const {
    QPainterPath outside;
    outside.addRect(rect());
    QPainterPath inside;
    inside.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerPixels, cornerPixels);
    painter->fillPath(outside.subtracted(inside), m_colours.halo);
    painter->setPen(m_colours.edge);
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(inside);
}

void ArmView::select(const QString& node) {
    if (node == m_selected)
        return;
    m_selected = node;
    m_selectedText.clear();
    update();
    emit selectedChanged(node);
}

void ArmView::act(Gestures::Meaning meaning) {
    if (meaning == Gestures::Moved) {
        m_isFitted = false;
        changed();
    } else if (meaning == Gestures::TappedTwice) {
        fit();
    } else if (meaning == Gestures::Tapped) {
        const QVector<Marker> all = markers();
        const int hit = view::markerAt(all, m_camera, m_gestures.place());
        select(hit < 0 ? QString() : all.at(hit).point.node);
    }
}

bool ArmView::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return touchEvent(static_cast<QTouchEvent*>(event));
    default:
        return QWidget::event(event);
    }
}

bool ArmView::touchEvent(QTouchEvent* event) {
    const QVector<QPointF> fingers = fingersOf(*event);
    event->accept();
    if (event->type() == QEvent::TouchCancel)
        m_gestures.cancel();
    else if (event->type() == QEvent::TouchEnd)
        act(m_gestures.lift(qint64(event->timestamp())));
    else if (event->touchPointStates() & (Qt::TouchPointPressed | Qt::TouchPointReleased))
        m_gestures.touch(fingers);
    else
        act(m_gestures.slide(fingers, false));
    return true;
}

void ArmView::mousePressEvent(QMouseEvent* event) {
    m_gestures.touch({event->localPos()});
}

// The second press of a double click comes as this.
void ArmView::mouseDoubleClickEvent(QMouseEvent*) {
    m_gestures.cancel();
    act(Gestures::TappedTwice);
}

void ArmView::mouseMoveEvent(QMouseEvent* event) {
    act(m_gestures.slide({event->localPos()}, pans(*event)));
}

void ArmView::mouseReleaseEvent(QMouseEvent* event) {
    act(m_gestures.lift(qint64(event->timestamp())));
}

void ArmView::wheelEvent(QWheelEvent* event) {
    m_camera.zoom(std::pow(wheelFactor, event->angleDelta().y() / 120.0), event->position());
    act(Gestures::Moved);
}

} // namespace pendant
