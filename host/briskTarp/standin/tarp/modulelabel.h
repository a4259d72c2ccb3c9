#pragma once

#include "brisk/export.h"

#include <QObject>
#include <QString>

namespace tarp {
namespace standin {

/// The name under which people know a module: for the node "brisk.kite.weld" it is "weld". "pendant" for null and for
/// what is no bound module.
BRISK_EXPORT QString moduleLabel(const QObject* module);

} // namespace standin
} // namespace tarp
