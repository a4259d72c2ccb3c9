#pragma once

#include <QStringList>

namespace pendant {

/// Names in the open project and of the robot, to be offered where one is asked for. In the order of the project, each
/// once.
namespace projectnames {

QStringList points();
QStringList variables();
/// The tool that is selected, those of the project, of the system and of all projects, and those of the points.
QStringList tools();
/// The same of the work objects.
QStringList workObjects();
/// The robot's digital outputs.
QStringList digitalOutputs();

} // namespace projectnames
} // namespace pendant
