#include "theme.h"

namespace pendant {

namespace {

QHash<QString, QColor> lightColors() {
    return {
        {QStringLiteral("window"), QColor(0xe3e7eb)},       {QStringLiteral("panel"), QColor(0xf5f7f9)},
        {QStringLiteral("field"), QColor(0xffffff)},        {QStringLiteral("raised"), QColor(0xffffff)},
        {QStringLiteral("pressed"), QColor(0xc6cfd8)},      {QStringLiteral("divider"), QColor(0xc9d1d8)},
        {QStringLiteral("outline"), QColor(0x75828f)},      {QStringLiteral("text"), QColor(0x1b2228)},
        {QStringLiteral("textDim"), QColor(0x4a5763)},      {QStringLiteral("textOff"), QColor(0x76828d)},
        {QStringLiteral("accent"), QColor(0x0b5cad)},       {QStringLiteral("accentPressed"), QColor(0x073e77)},
        {QStringLiteral("onAccent"), QColor(0xffffff)},     {QStringLiteral("accentSoft"), QColor(0xd3e3f3)},
        {QStringLiteral("onAccentSoft"), QColor(0x083f78)}, {QStringLiteral("good"), QColor(0x17653a)},
        {QStringLiteral("warning"), QColor(0x7d4b00)},      {QStringLiteral("error"), QColor(0xae2018)},
        {QStringLiteral("bezel"), QColor(0x2b3238)},        {QStringLiteral("bezelText"), QColor(0xd7dde2)},
        {QStringLiteral("cap"), QColor(0xdde2e7)},          {QStringLiteral("capPressed"), QColor(0xaab5bf)},
        {QStringLiteral("capEdge"), QColor(0x98a3ad)},      {QStringLiteral("capText"), QColor(0x1b2228)},
        {QStringLiteral("capBlank"), QColor(0x3b444c)},     {QStringLiteral("service"), QColor(0x7a2f8f)},
    };
}

QHash<QString, QColor> darkColors() {
    return {
        {QStringLiteral("window"), QColor(0x15191c)},       {QStringLiteral("panel"), QColor(0x1f252a)},
        {QStringLiteral("field"), QColor(0x12161a)},        {QStringLiteral("raised"), QColor(0x313a42)},
        {QStringLiteral("pressed"), QColor(0x4a5660)},      {QStringLiteral("divider"), QColor(0x39434b)},
        {QStringLiteral("outline"), QColor(0x7f8c98)},      {QStringLiteral("text"), QColor(0xe9edf0)},
        {QStringLiteral("textDim"), QColor(0xaab6c0)},      {QStringLiteral("textOff"), QColor(0x7b8894)},
        {QStringLiteral("accent"), QColor(0x66b1f5)},       {QStringLiteral("accentPressed"), QColor(0xa9d3fb)},
        {QStringLiteral("onAccent"), QColor(0x0a1b2b)},     {QStringLiteral("accentSoft"), QColor(0x1c3a57)},
        {QStringLiteral("onAccentSoft"), QColor(0xcfe6fc)}, {QStringLiteral("good"), QColor(0x62cf91)},
        {QStringLiteral("warning"), QColor(0xf2b650)},      {QStringLiteral("error"), QColor(0xff9086)},
        {QStringLiteral("bezel"), QColor(0x0b0e10)},        {QStringLiteral("bezelText"), QColor(0xc3ccd4)},
        {QStringLiteral("cap"), QColor(0x38424a)},          {QStringLiteral("capPressed"), QColor(0x1d2328)},
        {QStringLiteral("capEdge"), QColor(0x5a6670)},      {QStringLiteral("capText"), QColor(0xf0f3f5)},
        {QStringLiteral("capBlank"), QColor(0x1a1f23)},     {QStringLiteral("service"), QColor(0xdca6ec)},
    };
}

} // namespace

Theme Theme::light() {
    return Theme(QStringLiteral("light"), lightColors());
}

Theme Theme::dark() {
    return Theme(QStringLiteral("dark"), darkColors());
}

Theme Theme::named(const QString& name) {
    return name == QLatin1String("dark") ? dark() : light();
}

QStringList Theme::names() {
    return {QStringLiteral("light"), QStringLiteral("dark")};
}

QPalette Theme::palette() const {
    const auto token = [this](const char* name) { return color(QLatin1String(name)); };
    QPalette palette(token("text"), token("raised"), token("raised").lighter(120), token("outline"), token("divider"),
                     token("text"), token("text"), token("field"), token("panel"));
    palette.setColor(QPalette::AlternateBase, token("panel"));
    palette.setColor(QPalette::Highlight, token("accent"));
    palette.setColor(QPalette::HighlightedText, token("onAccent"));
    palette.setColor(QPalette::Link, token("accent"));
    palette.setColor(QPalette::ToolTipBase, token("panel"));
    palette.setColor(QPalette::ToolTipText, token("text"));
    palette.setColor(QPalette::PlaceholderText, token("textDim"));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, token("textOff"));
    return palette;
}

} // namespace pendant
