#pragma once

#include "brisk/link.h"

namespace controller {

using brisk::standin::Content;
using brisk::standin::Message;
using brisk::standin::Verb;

/// A content of its own, never null.
Content copied(const Content& content);

} // namespace controller
