#pragma once

#include "theme.h"

#include <QString>

namespace pendant {

/// `text` with every "@token" replaced by the theme's colour and "@theme" by its name. A token that the theme does not
/// know stays as it is.
QString withTokens(const QString& text, const Theme& theme);

/// How standard widgets look on a page of the pendant, in the side bar and in the status bar.
QString controlStyleSheet(const Theme& theme);

/// The same and the pendant's own frame and pages.
QString frameStyleSheet(const Theme& theme);

/// The developer dock: dense, for a mouse and a keyboard.
QString developerStyleSheet(const Theme& theme);

} // namespace pendant
