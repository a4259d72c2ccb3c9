#pragma once

#include <QString>
#include <QVariant>

class QObject;

namespace kite {

/// The text of the node of `key` in the host's tree; `fallback` where there is none.
QString textAt(const QString& key, const QString& fallback = QStringLiteral(""));
/// Sets the value of the node of `key` in the host's tree, and announces it as of `sender`.
void writeAt(QObject* sender, const QString& key, const QVariant& value);

} // namespace kite
