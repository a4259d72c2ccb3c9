#include "senderlabel.h"

#include "tarp/bmodule.h"
#include "tarp/modulelabel.h"

namespace pendant {

QString senderLabel(const QObject* sender) {
    if (!sender)
        return QStringLiteral("-");
    const auto* module = qobject_cast<const tarp::BModule*>(sender);
    if (module && module->mobj())
        return tarp::standin::moduleLabel(module);
    const QString name = sender->objectName();
    return name.isEmpty() ? QString::fromLatin1(sender->metaObject()->className()) : name;
}

} // namespace pendant
