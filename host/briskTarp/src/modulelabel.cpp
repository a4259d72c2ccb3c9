#include "tarp/modulelabel.h"

#include "brisk/moduleobject.h"
#include "tarp/bmodule.h"

namespace tarp {
namespace standin {

QString moduleLabel(const QObject* module) {
    const auto* bound = dynamic_cast<const BModule*>(module);
    if (!bound || !bound->mobj())
        return QStringLiteral("pendant");
    const QString key = bound->mobj()->key();
    // "brisk.kite.weld" -> "weld", "brisk.kite.weld.left" -> "weld.left"
    const QString label = key.section(QLatin1Char('.'), 2);
    return label.isEmpty() ? key : label;
}

} // namespace standin
} // namespace tarp
