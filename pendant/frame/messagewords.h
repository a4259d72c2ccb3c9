#pragma once

#include "helm/messagelist.h"

#include <QString>

namespace pendant {

/// The level for people: "Error".
QString levelWord(helm::standin::MessageLevel level);
/// The name of the level's line icon: "error".
QString levelName(helm::standin::MessageLevel level);
/// The theme's colour for the level.
QString levelToken(helm::standin::MessageLevel level);

} // namespace pendant
