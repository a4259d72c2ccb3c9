#include "brisk/buslink.h"

#include "currentlink.h"

namespace {

brisk::standin::BusLink* current = nullptr;

} // namespace

namespace brisk {

namespace standin {

BusLink::~BusLink() = default;

void setBusLink(BusLink* link) {
    current = link;
}

} // namespace standin

standin::BusLink* currentLink() {
    return current;
}

} // namespace brisk
