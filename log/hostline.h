#pragma once

#include "brisk/log.h"

#include <QString>

namespace kite {
namespace hostline {

/// A line in the host's log, on the console and in ./log/kite_yyyyMMdd.log, as the library's own code writes it. Stream
/// the text into what comes back; the line is written at the end of the statement.
///
/// \param module the source of the line, "<kite>" or "<kite interfacemanager>", or empty
brisk::QFLog error(const QString& module);
brisk::QFLog service(const QString& module);
brisk::QFLog information(const QString& module);

/// The source of the plugin class and its helpers.
QString pluginModule();
/// The source of the robot data interface and of the functions that address a plugin by name.
QString interfaceModule();

} // namespace hostline
} // namespace kite
