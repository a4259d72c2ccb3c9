#include "tarp/bmodule.h"

#include "tarp/rendering.h"

#include <QHash>
#include <QPointer>

#include "brisk/modulemanager.h"

namespace {

// Never destroyed: a module may outlive every static of this library.
QHash<QString, QList<tarp::BModule*>>& modulesByKey() {
    static auto* modules = new QHash<QString, QList<tarp::BModule*>>;
    return *modules;
}

QString& styleSheet() {
    static auto* sheet = new QString;
    return *sheet;
}

QList<QPointer<QWidget>>& renderedWidgets() {
    static auto* widgets = new QList<QPointer<QWidget>>;
    return *widgets;
}

void rememberRendered(QWidget* widget) {
    QList<QPointer<QWidget>>& widgets = renderedWidgets();
    widgets.removeAll(nullptr);
    if (!widgets.contains(widget))
        widgets.append(widget);
}

// Setting a style sheet polishes a whole widget tree again, so one that is there already is left alone.
void applyStyleSheet(QWidget* widget) {
    if (widget->styleSheet() != styleSheet())
        widget->setStyleSheet(styleSheet());
}

} // namespace

namespace tarp {

struct BModule::Private {
    QString key;
    QPointer<brisk::ModuleObject> node;
};

BModule::BModule(QObject* parent) : QObject(parent), d(new Private) {}

BModule::~BModule() {
    if (d->key.isEmpty())
        return;
    auto modules = modulesByKey().find(d->key);
    modules->removeOne(this);
    if (modules->isEmpty())
        modulesByKey().erase(modules);
}

QString BModule::name() const {
    return QString();
}
QWidget* BModule::wgt() {
    return nullptr;
}
void BModule::setup() {}
void BModule::afterSetup() {}
void BModule::init() {}
void BModule::afterInit() {}
void BModule::render() {}
void BModule::afterRender() {}
void BModule::idle() {}
void BModule::afterIdle() {}
void BModule::detach() {}
void BModule::beforeDetach() {}

void BModule::bindMobj(const QString& key) {
    if (key == d->key)
        return;
    if (!d->key.isEmpty())
        modulesByKey()[d->key].removeOne(this);
    d->key = key;
    d->node = key.isEmpty() ? nullptr : m(key);
    if (!key.isEmpty())
        modulesByKey()[key].append(this);
}

brisk::ModuleObject* BModule::mobj() const {
    return d->node;
}

void BModule::startRender() {
    QWidget* widget = wgt();
    if (!widget)
        return;
    rememberRendered(widget);
    applyStyleSheet(widget);
}

namespace standin {

void setRenderStyleSheet(const QString& sheet) {
    styleSheet() = sheet;
    for (const QPointer<QWidget>& widget : renderedWidgets()) {
        if (widget)
            applyStyleSheet(widget);
    }
}

QString renderStyleSheet() {
    return styleSheet();
}

} // namespace standin
} // namespace tarp

tarp::BModule* bModule(const QString& key) {
    return modulesByKey().value(key).value(0);
}
