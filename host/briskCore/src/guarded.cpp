#include "brisk/guarded.h"

#include <utility>

namespace brisk {
namespace standin {

namespace {

ThrownHandler& current() {
    static ThrownHandler handler;
    return handler;
}

} // namespace

void setThrownHandler(ThrownHandler handler) {
    current() = std::move(handler);
}

void guarded(GuardedCall call, const QString& name, const std::function<void()>& body) {
    if (!current())
        return body();
    try {
        body();
    } catch (...) {
        current()(call, name, std::current_exception());
    }
}

} // namespace standin
} // namespace brisk
