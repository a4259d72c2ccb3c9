#pragma once

#include "controller/cell/cellvalue.h"
#include "controller/changingvalues.h"

namespace controller {

/// The course that a changing value of a cell takes.
ChangingValues::Course courseIn(const CellValue& json);

} // namespace controller
