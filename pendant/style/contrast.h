#pragma once

#include <QColor>

namespace pendant {

/// The contrast ratio of two opaque colours as the Web Content Accessibility Guidelines define it: 1 (none) to 21.
double contrastRatio(const QColor& a, const QColor& b);

} // namespace pendant
