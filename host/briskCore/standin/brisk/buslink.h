#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QString>

namespace brisk {
namespace standin {

/// What stands behind the service bus. Answers may be null; the bus hands them on as they are.
class BRISK_EXPORT BusLink {
public:
    virtual ~BusLink();
    virtual ModuleObject* get(const QString& key, const QString& subKey) = 0;
};

/// Puts `link` behind the bus, null for none; it is not owned and must outlive its use.
BRISK_EXPORT void setBusLink(BusLink* link);

} // namespace standin
} // namespace brisk
