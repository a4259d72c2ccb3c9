#pragma once

#include <QString>

namespace pendant {

/// Leaves the colours out of what goes to the console when that is no terminal but a file or a pipe. The log streams
/// always send them. To be called once, before the first message; everything else about messages stays with Qt. A
/// handler that is installed later takes its place.
void keepColoursOnTerminals();

/// The text without its colours: "\x1b[31mred\x1b[0m" -> "red".
QString withoutColours(const QString& text);

} // namespace pendant
