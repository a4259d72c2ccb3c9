#pragma once

#include "brisk/export.h"

namespace brisk {
namespace standin {

/// What the host itself can be made to do wrong, for tests. What the far side does wrong is the link's affair.
struct HostFaults {
    bool nullWatchNodes = false; ///< Relay::watchNode() gives null
};

BRISK_EXPORT HostFaults& hostFaults();

} // namespace standin
} // namespace brisk
