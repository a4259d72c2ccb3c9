#include "controller/cellfile.h"

#include "controller/cell/cellreader.h"
#include "controller/cell/repeatedname.h"
#include "controller/io/motiondata.h"
#include "controller/io/registers.h"
#include "controller/io/signaltable.h"
#include "controller/project/project.h"
#include "controller/robot/robot.h"

#include <QFile>
#include <QJsonDocument>

using brisk::standin::contentOf;
using brisk::standin::jsonOf;

// Q_INIT_RESOURCE must not stand in a namespace.
static void useResources() {
    Q_INIT_RESOURCE(controller);
}

namespace controller {

namespace {

bool fail(QString* error, const QString& name, const QString& text) {
    *error = QStringLiteral("The cell file %1 is no good: %2").arg(name, text);
    return false;
}

QString lineAndColumn(const QByteArray& text, int offset) {
    const QByteArray before = text.left(offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("Line %1, column %2").arg(line).arg(column);
}

QString whyNoObject(const QByteArray& text, const QJsonParseError& error) {
    if (error.error == QJsonParseError::NoError)
        return QStringLiteral("It must hold an object: {\"bus\": {...}}.");
    return QStringLiteral("%1 is not JSON: %2.").arg(lineAndColumn(text, error.offset), error.errorString());
}

QString whyRepeated(const QByteArray& text, const RepeatedName& repeated) {
    return QStringLiteral("%1: The name \"%2\" stands in this object already. Write one member of it.")
        .arg(lineAndColumn(text, repeated.offset), repeated.name);
}

std::function<Content(const Content&)> answering(const QJsonValue& answer) {
    return [answer](const Content&) { return contentOf(QVariant(answer)); };
}

QJsonValue firstOf(const QJsonValue& data) {
    return data.isArray() ? data.toArray().first() : data;
}

PluginCommands::Handler following(const QVector<Cell::Rule>& rules) {
    return [rules](const QString&, const Content& data) {
        const QJsonValue first = firstOf(jsonOf(data));
        for (const Cell::Rule& rule : rules) {
            if (rule.when == first)
                return contentOf(QVariant(rule.answer));
        }
        return data;
    };
}

// As it looks after its way over the bus, which leaves empty members out.
QVector<Cell::Rule> asSent(QVector<Cell::Rule> rules) {
    for (Cell::Rule& rule : rules)
        rule.when = jsonOf(contentOf(QVariant(rule.when)));
    return rules;
}

void take(const Cell& cell, VirtualController* controller) {
    for (auto entry = cell.values.constBegin(); entry != cell.values.constEnd(); ++entry)
        controller->bus()->define(entry.key(), entry.value());
    for (auto entry = cell.courses.constBegin(); entry != cell.courses.constEnd(); ++entry)
        controller->changing()->add(entry.key(), entry.value());
    for (auto entry = cell.commands.constBegin(); entry != cell.commands.constEnd(); ++entry)
        controller->bus()->onCommand(entry.key(), answering(entry.value()));
    for (auto entry = cell.requests.constBegin(); entry != cell.requests.constEnd(); ++entry)
        controller->requests()->onRequest(entry.key(), answering(entry.value()));
    if (!cell.rules.isEmpty())
        controller->pluginCommands()->setHandler(following(asSent(cell.rules)));
    controller->setHost(cell.host);
    controller->robot()->setModel(cell.robot);
    controller->pathCheck()->setRules(cell.pathChecks);
    controller->ioSignals()->start(cell.ioSignals);
    controller->registers()->start(cell.registers);
    controller->motionData()->start(cell.motionNames);
    controller->project()->start(cell.project);
    controller->project()->refuseToRemove(cell.refusedRemovals);
    controller->persistentVariables()->list(cell.persistent);
}

} // namespace

QString CellFile::defaultPath() {
    useResources();
    return QStringLiteral(":/controller/cells/default.json");
}

bool CellFile::load(const QString& path, VirtualController* controller, QString* error) {
    useResources();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("The cell file %1 cannot be read: %2.").arg(path, file.errorString());
        return false;
    }
    return loadText(file.readAll(), path, controller, error);
}

bool CellFile::loadText(const QByteArray& text, const QString& name, VirtualController* controller, QString* error) {
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (!document.isObject())
        return fail(error, name, whyNoObject(text, parseError));
    const RepeatedName repeated = RepeatedName::in(text);
    if (repeated.offset >= 0)
        return fail(error, name, whyRepeated(text, repeated));
    CellReader reader;
    if (!reader.read(document.object()))
        return fail(error, name, reader.error());
    take(reader.cell(), controller);
    return true;
}

} // namespace controller
