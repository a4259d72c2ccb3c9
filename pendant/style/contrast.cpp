#include "contrast.h"

#include <algorithm>
#include <cmath>

namespace pendant {

namespace {

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b) {
    const double bright = std::max(luminance(a), luminance(b));
    const double dark = std::min(luminance(a), luminance(b));
    return (bright + 0.05) / (dark + 0.05);
}

} // namespace pendant
