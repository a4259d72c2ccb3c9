#pragma once

#include <QString>

namespace kite {

/// Whether the version of the host's helm libraries ("helm.r.version" in the data tree) starts with `prefix`, compared
/// with its case. A version that is not there counts as empty.
bool checkHelmVersion(const QString& prefix);

} // namespace kite
