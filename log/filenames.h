#pragma once

#include <QString>

namespace kite {

/// A log's name and day, "kite_20250314": what its sizes and its index are kept under.
///
/// \param path the log's path without extension
/// \param date "yyyyMMdd"
QString dayKey(const QString& path, const QString& date);

/// The day key that a file's name tells; empty for a name that does not follow the pattern.
/// "./log/kite_20250314_2.log" -> "kite_20250314"
QString dayKeyOfFile(const QString& filePath);

/// The rotation index that a file's name tells; 0 for none.
/// "kite_20250314_2.log" -> 2
int indexInFileName(const QString& fileName);

/// What follows the last '/', as QFileInfo::fileName() has it.
QString lastPart(const QString& path);

} // namespace kite
