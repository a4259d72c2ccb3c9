#include "jogkey.h"

#include <QMouseEvent>

namespace pendant {

namespace {

bool takesFromTheFinger(QEvent::Type type) {
    switch (type) {
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::ApplicationDeactivate:
        return true;
    default:
        return false;
    }
}

} // namespace

JogKey::JogKey(QWidget* parent) : QPushButton(parent) {
    // A key that the keyboard could hold would go on when the finger is long off the screen.
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QPushButton::pressed, this, [this] { emit held(true); });
    connect(this, &QPushButton::released, this, [this] { emit held(false); });
}

bool JogKey::event(QEvent* event) {
    const bool handled = QPushButton::event(event);
    if (takesFromTheFinger(event->type()))
        letGo();
    return handled;
}

// Qt's own would press again when the pointer comes back.
void JogKey::mouseMoveEvent(QMouseEvent* event) {
    if (isDown())
        QPushButton::mouseMoveEvent(event);
    else
        event->accept();
}

void JogKey::letGo() {
    if (!isDown())
        return;
    setDown(false);
    emit released();
}

} // namespace pendant
