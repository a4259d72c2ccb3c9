#pragma once

#include <QObject>
#include <QString>

namespace pendant {

/// How a developer knows who wrote: the module's name ("weld"), else the object's name, else its class. "-" for nobody.
QString senderLabel(const QObject* sender);

} // namespace pendant
