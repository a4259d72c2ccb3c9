#pragma once

#include "controller/cell/cellvalue.h"
#include "controller/hostinfo.h"
#include "controller/robot/pathcheck.h"

namespace controller {

/// The section "host" of a cell. What is missing is as without it.
HostInfo hostIn(const CellValue& json);

/// The section "pathCheck" of a cell; it may be missing.
QVector<PathCheckRule> pathChecksIn(const CellValue& json);

} // namespace controller
