#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"
#include "tarp/bmodule.h"

#include <QHash>
#include <QString>

#include <functional>

namespace tarp {

/// The record of the module factory: the host makes modules by name from `creators`.
struct ModuleFactory {
    brisk::ModuleObject* node; ///< the factory's own data node; owned by the tree
    QHash<QString, std::function<BModule*(QObject*)>> creators;
};

} // namespace tarp

namespace brisk {

/// The record of the plugin manager: the names of the plugins that registered.
struct PluginManager {
    ModuleObject* node; ///< the manager's own data node; owned by the tree
    QHash<QString, std::function<int()>> plugins;
};

/// The process's plugin manager, never null.
BRISK_EXPORT PluginManager* pluginManager();

} // namespace brisk

/// The process's module factory, never null.
BRISK_EXPORT tarp::ModuleFactory* bfactory();
