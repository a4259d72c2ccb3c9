#include "hardkey.h"

#include "plugins/report.h"
#include "plugins/thrown.h"
#include "style/icons.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace pendant {

namespace {

// "Torch left" stands in two lines; a word that is too long for the cap is cut.
void drawWords(QPainter& painter, const QRect& area, const QString& words) {
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect needed = painter.fontMetrics().boundingRect(area, flags, words);
    if (area.contains(needed)) {
        painter.drawText(area, flags, words);
        return;
    }
    painter.drawText(area, Qt::AlignCenter, painter.fontMetrics().elidedText(words, Qt::ElideRight, area.width()));
}

} // namespace

HardKey::HardKey(const Theme& theme, QWidget* parent) : QAbstractButton(parent), m_theme(theme) {
    setFocusPolicy(Qt::TabFocus);
    blank();
}

HardKey::~HardKey() {
    letGo();
}

void HardKey::setTheme(const Theme& theme) {
    m_theme = theme;
    update();
}

void HardKey::assign(const helm::PhysicalButton& button, const QString& source) {
    letGo();
    m_bound = {button, source};
    setAccessibleName(button.name);
    setToolTip(button.name);
    setEnabled(button.callback != nullptr);
    update();
}

void HardKey::blank() {
    assign(helm::PhysicalButton(), QString());
}

QSize HardKey::sizeHint() const {
    return {72, 56};
}

void HardKey::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        hold();
}

void HardKey::mouseMoveEvent(QMouseEvent* event) {
    if (!rect().contains(event->pos()))
        letGo();
}

void HardKey::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        letGo();
}

void HardKey::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        hold();
    else
        QWidget::keyPressEvent(event);
}

void HardKey::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        letGo();
    else
        QWidget::keyReleaseEvent(event);
}

void HardKey::focusOutEvent(QFocusEvent* event) {
    letGo();
    QAbstractButton::focusOutEvent(event);
}

void HardKey::hideEvent(QHideEvent* event) {
    letGo();
    QAbstractButton::hideEvent(event);
}

void HardKey::changeEvent(QEvent* event) {
    const bool lost = event->type() == QEvent::ActivationChange && !isActiveWindow();
    if (lost || (event->type() == QEvent::EnabledChange && !isEnabled()))
        letGo();
    QAbstractButton::changeEvent(event);
}

void HardKey::hold() {
    if (m_held || !m_bound.button.callback)
        return;
    m_held = true;
    m_heldBinding = m_bound;
    update();

    const QPointer<HardKey> living(this);
    m_pressing = true;
    const Binding pressed = m_bound;
    pressed.call(true);
    if (!living) {
        pressed.call(false);
        return;
    }
    m_pressing = false;
    if (!m_held)
        pressed.call(false);
}

void HardKey::letGo() {
    if (!m_held)
        return;
    m_held = false;
    update();
    // While its callback still handles the press, a button is told of the release when that is over.
    if (m_pressing)
        return;
    const Binding released = m_heldBinding;
    released.call(false);
}

void HardKey::Binding::call(bool pressed) const {
    const QString thrown = thrownBy([&] { button.callback(pressed); });
    if (thrown.isEmpty())
        return;
    const QString text =
        pressed ? tr("The key “%1” threw when it was pressed: %2") : tr("The key “%1” threw when it was released: %2");
    reportError(source, text.arg(button.name, thrown));
}

void HardKey::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect cap = rect().adjusted(1, 1, -1, -1);
    drawCap(painter, cap);
    drawLegend(painter, m_held ? cap.adjusted(0, 2, 0, 2) : cap.adjusted(0, 0, 0, -3));
}

void HardKey::drawCap(QPainter& painter, const QRect& cap) const {
    if (!m_bound.button.callback) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_theme.color(QStringLiteral("capBlank")));
        painter.drawRoundedRect(cap, 6, 6);
        return;
    }
    // A key that is up stands out of the column: its edge is seen below it. Held, it has gone down by that.
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_theme.color(QStringLiteral("capEdge")));
    painter.drawRoundedRect(cap, 6, 6);
    painter.setBrush(m_theme.color(m_held ? QStringLiteral("capPressed") : QStringLiteral("cap")));
    painter.drawRoundedRect(m_held ? cap.adjusted(0, 3, 0, 0) : cap.adjusted(0, 0, 0, -3), 6, 6);
    if (!hasFocus())
        return;
    painter.setPen(QPen(m_theme.color(QStringLiteral("capText")), 2, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(cap.adjusted(3, 3, -3, -6), 4, 4);
}

void HardKey::drawLegend(QPainter& painter, const QRect& cap) const {
    const helm::PhysicalButton& button = m_bound.button;
    const QIcon& icon = m_held && !button.secondIcon.isNull() ? button.secondIcon : button.firstIcon;
    const QColor ground = m_theme.color(m_held ? QStringLiteral("capPressed") : QStringLiteral("cap"));
    const QColor ink = m_theme.color(QStringLiteral("capText"));
    const QPixmap picture = legible(icon.pixmap(32, 32), ground, ink);
    if (!picture.isNull()) {
        const QSizeF size = QSizeF(picture.size()) / picture.devicePixelRatioF();
        const QPointF corner = QRectF(cap).center() - QPointF(size.width() / 2, size.height() / 2);
        painter.drawPixmap(corner, picture);
        return;
    }
    QFont words = font();
    words.setPixelSize(13);
    words.setWeight(QFont::DemiBold);
    painter.setFont(words);
    painter.setPen(ink);
    drawWords(painter, cap.adjusted(4, 0, -4, 0), button.name);
}

} // namespace pendant
