#pragma once

#include <QString>

namespace kite {

/// Whether the version of the host's helm libraries ("helm.r.version" in the data tree) starts with `prefix`, compared
/// with its case. A version that is not there counts as empty.
bool checkHelmVersion(const QString& prefix);
/// Whether it is one of 2.3, 3.0 and 3.1: hosts with persistent variables and the longer names of move commands.
bool isHelm23Or30Or31();

} // namespace kite
