#pragma once

#include <QByteArray>
#include <QString>

namespace controller {

/// Writes `bytes` aside and moves them into the place of the file at `path`. Its folder must be there.
/// \return what is wrong, in the words of the system, and the file is as it was; empty when all is on the disk
QString writeWhole(const QString& path, const QByteArray& bytes);

} // namespace controller
