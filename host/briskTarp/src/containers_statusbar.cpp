#include "tarp/containers.h"

#include "containerpages.h"

namespace tarp {

struct StatusBar::Private {
    explicit Private(StatusBar* bar) : q(bar), layout(new QHBoxLayout(bar)) {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }

    int indexOf(const QString& key) const {
        for (int i = 0; i < items.size(); ++i) {
            if (items.at(i).first == key)
                return i;
        }
        return -1;
    }

    bool mayAdd(const QString& key, const QWidget* item) const {
        return item && indexOf(key) < 0 && layout->indexOf(const_cast<QWidget*>(item)) < 0;
    }

    // An item that its plugin has taken elsewhere is no longer in the layout, so places are counted there.
    void insert(int index, const QString& key, QWidget* item, int stretch) {
        const int place = index < items.size() ? layout->indexOf(items.at(index).second) : -1;
        items.insert(index, {key, item});
        layout->insertWidget(place, item, stretch);
        connect(item, &QObject::destroyed, q, [this, key] { items.removeAt(indexOf(key)); });
    }

    StatusBar* q;
    QHBoxLayout* layout;
    QList<QPair<QString, QWidget*>> items; ///< in the order of the layout
};

StatusBar::StatusBar(QWidget* parent) : QWidget(parent), d(new Private(this)) {
    livingContainers<StatusBar>().append(this);
}

StatusBar::~StatusBar() {
    livingContainers<StatusBar>().removeOne(this);
    // The items die after `d`.
    for (const auto& item : d->items)
        item.second->disconnect(this);
}

bool StatusBar::addItem(QObject*, const QString& key, QWidget* item, int stretch) {
    if (!d->mayAdd(key, item))
        return false;
    d->insert(d->items.size(), key, item, stretch);
    return true;
}

bool StatusBar::addBeforeItem(QObject*, const QString& key, const QString& beforeKey, QWidget* item) {
    const int before = d->indexOf(beforeKey);
    if (before < 0 || !d->mayAdd(key, item))
        return false;
    d->insert(before, key, item, /*stretch*/ 0);
    return true;
}

QStringList StatusBar::keys() const {
    QStringList keys;
    for (const auto& item : d->items)
        keys.append(item.first);
    return keys;
}

QWidget* StatusBar::item(const QString& key) const {
    const int index = d->indexOf(key);
    return index < 0 ? nullptr : d->items.at(index).second;
}

} // namespace tarp

tarp::StatusBar* instantiatedStatusBar(QObject*) {
    return tarp::newestContainer<tarp::StatusBar>();
}
