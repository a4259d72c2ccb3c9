#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QObject>
#include <QString>
#include <QWidget>

#include <memory>

namespace tarp {

/// The base of every host module: a page, a bar, a plugin. The host drives it through its lifecycle on the
/// user-interface thread: all modules are set up before any is initialised; render when its page is shown, idle when it
/// is left, detach at the end. Every operation does nothing here and may be overridden.
class BRISK_EXPORT BModule : public QObject {
    Q_OBJECT

public:
    explicit BModule(QObject* parent = nullptr);
    ~BModule() override;

    /// The type of the module; empty here.
    virtual QString name() const;
    /// The module's widget, null when it has none. Not owned by the caller.
    virtual QWidget* wgt();
    virtual void setup();
    virtual void afterSetup();
    virtual void init();
    virtual void afterInit();
    virtual void render();
    virtual void afterRender();
    virtual void idle();
    virtual void afterIdle();
    virtual void detach();
    virtual void beforeDetach();

    /// Ties the module to the tree node of `key`, which is made when missing, and makes it known to ::bModule() under
    /// that key. The first module of a key is the one that is found.
    void bindMobj(const QString& key);
    /// The bound node, null before bindMobj() and once the node is gone.
    brisk::ModuleObject* mobj() const;

    /// Starts the rendering of the module's widget by the host: gives it the pendant's style sheet.
    void startRender();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace tarp

/// The living module that is bound to `key`, null when there is none.
BRISK_EXPORT tarp::BModule* bModule(const QString& key);
