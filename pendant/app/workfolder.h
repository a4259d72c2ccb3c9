#pragma once

#include <QString>

namespace pendant {

/// Makes `path` and the folders "log", "upgrade" and "workspace" beneath it, and makes it the current folder.
/// \return what is wrong, in words; empty when it is done
QString enterWorkFolder(const QString& path);

} // namespace pendant
