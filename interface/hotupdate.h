#pragma once

#include "brisk/moduleobject.h"

#include <QString>

namespace kite {

/// Tells the host that a point of `list` was added (`operation` "add") or edited ("edit").
void announcePoint(QObject* sender, const brisk::ModuleObject* list, const QString& operation);

} // namespace kite
