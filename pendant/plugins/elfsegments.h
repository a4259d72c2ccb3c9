#pragma once

#include <QFile>
#include <QtGlobal>

namespace pendant {

/// How many bytes a 64-bit little-endian ELF file must have to hold what its table of segments names. The system maps
/// the segments without asking for the file's length, and reading a page beyond the end kills the process.
qint64 neededSize(QFile& file);

} // namespace pendant
