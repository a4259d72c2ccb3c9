#pragma once

#include <QString>

namespace brisk {

/// Appends `line` and a line break to the day's file, `path` + "_yyyyMMdd." + `ext`.
void appendToDayFile(const QString& path, const QString& ext, const QString& line);

} // namespace brisk
