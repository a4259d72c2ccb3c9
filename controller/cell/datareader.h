#pragma once

#include "controller/cell/cellvalue.h"
#include "controller/io/motiondata.h"
#include "controller/io/registers.h"

#include <QVector>

namespace controller {

/// Reads the section "registers" of a cell.
QVector<Register> registersIn(const CellValue& json);

/// Reads the sections "speeds" and "zones", and whose the "tools" and "wobjs" are.
MotionNames motionNamesIn(const CellValue& file);

} // namespace controller
