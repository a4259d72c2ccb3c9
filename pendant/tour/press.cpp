#include "press.h"

#include <QApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>

namespace pendant {

namespace {

// Longer than any animation of the pendant.
const int restMs = 250;

QWidgetList shownWindows() {
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            windows.append(window);
    }
    return windows;
}

// A widget that has gone back into its page is no window any more.
bool isShown(const QPointer<QWidget>& window) {
    return window && window->isWindow() && window->isVisible();
}

void sendMouse(QPointer<QAbstractButton> button, QEvent::Type type, Qt::MouseButtons held) {
    if (!button)
        return;
    const QPoint centre = button->rect().center();
    QMouseEvent event(type, centre, button->mapToGlobal(centre), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
}

// Through the event loop, as a person's press comes, for there the pendant catches what a handler throws.
void click(const QPointer<QAbstractButton>& button) {
    sendMouse(button, QEvent::MouseButtonPress, Qt::LeftButton);
    sendMouse(button, QEvent::MouseButtonRelease, Qt::NoButton);
}

} // namespace

void settle() {
    QEventLoop loop;
    QTimer::singleShot(restMs, &loop, &QEventLoop::quit);
    loop.exec();
}

Appeared press(QAbstractButton* button) {
    Appeared appeared;
    const QWidgetList before = shownWindows();
    bool pressing = true;
    QTimer watch;
    // While the click does not come back, only the event loop of the window that it waits for turns.
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* blocking = pressing ? QApplication::activeModalWidget() : nullptr;
        if (!blocking)
            return;
        appeared.closed.append(blocking->grab());
        blocking->close();
    });
    watch.start(restMs);
    // From within an event loop, where what a press deletes later is deleted.
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        click(button);
        pressing = false;
        loop.quit();
    });
    loop.exec();
    settle();
    for (QWidget* window : shownWindows()) {
        if (!before.contains(window))
            appeared.windows.append(window);
    }
    return appeared;
}

bool pressBack(const QPointer<QAbstractButton>& button, const QList<QPointer<QWidget>>& windows) {
    bool wantsSecondPress = windows.isEmpty();
    for (const QPointer<QWidget>& window : windows) {
        if (isShown(window) && window->isModal())
            window->close();
        wantsSecondPress = wantsSecondPress || isShown(window);
    }
    if (wantsSecondPress && button)
        press(button);
    settle();
    bool gone = true;
    for (const QPointer<QWidget>& window : windows) {
        if (!isShown(window))
            continue;
        gone = false;
        window->close();
    }
    return gone;
}

} // namespace pendant
