#pragma once

namespace pendant {

/// Makes the resources of the static library known to Qt. May be called more than once.
void initResources();

} // namespace pendant
