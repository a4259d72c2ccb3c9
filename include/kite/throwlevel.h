#pragma once

namespace kite {

/// The level of a line in the pendant's message list. Any value but warning and error is information.
/// \since 0.1
enum enThrowLogLevel : int { ThrowInformation = 0, ThrowWarning = 1, ThrowError = 2 };

} // namespace kite
