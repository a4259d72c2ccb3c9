#include "dockswitch.h"

#include "app/preferences.h"
#include "developerdock.h"
#include "dockplace.h"
#include "frame/pendantwindow.h"

#include "brisk/modulemanager.h"

#include <QEvent>
#include <QScreen>
#include <QWindow>

namespace pendant {

DockSwitch::DockSwitch(PendantWindow* window) : QObject(window), m_window(window) {
    connect(window, &PendantWindow::developerAsked, this, &DockSwitch::toggle);
    connect(window, &PendantWindow::themeChanged, this, [this](const Theme& theme) {
        if (m_dock)
            m_dock->setTheme(theme);
    });
    window->installEventFilter(this);
}

DockSwitch::~DockSwitch() = default;

bool DockSwitch::isOpen() const {
    return m_dock && m_dock->isVisible();
}

void DockSwitch::open() {
    if (!m_dock)
        make();
    m_dock->show();
}

void DockSwitch::watch() {
    if (!m_dock)
        make();
    m_dock->watch();
}

void DockSwitch::close() {
    if (m_dock)
        m_dock->close();
}

void DockSwitch::toggle() {
    isOpen() ? close() : open();
}

bool DockSwitch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close)
        close();
    return QObject::eventFilter(watched, event);
}

void DockSwitch::make() {
    m_dock.reset(new DeveloperDock(m()->root(), m_window->theme()));
    connect(m_dock.get(), &DeveloperDock::shownChanged, this, [this](bool shown) {
        if (!shown)
            Preferences::setDockGeometry(m_dock->saveGeometry());
        m_window->setDeveloperOpen(shown);
    });
    if (!m_dock->restoreGeometry(Preferences::dockGeometry()))
        place();
}

void DockSwitch::place() {
    const QWindow* handle = m_window->windowHandle();
    if (!handle || !handle->screen())
        return;
    const QRect frame = m_window->frameGeometry();
    const QRect inner = m_window->geometry();
    // The dock gets a frame as the pendant has one.
    const QMargins border(inner.left() - frame.left(), inner.top() - frame.top(), frame.right() - inner.right(),
                          frame.bottom() - inner.bottom());
    const DockPlace place = DockPlace::beside(frame, handle->screen()->availableGeometry(), DeveloperDock::wantedSize(),
                                              DeveloperDock::leastSize());
    if (place.pendant != frame)
        m_window->move(place.pendant.topLeft());
    m_dock->setGeometry(place.dock.marginsRemoved(border));
}

} // namespace pendant
