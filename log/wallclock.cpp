#include "log/wallclock.h"

#include <QDateTime>

namespace kite {

qint64 wallClockMs() {
    return QDateTime::currentMSecsSinceEpoch();
}

} // namespace kite
