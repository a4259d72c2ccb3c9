#include "brisk/traffic.h"

#include <QMetaMethod>

namespace brisk {
namespace standin {

Traffic::Traffic() = default;

Traffic* Traffic::instance() {
    // Never destroyed, as the channels that write here.
    static auto* traffic = new Traffic;
    return traffic;
}

bool Traffic::isHeard() const {
    return isSignalConnected(QMetaMethod::fromSignal(&Traffic::recorded));
}

void Traffic::record(const TrafficEntry& entry) {
    emit recorded(entry);
}

} // namespace standin
} // namespace brisk
