#pragma once

#include "kite/pluginbase.h"
#include "kite/pluginregister.h"

#include "helm/managerhelper.h"
#include "tarp/factory.h"

#include <QObject>
#include <QString>

#include <type_traits>

namespace kite {

/// Whether `name` can be a plugin's name: letters, digits, "_" and "-", and at least one of them; what is not ASCII
/// counts as a letter. A dot would split the keys under which the pendant keeps the plugin's things, a "#" would make a
/// list of them.
/// \since 0.1
constexpr bool isPluginName(const char* name) {
    if (!*name)
        return false;
    for (; *name; ++name) {
        const char c = *name;
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) > 127;
        const bool digit = c >= '0' && c <= '9';
        if (!letter && !digit && c != '_' && c != '-')
            return false;
    }
    return true;
}

/// What KITE_PLUGIN runs when the shared object is loaded. A name that is taken is an error in the message list.
/// \return true \since 0.1
template <typename Class> bool registerPlugin(const QString& name) {
    if (bfactory()->creators.contains(name))
        helm::ManagerHelper::throwLog(
            nullptr, QStringLiteral("error"),
            QStringLiteral("A second plugin is called \"%1\" and is left out: the first one that was "
                           "loaded keeps the name. Give one of them another name.")
                .arg(name));
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
/// again, and the message list says so.
///
/// \since 0.1
#define KITE_PLUGIN(Class, name)                                                                                       \
    static_assert(::kite::isPluginName("" name),                                                                       \
                  "KITE_PLUGIN: a plugin's name is not empty and made of letters, digits, _ and - only");              \
    static_assert(std::is_base_of<::kite::PluginBase, Class>::value,                                                   \
                  "KITE_PLUGIN: the plugin's class derives from kite::PluginBase");                                    \
    static_assert(std::is_constructible<Class, QObject*>::value,                                                       \
                  "KITE_PLUGIN: the plugin's class has a constructor that takes its parent (QObject*)");               \
    static const QString kitePluginName Q_DECL_UNUSED = QStringLiteral(name);                                          \
    static const bool kitePluginRegistered Q_DECL_UNUSED = ::kite::registerPlugin<Class>(kitePluginName)
