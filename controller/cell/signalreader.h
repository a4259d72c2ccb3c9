#pragma once

#include "controller/cell/cellvalue.h"
#include "controller/io/iosignal.h"

#include <QVector>

namespace controller {

/// Reads the section "signals" of a cell.
QVector<IoSignal> signalsIn(const CellValue& json);

/// The name of an item of a list in a cell; it is added to `names`, which are those before. A name becomes that of a
/// node in the pendant's tree, so it holds no dot and is none of a list's item.
QString nodeNameIn(const CellValue& json, QStringList* names);

} // namespace controller
