#include "tarp/containers.h"

#include "containerpages.h"

namespace tarp {

struct ExpandSideBar::Private {
    explicit Private(ExpandSideBar* bar) : q(bar), pages(bar) {
        connect(&pages, &ContainerPages::lost, q, [this](const QString& key) { gone(key); });
    }

    void show(const QString& key) {
        if (key == pages.current())
            return;
        pages.show(key);
        emit q->currentChanged(key);
    }

    void gone(const QString& key) {
        if (key == pages.current())
            show(pages.lastShown());
        emit q->pagesChanged();
    }

    ExpandSideBar* q;
    ContainerPages pages;
    bool open = false;
};

ExpandSideBar::ExpandSideBar(QWidget* parent) : QWidget(parent), d(new Private(this)) {
    hide();
    livingContainers<ExpandSideBar>().append(this);
}

ExpandSideBar::~ExpandSideBar() {
    livingContainers<ExpandSideBar>().removeOne(this);
}

bool ExpandSideBar::addPage(QObject* sender, const QString& key, QWidget* page) {
    if (!d->pages.add(sender, key, page))
        return false;
    if (d->pages.keys().size() == 1)
        d->show(key);
    emit pagesChanged();
    return true;
}

bool ExpandSideBar::switchTo(QObject*, const QString& key) {
    if (!d->pages.contains(key))
        return false;
    d->show(key);
    return true;
}

QString ExpandSideBar::current() const {
    return d->pages.current();
}
QStringList ExpandSideBar::keys() const {
    return d->pages.keys();
}
QWidget* ExpandSideBar::page(const QString& key) const {
    return d->pages.page(key);
}
QObject* ExpandSideBar::owner(const QString& key) const {
    return d->pages.owner(key);
}

void ExpandSideBar::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (d->open)
        return;
    d->open = true;
    emit openChanged(true);
}

void ExpandSideBar::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    // With the whole window hidden the side bar is as open as before.
    if (!d->open || !isHidden())
        return;
    d->open = false;
    emit openChanged(false);
}

} // namespace tarp

tarp::ExpandSideBar* instantiatedRightExpandSideWidget(QObject*) {
    return tarp::newestContainer<tarp::ExpandSideBar>();
}
