#pragma once

#include <QString>

namespace pendant {

/// The pendant's settings file in its working folder, which the host reads too.
namespace settings {

QString text(const QString& key);
void setText(const QString& key, const QString& text);

} // namespace settings
} // namespace pendant
