#pragma once

#include "brisk/moduleobject.h"

namespace kite {

/// What a move command says of where to go, written into its node `target`.

/// Writes the pose of `point`; null is a point that has none. Of a pose, what is not there is left out: zeros would be
/// the origin.
void writePose(QObject* sender, brisk::ModuleObject* target, brisk::ModuleObject* point);
/// Writes the configuration of `point`; eight zeros where it has none.
void writeConfiguration(QObject* sender, brisk::ModuleObject* target, brisk::ModuleObject* point);

} // namespace kite
