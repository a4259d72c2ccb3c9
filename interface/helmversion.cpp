#include "interface/helmversion.h"

#include "brisk/modulemanager.h"

namespace kite {

bool checkHelmVersion(const QString& prefix) {
    const brisk::ModuleObject* node = m(QStringLiteral("helm.r.version"));
    const QString version = node ? node->getString(QLatin1String("")) : QString();
    // Qt has no null string start with an empty one.
    return prefix.isEmpty() || version.startsWith(prefix);
}

bool isHelm23Or30Or31() {
    return checkHelmVersion(QStringLiteral("2.3")) || checkHelmVersion(QStringLiteral("3.0")) ||
           checkHelmVersion(QStringLiteral("3.1"));
}

} // namespace kite
