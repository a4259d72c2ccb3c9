#include "icons.h"

#include "contrast.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>

namespace pendant {

namespace {

QString filePath(const QString& name) {
    return QStringLiteral(":/pendant/icons/%1.svg").arg(name);
}

QPixmap tinted(QPixmap pixmap, const QColor& ink) {
    if (pixmap.isNull())
        return pixmap;
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), ink);
    return pixmap;
}

QPixmap tinted(const QIcon& icon, const QColor& ink, int size) {
    return tinted(icon.pixmap(size, size), ink);
}

// The colour that the opaque pixels have on average; invalid when there is none.
QColor meanColor(const QPixmap& picture) {
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    qint64 red = 0, green = 0, blue = 0, count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) < 128)
                continue;
            red += qRed(line[x]);
            green += qGreen(line[x]);
            blue += qBlue(line[x]);
            ++count;
        }
    }
    if (count == 0)
        return QColor();
    return QColor(static_cast<int>(red / count), static_cast<int>(green / count), static_cast<int>(blue / count));
}

// What is needed to tell a drawing from its ground; text needs more.
const double leastContrast = 3.0;

QIcon namedIcon(const QString& name, const Theme& theme) {
    if (name.isEmpty())
        return QIcon();
    if (QFileInfo::exists(name))
        return QIcon(legible(QIcon(name).pixmap(24, 24), theme.color(QStringLiteral("window")),
                             theme.color(QStringLiteral("text"))));
    if (QFileInfo::exists(filePath(name)))
        return lineIcon(name, theme.color(QStringLiteral("text")), theme);
    return QIcon::fromTheme(name);
}

} // namespace

QPixmap linePixmap(const QString& name, const QColor& ink, int size) {
    return tinted(QIcon(filePath(name)), ink, size);
}

QIcon lineIcon(const QString& name, const QColor& ink, const Theme& theme) {
    const QIcon source(filePath(name));
    QIcon icon;
    for (const int size : {16, 24, 32, 48}) {
        icon.addPixmap(tinted(source, ink, size), QIcon::Normal);
        icon.addPixmap(tinted(source, theme.color(QStringLiteral("textOff")), size), QIcon::Disabled);
    }
    return icon;
}

QPixmap legible(const QPixmap& picture, const QColor& ground, const QColor& ink) {
    const QColor mean = meanColor(picture);
    return !mean.isValid() || contrastRatio(mean, ground) >= leastContrast ? picture : tinted(picture, ink);
}

QIcon entryIcon(const QStringList& names, const Theme& theme) {
    for (const QString& name : names) {
        const QIcon icon = namedIcon(name, theme);
        if (!icon.isNull())
            return icon;
    }
    return QIcon();
}

void selectIconTheme(const Theme& theme) {
    const QString icons = QStringLiteral("/usr/share/icons");
    QStringList paths = QIcon::themeSearchPaths();
    if (!paths.contains(icons)) {
        paths.append(icons);
        QIcon::setThemeSearchPaths(paths);
    }
    QIcon::setThemeName(theme.isDark() ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
}

} // namespace pendant
