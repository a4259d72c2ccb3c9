#pragma once

#include "brisk/moduleobject.h"

#include <QJsonValue>

namespace kite {

/// The node with its children as JSON; Null for null.
inline QJsonValue jsonOf(const brisk::ModuleObject* node) {
    return node ? node->exportToJson(true) : QJsonValue();
}

} // namespace kite
