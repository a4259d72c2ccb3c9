#include "tarp/factory.h"

#include "brisk/modulemanager.h"

// The records are never destroyed: the functions in them may come from plugins that are unloaded before this library's
// statics. Their nodes are looked up at each call, for someone may have cleared the tree.

tarp::ModuleFactory* bfactory() {
    static auto* factory = new tarp::ModuleFactory{nullptr, {}};
    factory->node = m(QStringLiteral("brisk.module_factory"));
    return factory;
}

namespace brisk {

PluginManager* pluginManager() {
    static auto* manager = new PluginManager{nullptr, {}};
    manager->node = m(QStringLiteral("brisk.plugin_manager"));
    return manager;
}

} // namespace brisk
