#pragma once

#include <QString>

namespace pendant {

/// The file name of the tour's picture: number, kind and subject, "02-page-weld.png". What is no letter or digit
/// becomes a dash; a subject without either is left out.
QString pictureName(int number, const QString& kind, const QString& subject);

} // namespace pendant
