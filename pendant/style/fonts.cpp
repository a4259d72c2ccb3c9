#include "fonts.h"

namespace pendant {

QFont bodyFont() {
    const QString family = QStringLiteral("Inter");
    if (QFont::substitutes(family).isEmpty())
        QFont::insertSubstitutions(family, {QStringLiteral("DejaVu Sans"), QStringLiteral("WenQuanYi Micro Hei")});
    QFont font(family);
    font.setPixelSize(16);
    return font;
}

} // namespace pendant
