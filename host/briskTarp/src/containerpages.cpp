#include "containerpages.h"

#include <QChildEvent>

#include <algorithm>

namespace tarp {

ContainerPages::ContainerPages(QWidget* container) : m_container(container), m_layout(new QVBoxLayout(container)) {
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    container->installEventFilter(this);
}

bool ContainerPages::add(QObject* sender, const QString& key, QWidget* page) {
    if (!page || contains(key) || m_layout->indexOf(page) >= 0)
        return false;
    page->hide();
    m_layout->addWidget(page, 1);
    m_pages.append({key, page, sender});
    connect(page, &QObject::destroyed, this, &ContainerPages::lose);
    return true;
}

QWidget* ContainerPages::take(const QString& key) {
    QWidget* widget = page(key);
    if (!widget)
        return nullptr;
    disconnect(widget, &QObject::destroyed, this, &ContainerPages::lose);
    forget(key);
    m_layout->removeWidget(widget);
    widget->hide();
    return widget;
}

bool ContainerPages::contains(const QString& key) const {
    return find(key) != nullptr;
}

QStringList ContainerPages::keys() const {
    QStringList keys;
    for (const Page& page : m_pages)
        keys.append(page.key);
    return keys;
}

QWidget* ContainerPages::page(const QString& key) const {
    const Page* page = find(key);
    return page ? page->widget : nullptr;
}

QObject* ContainerPages::owner(const QString& key) const {
    const Page* page = find(key);
    return page ? page->sender.data() : nullptr;
}

void ContainerPages::show(const QString& key) {
    QWidget* previous = page(m_current);
    QWidget* next = page(key);
    m_current = key;
    if (previous && previous != next)
        previous->hide();
    if (!next)
        return;
    m_shown.removeAll(key);
    m_shown.append(key);
    next->show();
}

QString ContainerPages::lastShown() const {
    if (!m_shown.isEmpty())
        return m_shown.last();
    return m_pages.isEmpty() ? QString() : m_pages.first().key;
}

bool ContainerPages::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ChildAdded) {
        // A page that was a window of its own for a while and comes back has lost its place.
        QObject* child = static_cast<QChildEvent*>(event)->child();
        for (const Page& page : m_pages) {
            if (page.widget == child && m_layout->indexOf(page.widget) < 0)
                m_layout->addWidget(page.widget, 1);
        }
    }
    return QObject::eventFilter(watched, event);
}

const ContainerPages::Page* ContainerPages::find(const QString& key) const {
    const auto found = std::find_if(m_pages.begin(), m_pages.end(), [&](const Page& page) { return page.key == key; });
    return found == m_pages.end() ? nullptr : &*found;
}

void ContainerPages::forget(const QString& key) {
    m_shown.removeAll(key);
    m_pages.erase(std::remove_if(m_pages.begin(), m_pages.end(), [&](const Page& page) { return page.key == key; }),
                  m_pages.end());
}

void ContainerPages::lose(QObject* widget) {
    const auto found =
        std::find_if(m_pages.begin(), m_pages.end(), [&](const Page& page) { return page.widget == widget; });
    if (found == m_pages.end())
        return;
    const QString key = found->key;
    forget(key);
    emit lost(key);
}

} // namespace tarp
