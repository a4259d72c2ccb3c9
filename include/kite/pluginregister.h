#pragma once

#include "kite/export.h"
#include "kite/pluginbase.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

namespace tarp {
class BModule;
}

namespace kite {

/// The plugins of the process by name. There is one, see ::kiteFactory(). Names are compared with their case.
///
/// User-interface thread only.
/// \since 0.1
class KITE_EXPORT PluginRegister {
public:
    PluginRegister() = default;

    /// Keeps `creator` under `name` and enters the name into the host's module factory and plugin manager where they
    /// lack it, so that the host can make the plugin's module. Most plugins use KITE_PLUGIN instead of calling this.
    ///
    /// The first registration of a name wins; a later one changes nothing and is not reported.
    ///
    /// \param creator makes the plugin object; its argument is the module that will own it. When it throws, the module
    ///                is destroyed again, which cancels the name, and the exception goes on to the host.
    void regist(const QString& name, std::function<PluginBase*(QObject*)> creator);

    /// Makes the plugin object of `name` with the given parent, which owns it.
    /// \return null when the name is not registered
    /// \throws std::bad_function_call when an empty creator was registered; whatever the creator throws passes through
    PluginBase* create(const QString& name, QObject* parent);

    /// Forgets the creator of `name`. Does nothing when there is none. The host's own entries stay, so the host can
    /// still make a module of that name; that module has no plugin object.
    void cancel(const QString& name);

private:
    Q_DISABLE_COPY(PluginRegister)
    tarp::BModule* createModule(const QString& name, QObject* parent);

    QHash<QString, std::function<PluginBase*(QObject*)>> creators;
};

} // namespace kite

/// The one register of the process; made on the first call, from any thread, and destroyed when the process exits. The
/// modules of plugins must be gone by then.
/// \since 0.1
KITE_EXPORT kite::PluginRegister* kiteFactory();
