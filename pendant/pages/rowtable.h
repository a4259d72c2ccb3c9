#pragma once

#include <QTableView>

namespace pendant {

/// A table whose rows are read and picked by finger: no grid, one row at a time, headings above their texts, rows of
/// one height, which the view need not measure.
void setUpRowTable(QTableView* table);

} // namespace pendant
