#pragma once

/// Marks what one of the host's four libraries exports; everything else is hidden.
#define BRISK_EXPORT __attribute__((visibility("default")))
