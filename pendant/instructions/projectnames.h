#pragma once

#include <QStringList>

namespace pendant {

/// Names in the open project, to be offered where one is asked for. In the order of the project, each once.
namespace projectnames {

QStringList points();
QStringList variables();
/// The tool that is selected and those of the points.
QStringList tools();
/// The work object that is selected and those of the points.
QStringList workObjects();

} // namespace projectnames
} // namespace pendant
