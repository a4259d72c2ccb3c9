#pragma once

#include <QString>

namespace pendant {

/// Opens the shared object at `path` with all its symbols resolved and visible to itself alone, and runs its static
/// initialisers. It is never closed again.
/// \return why it cannot be opened, to be read after the path; empty on success
QString openSharedObject(const QString& path);

/// `text` with the symbol names of C++ spelt as in the source: "_Z3foov" -> "foo()".
QString withReadableSymbols(const QString& text);

} // namespace pendant
