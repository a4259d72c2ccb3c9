#include "interface/treevalue.h"

#include "brisk/modulemanager.h"

namespace kite {

QString textAt(const QString& key, const QString& fallback) {
    const brisk::ModuleObject* node = m(key);
    return node ? node->getString(fallback) : fallback;
}

void writeAt(QObject* sender, const QString& key, const QVariant& value) {
    if (brisk::ModuleObject* node = m(key))
        node->setValue(sender, value);
}

} // namespace kite
