#pragma once

#include "controller/project/projectstart.h"

#include <QString>

namespace controller {

class PersistentVariables;
class Project;

/// What stands in the folder of a project: "project.json", its variables and points, and "projectinfo.json", what
/// people say of it.
namespace projectfile {

QString pathIn(const QString& folder);

/// Reads the variables and points. What the file does not say is as in `start` before, the name too.
/// \return what is wrong, a sentence, and `start` is as it was; empty when all is well
QString read(const QString& folder, ProjectStart* start);
/// Writes what `project` has now, with the present values of its persistent variables.
/// \return what is wrong, a sentence; empty when all is well
QString write(const QString& folder, const Project& project, const PersistentVariables& variables);

/// "description" and "create_time"; empty when there is none.
QJsonObject info(const QString& folder);
/// \return what is wrong, a sentence; empty when all is well
QString writeInfo(const QString& folder);

} // namespace projectfile
} // namespace controller
