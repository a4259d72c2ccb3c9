#pragma once

#include "brisk/export.h"

#include <QString>

#include <exception>
#include <functional>

namespace brisk {
namespace standin {

/// Calls that the bus and the managers make into plugins.
enum class GuardedCall {
    BusDelivery, ///< `name` is the bus key
    NetworkTask, ///< `name` is the id of the task
    Response,    ///< `name` is the full command: what listens to its "response" item
    LinkChange   ///< `name` is the channel, "bus" or "controller": what listens to its going up or down
};

/// Is told what such a call threw.
using ThrownHandler = std::function<void(GuardedCall call, const QString& name, const std::exception_ptr& thrown)>;

/// Sets who is told; an empty handler lets exceptions through.
BRISK_EXPORT void setThrownHandler(ThrownHandler handler);

/// Runs `body` and hands what it throws to the handler.
BRISK_EXPORT void guarded(GuardedCall call, const QString& name, const std::function<void()>& body);

} // namespace standin
} // namespace brisk
