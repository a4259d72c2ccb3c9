#pragma once

#include "kite/pluginbase.h"
#include "kite/pluginregister.h"

#include <QObject>
#include <QString>

#include <type_traits>

namespace kite {

/// What KITE_PLUGIN runs when the shared object is loaded. \return true
/// \since 0.1
template <typename Class> bool registerPlugin(const QString& name) {
    kiteFactory()->regist(name, [](QObject* parent) -> PluginBase* { return new Class(parent); });
    return true;
}

} // namespace kite

/// Registers the plugin class `Class` under `name` when the shared object is loaded, and gives the rest of the file the
/// constant `kitePluginName` (QString) for the functions that take a plugin's name.
///
///     class HelloPlugin : public kite::PluginBase { ... };
///     KITE_PLUGIN(HelloPlugin, "hello");
///
/// Use it once in a file, outside any function, after the class has been defined. `name` is a string literal; `Class`
/// takes its parent (QObject*) as the only constructor argument. A name that another plugin holds is not registered
/// again; the pendant tells so when a file brings no plugin of its own.
///
/// \since 0.1
#define KITE_PLUGIN(Class, name)                                                                                       \
    static_assert(sizeof("" name) > 1, "KITE_PLUGIN: give the plugin a name that is not empty");                       \
    static_assert(std::is_base_of<::kite::PluginBase, Class>::value,                                                   \
                  "KITE_PLUGIN: the plugin's class derives from kite::PluginBase");                                    \
    static_assert(std::is_constructible<Class, QObject*>::value,                                                       \
                  "KITE_PLUGIN: the plugin's class has a constructor that takes its parent (QObject*)");               \
    static const QString kitePluginName Q_DECL_UNUSED = QStringLiteral(name);                                          \
    static const bool kitePluginRegistered Q_DECL_UNUSED = ::kite::registerPlugin<Class>(kitePluginName)
