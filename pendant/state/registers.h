#pragma once

#include <QString>
#include <QStringList>

class QObject;
namespace brisk {
class ModuleObject;
}

namespace pendant {

/// What can be done with a register, a record of the list in the data tree.
namespace registers {

QString nameOf(brisk::ModuleObject* record);
QStringList valuesOf(brisk::ModuleObject* record);

/// Asks the controller; what it refuses is in the message list.
void set(QObject* sender, const QString& name, const QStringList& values);

} // namespace registers
} // namespace pendant
