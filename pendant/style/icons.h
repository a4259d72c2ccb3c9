#pragma once

#include "theme.h"

#include <QIcon>
#include <QPixmap>
#include <QString>
#include <QStringList>

namespace pendant {

/// The pendant's own line icon of that name (a file in pendant/icons) in `ink`, and in the theme's colour for what is
/// off when it is drawn disabled.
QIcon lineIcon(const QString& name, const QColor& ink, const Theme& theme);
QPixmap linePixmap(const QString& name, const QColor& ink, int size);

/// `picture` as it is when it stands out from `ground`, otherwise all in `ink`. Pictures that plugins bring are drawn
/// for one ground and stand on several.
QPixmap legible(const QPixmap& picture, const QColor& ground, const QColor& ink);

/// The first of `names` that is an icon: the path of a picture (":/weld/a.svg", "weld:a.svg"), one of the pendant's own
/// line icons or an icon of the theme. A null icon when there is none.
QIcon entryIcon(const QStringList& names, const Theme& theme);

/// Lets QIcon::fromTheme() find icons that suit the theme.
void selectIconTheme(const Theme& theme);

} // namespace pendant
