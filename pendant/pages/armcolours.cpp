#include "armcolours.h"

namespace pendant {

namespace {

// In the order of view::Material. Those of the axes are what robot programmers know X, Y and Z by.
std::array<QColor, view::materials> surfacesOf(const Theme& theme) {
    if (theme.isDark())
        return {QColor(0xc3cad0), QColor(0x46525d), QColor(0x93a0ab), QColor(0x65737f),
                QColor(0x4a555f), QColor(0xd9685f), QColor(0x58b377), QColor(0x5b9be6)};
    return {QColor(0xe9ebec), QColor(0x54606b), QColor(0xb4bcc4), QColor(0x6f7c88),
            QColor(0xa9b2ba), QColor(0xc2453c), QColor(0x3c8f55), QColor(0x2f6fc0)};
}

} // namespace

view::Colours armColours(const Theme& theme) {
    const auto token = [&](const char* name) { return theme.color(QLatin1String(name)); };
    view::Colours colours;
    colours.surfaces = surfacesOf(theme);
    colours.sky = token("panel");
    colours.ground = theme.isDark() ? token("field") : token("window");
    colours.floor = theme.isDark() ? QColor(0x262d33) : token("panel");
    colours.grid = theme.isDark() ? QColor(0x4b5761) : QColor(0xaab5bf);
    colours.shadow = theme.isDark() ? QColor(0, 0, 0, 150) : QColor(0x2b, 0x36, 0x40, 110);
    colours.text = token("text");
    colours.dimText = token("textDim");
    colours.halo = token("panel");
    colours.point = token("textDim");
    colours.selected = token("accent");
    colours.trace = token("accent");
    colours.edge = token("divider");
    return colours;
}

} // namespace pendant
