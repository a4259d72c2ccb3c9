#pragma once

#include <QString>

#include <functional>

namespace pendant {

/// Runs `call` and lets nothing out of it.
/// \return what it threw, in words: an exception's what(), or the type of anything else; empty when it threw nothing
QString thrownBy(const std::function<void()>& call);

} // namespace pendant
