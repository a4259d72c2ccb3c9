#pragma once

#include <QtGlobal>

namespace kite {

/// The time of day in ms since 1970, UTC. In a file of its own, so that a test can put its own clock in its place.
qint64 wallClockMs();

} // namespace kite
