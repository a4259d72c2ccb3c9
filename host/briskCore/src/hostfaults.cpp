#include "brisk/hostfaults.h"

namespace brisk {
namespace standin {

HostFaults& hostFaults() {
    static HostFaults faults;
    return faults;
}

} // namespace standin
} // namespace brisk
