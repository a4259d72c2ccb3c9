#pragma once

#include "style/theme.h"
#include "view/shading.h"

namespace pendant {

/// What the robot is drawn with in a theme.
view::Colours armColours(const Theme& theme);

} // namespace pendant
