#pragma once

namespace pendant {

/// Lets events happen until bus and controller link are both up, at most for `timeoutMs`.
/// \return whether both are up
bool waitForLinks(int timeoutMs);

} // namespace pendant
