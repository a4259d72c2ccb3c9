#pragma once

#include "brisk/export.h"

#include <QString>

namespace helm {
namespace standin {

/// Has the host read its settings from the file at `path`, an absolute path, from now on; empty ends that, and it reads
/// settings.ini of the folder in which its managers were made. For tests that make several pendants in a process.
BRISK_EXPORT void readSettingsFrom(const QString& path);

} // namespace standin
} // namespace helm
