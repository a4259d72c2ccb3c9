#pragma once

#include <QString>
#include <QStringList>

class QObject;
namespace brisk {
class ModuleObject;
}

namespace pendant {

/// What the controller tells and where it goes in the data tree.
namespace statewriter {

/// The bus keys that are told of.
QStringList keys();

/// Writes `value`, what the controller says under `key`, into the tree where it differs. A value of another shape than
/// it should have is left alone: a controller without the key refuses it.
void write(const QString& key, brisk::ModuleObject* value, QObject* sender);

} // namespace statewriter
} // namespace pendant
