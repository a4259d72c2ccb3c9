#pragma once

#include <QObject>
#include <QString>

namespace pendant {

/// How people find an object again: "QPushButton 'start'", without the name when it has none.
QString describe(const QObject* object);

/// The name of the plugin to which an object of the user interface belongs: that of the module whose page it stands on
/// or that it is a child of. Empty when no plugin is to be found.
QString pluginOf(const QObject* object);

} // namespace pendant
