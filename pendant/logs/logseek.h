#pragma once

#include "logline.h"
#include "logplace.h"

namespace pendant {

class LogText;

/// The first row from `moment` on; the text's end() when all of it is older. It reads some blocks and not what lies
/// between, so where the clock was set back, or summer time ended, it is one of the rows that may be meant.
LogPlace seekLogMoment(const LogText& text, LogMoment moment);

} // namespace pendant
