#include "windowdresser.h"

#include "tarp/rendering.h"

namespace pendant {

namespace {

bool standsOnADressedPage(const QWidget* widget) {
    const QString sheet = tarp::standin::renderStyleSheet();
    for (const QWidget* at = widget->parentWidget(); at && !sheet.isEmpty(); at = at->parentWidget()) {
        if (at->styleSheet() == sheet)
            return true;
    }
    return false;
}

} // namespace

void WindowDresser::watch(QObject* receiver, const QEvent* event) {
    if (!receiver->isWidgetType())
        return;
    auto* widget = static_cast<QWidget*>(receiver);
    if (event->type() == QEvent::ParentAboutToChange)
        m_leaving = standsOnADressedPage(widget) ? widget : nullptr;
    else if (event->type() == QEvent::ParentChange)
        parentChanged(widget);
    else if (event->type() == QEvent::Show && m_windows.contains(widget))
        dress(widget);
}

void WindowDresser::redress() {
    m_windows.removeAll(nullptr);
    for (const QPointer<QWidget>& window : m_windows) {
        if (window->styleSheet() == m_sheet)
            window->setStyleSheet(QString());
        dress(window);
    }
}

void WindowDresser::parentChanged(QWidget* widget) {
    if (m_leaving == widget && !widget->parentWidget())
        m_windows.append(widget);
    else if (widget->parentWidget() && m_windows.removeAll(widget) > 0 && widget->styleSheet() == m_sheet)
        widget->setStyleSheet(QString());
    m_leaving = nullptr;
}

// A style sheet that the window has of its own is the plugin's.
void WindowDresser::dress(QWidget* window) {
    if (!window->styleSheet().isEmpty())
        return;
    m_sheet = tarp::standin::renderStyleSheet();
    window->setStyleSheet(m_sheet);
}

} // namespace pendant
