#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"
#include "tarp/bmodule.h"

#include <QString>

namespace ot {
namespace gyre {

/// Makes a navigation entry.
///
/// The entries of the group "robot.pack" are the items of the list "gyre.page.robot.page.pack.page". An entry holds
/// "title", "icon" and "nav", the key of the centre page that it opens.
///
/// \param module the module that the entry stands for
/// \param title  what the entry shows
/// \param group  dotted path of the page group
/// \param icon   name of an icon of the theme or path of a picture; empty for the group's own
/// \param index  place among the entries of the group, -1 for the end
/// \return the entry's data node, owned by the tree; null for an empty group, and with a line in the message list where
/// a
///         group would hold both pages and groups
BRISK_EXPORT brisk::ModuleObject* registerPage(tarp::BModule* module, const QString& title, const QString& group,
                                               const QString& icon, int index);

} // namespace gyre
} // namespace ot
