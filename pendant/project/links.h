#pragma once

#include <QObject>

#include <functional>

namespace pendant {

/// The state of the pendant's two links, as every plugin sees it.
namespace links {

bool isBusUp();
/// The bus and the link to the controller.
bool areUp();
/// Calls `tell` whenever one of them went up or down, for as long as `receiver` lives.
void follow(QObject* receiver, const std::function<void()>& tell);

} // namespace links
} // namespace pendant
