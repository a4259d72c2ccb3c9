#include "culprit.h"

#include "tarp/bmodule.h"
#include "tarp/containers.h"
#include "tarp/modulelabel.h"

namespace pendant {

namespace {

template <typename Container> const QObject* ownerIn(const Container* container, const QObject* page) {
    if (!container)
        return nullptr;
    for (const QString& key : container->keys()) {
        if (container->page(key) == page)
            return container->owner(key);
    }
    return nullptr;
}

const QObject* ownerOf(const QObject* page) {
    if (const QObject* owner = ownerIn(qobject_cast<const tarp::CenterWidget*>(page->parent()), page))
        return owner;
    return ownerIn(qobject_cast<const tarp::ExpandSideBar*>(page->parent()), page);
}

} // namespace

QString describe(const QObject* object) {
    const QString type = QString::fromLatin1(object->metaObject()->className());
    const QString name = object->objectName();
    return name.isEmpty() ? type : QStringLiteral("%1 '%2'").arg(type, name);
}

QString pluginOf(const QObject* object) {
    for (const QObject* at = object; at; at = at->parent()) {
        if (qobject_cast<const tarp::BModule*>(at))
            return tarp::standin::moduleLabel(at);
        if (const QObject* owner = ownerOf(at))
            return tarp::standin::moduleLabel(owner);
    }
    return QString();
}

} // namespace pendant
