#pragma once

#include <QString>

/// Who says it, in each of the plugin's log lines.
const QString logModule = QStringLiteral("<weld>");
