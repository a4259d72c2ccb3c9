#pragma once

#include "brisk/moduleobject.h"

#include <QString>

namespace pendant {

/// The text of the node at a path below `record`; empty when there is none.
QString fieldOf(brisk::ModuleObject* record, const QString& path);
/// The number of the node at a path below `record`, with `decimals`; 0 when there is none.
QString numberOf(brisk::ModuleObject* record, const QString& path, int decimals);
/// The value of a variable record: that of its one element, or those of all in brackets. An element with children is
/// shown as JSON.
QString valueOfVariable(brisk::ModuleObject* record);

} // namespace pendant
