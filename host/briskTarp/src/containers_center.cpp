#include "tarp/containers.h"

#include "containerpages.h"

namespace tarp {

struct CenterWidget::Private {
    explicit Private(CenterWidget* center) : q(center), pages(center) {
        connect(&pages, &ContainerPages::lost, q, [this](const QString& key) { gone(key); });
    }

    void show(const QString& key) {
        const QString previous = pages.current();
        if (key == previous)
            return;
        pages.show(key);
        emit q->currentChanged(key, previous);
    }

    void gone(const QString& key) {
        if (key == pages.current())
            show(pages.lastShown());
        emit q->pageRemoved(key);
    }

    CenterWidget* q;
    ContainerPages pages;
};

CenterWidget::CenterWidget(QWidget* parent) : QWidget(parent), d(new Private(this)) {
    livingContainers<CenterWidget>().append(this);
}

CenterWidget::~CenterWidget() {
    livingContainers<CenterWidget>().removeOne(this);
}

bool CenterWidget::addPage(QObject* sender, const QString& key, QWidget* page) {
    return d->pages.add(sender, key, page);
}

bool CenterWidget::removeItem(QObject*, const QString& key, bool deleteWidget) {
    QWidget* page = d->pages.take(key);
    if (!page)
        return false;
    // Whoever removes a page may stand in one of its event handlers, so it dies when control is back in the event loop.
    if (deleteWidget)
        page->deleteLater();
    else
        page->setParent(nullptr);
    d->gone(key);
    return true;
}

bool CenterWidget::switchTo(QObject*, const QString& key) {
    if (!d->pages.contains(key))
        return false;
    d->show(key);
    return true;
}

QString CenterWidget::current() const {
    return d->pages.current();
}
QStringList CenterWidget::keys() const {
    return d->pages.keys();
}
QWidget* CenterWidget::page(const QString& key) const {
    return d->pages.page(key);
}
QObject* CenterWidget::owner(const QString& key) const {
    return d->pages.owner(key);
}

} // namespace tarp

tarp::CenterWidget* instantiatedCenterWidget() {
    return tarp::newestContainer<tarp::CenterWidget>();
}
