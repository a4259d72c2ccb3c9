#pragma once

#include <QObject>

#include <functional>

namespace pendant {

/// Whether what the data tree says of the robot is what the controller says now.
namespace statelink {

/// The bus is up, and who keeps the tree has been told everything since it came up.
bool isCurrent();
/// The bus is up and the controller has not yet told how it is.
bool isAwaited();
/// For who keeps the tree.
void setAwaited(bool awaited);
/// Calls `tell` whenever it may have changed, for as long as `receiver` lives.
void follow(QObject* receiver, const std::function<void()>& tell);

} // namespace statelink
} // namespace pendant
