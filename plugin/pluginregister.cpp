#include "kite/pluginregister.h"

#include "kite/kitemodule.h"

#include "tarp/factory.h"

#include <QPointer>
#include <QVariant>

namespace kite {

namespace {

void announce(brisk::ModuleObject* node, const QString& name) {
    if (node)
        node->set(node, name, QVariant(), true);
}

} // namespace

void PluginRegister::regist(const QString& name, std::function<PluginBase*(QObject*)> creator) {
    if (creators.contains(name))
        return;
    // The text of a literal lies in the plugin's file and would go with it.
    const QString ownName(name.constData(), name.size());
    creators.insert(ownName, creator);

    tarp::ModuleFactory* factory = bfactory();
    if (!factory->creators.contains(name)) {
        factory->creators.insert(ownName, [this, ownName](QObject* parent) { return createModule(ownName, parent); });
        announce(factory->node, ownName);
    }
    brisk::PluginManager* manager = brisk::pluginManager();
    if (!manager->plugins.contains(name)) {
        manager->plugins.insert(ownName, [] { return -1; });
        announce(manager->node, ownName);
    }
}

// The creator is foreign code: it may throw, and it may run an event loop in which the module is deleted.
tarp::BModule* PluginRegister::createModule(const QString& name, QObject* parent) {
    const QPointer<Kite> module(new Kite(name, parent));
    try {
        PluginBase* plugin = create(name, module);
        if (module)
            module->plugin = plugin;
    } catch (...) {
        delete module;
        throw;
    }
    return module;
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
