#pragma once

#include "helm/managerhelper.h"

#include <QString>

namespace kite {

/// A setting of the host as text; empty when it is not set.
inline QString setting(const QString& key) {
    return helm::ManagerHelper::instance()->settingManager()->getStr(key, QLatin1String(""));
}

} // namespace kite
