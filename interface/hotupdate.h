#pragma once

#include "brisk/moduleobject.h"

#include <QPointer>
#include <QString>

namespace kite {

/// Tells the host that a point of `list` was added (`operation` "add") or edited ("edit"). Null for a list that is
/// gone.
void announcePoint(QObject* sender, const QPointer<brisk::ModuleObject>& list, const QString& operation);

} // namespace kite
