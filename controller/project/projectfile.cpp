#include "controller/project/projectfile.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/wholefile.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using brisk::standin::jsonOf;

namespace controller {
namespace projectfile {

namespace {

QString infoPathIn(const QString& folder) {
    return folder + QStringLiteral("/projectinfo.json");
}

bool areRecords(const QJsonValue& list) {
    const QJsonArray records = list.toArray();
    return list.isArray() && std::all_of(records.begin(), records.end(), [](const QJsonValue& record) {
               return record.isObject() && !record.toObject().isEmpty();
           });
}

bool isProject(const QJsonObject& json) {
    return areRecords(json.value("variables")) && areRecords(json.value("points")) &&
           json.value("templates").isObject();
}

QVector<QJsonObject> recordsIn(const QJsonValue& list) {
    QVector<QJsonObject> records;
    for (const QJsonValue& record : list.toArray())
        records << record.toObject();
    return records;
}

QJsonArray jsonOf(const RecordList& list) {
    QJsonArray records;
    for (const QString& node : list.nodes())
        records << brisk::standin::jsonOf(list.record(node));
    return records;
}

QJsonArray presentOf(const RecordList& list, const PersistentVariables& variables) {
    const Content content = list.content();
    variables.writeInto(content.get());
    return brisk::standin::jsonOf(content).toArray();
}

QString writeJson(const QString& path, const QJsonObject& json) {
    const QString why = writeWhole(path, QJsonDocument(json).toJson());
    return why.isEmpty() ? QString() : QStringLiteral("The project cannot be written to %1: %2.").arg(path, why);
}

} // namespace

QString pathIn(const QString& folder) {
    return folder + QStringLiteral("/project.json");
}

QString read(const QString& folder, ProjectStart* start) {
    QFile file(pathIn(folder));
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("The project in %1 cannot be read: %2.").arg(file.fileName(), file.errorString());
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    if (!isProject(json))
        return QStringLiteral("The file %1 holds no project. Move it away, and the project begins without variables "
                              "and points.")
            .arg(file.fileName());
    start->function = json.value("function").toString(start->function);
    start->task = json.value("task").toString(start->task);
    const QJsonObject templates = json.value("templates").toObject();
    start->variableTemplate = templates.value("variable").toObject(start->variableTemplate);
    start->pointTemplate = templates.value("point").toObject(start->pointTemplate);
    start->variables = recordsIn(json.value("variables"));
    start->points = recordsIn(json.value("points"));
    return QString();
}

QString write(const QString& folder, const Project& project, const PersistentVariables& variables) {
    const ProjectStart& start = project.startedAs();
    const QJsonObject templates{{"variable", start.variableTemplate}, {"point", start.pointTemplate}};
    return writeJson(pathIn(folder), {{"function", start.function},
                                      {"task", start.task},
                                      {"templates", templates},
                                      {"variables", presentOf(project.variables(), variables)},
                                      {"points", jsonOf(project.points())}});
}

QJsonObject info(const QString& folder) {
    QFile file(infoPathIn(folder));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QString writeInfo(const QString& folder) {
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return writeJson(infoPathIn(folder), {{"create_time", now}, {"description", ""}});
}

} // namespace projectfile
} // namespace controller
