#pragma once

#include "brisk/export.h"

#include <QString>

namespace tarp {
namespace standin {

/// The style sheet that BModule::startRender() gives to a module's widget. Setting it again restyles every widget that
/// has been rendered and still lives.
BRISK_EXPORT void setRenderStyleSheet(const QString& styleSheet);
BRISK_EXPORT QString renderStyleSheet();

} // namespace standin
} // namespace tarp
