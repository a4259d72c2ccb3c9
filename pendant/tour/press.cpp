#include "press.h"

#include <QApplication>
#include <QEventLoop>
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
    // While click() does not come back, only the event loop of the window that it waits for turns.
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* blocking = pressing ? QApplication::activeModalWidget() : nullptr;
        if (!blocking)
            return;
        appeared.closed.append(blocking->grab());
        blocking->close();
    });
    watch.start(restMs);
    button->click();
    pressing = false;
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
