#pragma once

#include "brisk/buslink.h"

namespace brisk {

/// What stands behind the bus now; null with the link down.
standin::BusLink* currentLink();

} // namespace brisk
