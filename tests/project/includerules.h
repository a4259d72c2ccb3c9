#pragma once

#include "includetarget.h"

/// What each of the includes may not do: a line a breach, "file:line: includes x: rule". Empty when all is well.
QStringList breaches(const QVector<Include>& includes, const IncludeTargets& targets);
