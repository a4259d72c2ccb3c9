#pragma once

#include "brisk/moduleobject.h"

namespace pendant {

/// Makes `target` what `source` is and writes only what differs, each with `sender`: whoever listens to one node hears
/// of that alone. Null is an empty node. The name of `target` stays.
void writeChanges(const brisk::ModuleObject* source, brisk::ModuleObject* target, QObject* sender);

} // namespace pendant
