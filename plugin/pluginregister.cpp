#include "kite/pluginregister.h"

#include "kite/kitemodule.h"

#include "tarp/factory.h"

#include <QVariant>

#include <memory>

namespace kite {

void PluginRegister::regist(const QString& name, std::function<PluginBase*(QObject*)> creator) {
    if (creators.contains(name))
        return;
    creators.insert(name, std::move(creator));

    const auto createModule = [this, name](QObject* parent) -> tarp::BModule* {
        // A creator that throws must not leave half a module behind.
        auto module = std::make_unique<Kite>(name, parent);
        module->setPlugin(create(name, module.get()));
        return module.release();
    };
    tarp::ModuleFactory* factory = bfactory();
    if (!factory->creators.contains(name)) {
        factory->creators.insert(name, createModule);
        factory->node->set(factory->node, name, QVariant(), true);
    }

    brisk::PluginManager* manager = brisk::pluginManager();
    if (!manager->plugins.contains(name)) {
        manager->plugins.insert(name, [] { return -1; });
        manager->node->set(manager->node, name, QVariant(), true);
    }
}

PluginBase* PluginRegister::create(const QString& name, QObject* parent) {
    const auto found = creators.constFind(name);
    if (found == creators.constEnd())
        return nullptr;
    // A copy: what it creates may cancel the name.
    const auto creator = *found;
    return creator(parent);
}

// The host's own entries stay on purpose: the host can go on to make a module of that name.
void PluginRegister::cancel(const QString& name) {
    creators.remove(name);
}

} // namespace kite

kite::PluginRegister* kiteFactory() {
    static kite::PluginRegister instance;
    return &instance;
}
