#pragma once

#include <QString>
#include <QStringList>

namespace pendant {

/// Puts an error into the message list under `source`, the name of a plugin or of a part of the pendant, and a line of
/// the same words into the log.
void reportError(const QString& source, const QString& text);

/// What has been reported since the process started, "source: text", oldest first and each once. After a thousand
/// different ones nothing more is kept.
QStringList reportedErrors();

} // namespace pendant
