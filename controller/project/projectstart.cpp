#include "controller/project/projectstart.h"

namespace controller {

ProjectStart emptyProject() {
    ProjectStart start;
    start.name = QStringLiteral("project");
    start.function = QStringLiteral("main");
    start.task = QStringLiteral("task0");
    start.variableTemplate = {{"name", ""},    {"type", ""},        {"id", 0},
                              {"pers", false}, {"description", ""}, {"value", QJsonObject{{onlyElement(), ""}}}};
    start.pointTemplate = {{"name", ""},        {"id", 0},    {"property", "joint"},
                           {"description", ""}, {"func", ""}, {"task", ""}};
    return start;
}

QString onlyElement() {
    return QStringLiteral("[0][0][0]");
}

} // namespace controller
