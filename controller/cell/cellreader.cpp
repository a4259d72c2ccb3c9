#include "controller/cell/cellreader.h"

#include "controller/cell/coursereader.h"
#include "controller/cell/datareader.h"
#include "controller/cell/hostreader.h"
#include "controller/cell/projectreader.h"
#include "controller/cell/robotreader.h"
#include "controller/cell/signalreader.h"

#include <algorithm>
#include <iterator>

namespace controller {

namespace {

// Those of the controller itself begin so.
const char* const ownBeginnings[] = {"controller.", "robot.",  "mirror.", "monitor.",
                                     "register.",   "motion.", "move.",   "host."};
const char* const ownKeys[] = {"project.variable",
                               "project.remove_task",
                               "project.autoload",
                               "backup.backup_list",
                               "project.overview.set_autoload",
                               "proiect.overview.set_autoload",
                               "io.signals",
                               "io.set",
                               "io.force",
                               "io.release"};

bool isOwn(const QString& key) {
    for (const char* beginning : ownBeginnings) {
        if (key.startsWith(QLatin1String(beginning)))
            return true;
    }
    return std::any_of(std::begin(ownKeys), std::end(ownKeys),
                       [&key](const char* own) { return key == QLatin1String(own); });
}

void checkKey(const CellValue& json, const QString& key) {
    if (key.isEmpty())
        json.fail(QStringLiteral("A name is empty. Give it one."));
    if (isOwn(key))
        json[key].fail(QStringLiteral("This name belongs to the controller itself. Choose another name."));
}

} // namespace

bool CellReader::read(const QJsonObject& json) {
    const CellValue file(json, QString(), &m_error);
    file.mayHave({"bus", "changing", "commands", "requests", "pluginCommands", "robot", "tools", "wobjs", "project",
                  "pers", "refuse", "signals", "registers", "speeds", "zones", "host", "pathCheck"});
    readValues(file["bus"]);
    readChanging(file["changing"]);
    readAnswers(file["commands"], &m_cell.commands);
    readAnswers(file["requests"], &m_cell.requests);
    readRules(file["pluginCommands"]);
    m_cell.host = hostIn(file["host"]);
    m_cell.robot = RobotReader::read(file);
    m_cell.pathChecks = pathChecksIn(file["pathCheck"]);
    if (m_error.isEmpty()) // points are places of the robot
        m_cell.project = ProjectReader(m_cell.robot).read(file["project"]);
    m_cell.persistent = ProjectReader::readPersistent(file["pers"]);
    readRefusals(file["refuse"]);
    m_cell.ioSignals = signalsIn(file["signals"]);
    m_cell.registers = registersIn(file["registers"]);
    m_cell.motionNames = motionNamesIn(file);
    return m_error.isEmpty();
}

void CellReader::readAnswers(const CellValue& json, QMap<QString, QJsonValue>* answers) {
    if (!json.exists())
        return;
    for (const QString& name : json.names()) {
        checkKey(json, name);
        answers->insert(name, json[name].json());
    }
}

void CellReader::readValues(const CellValue& json) {
    readAnswers(json, &m_cell.values);
}

void CellReader::readChanging(const CellValue& json) {
    if (!json.exists())
        return;
    for (const QString& key : json.names()) {
        checkKey(json, key);
        if (m_cell.values.contains(key))
            json[key].fail(QStringLiteral("The key stands under \"bus\" too. Remove one of the two."));
        m_cell.courses.insert(key, courseIn(json[key]));
    }
}

void CellReader::readRules(const CellValue& json) {
    if (!json.exists())
        return;
    for (const CellValue& rule : json.items()) {
        rule.mayHave({"when", "answer"});
        if (!rule["when"].exists())
            rule["when"].fail(QStringLiteral("Add what the data of the command begins with."));
        rule["answer"].items();
        m_cell.rules.append({rule["when"].json(), rule["answer"].json().toArray()});
    }
}

void CellReader::readRefusals(const CellValue& json) {
    if (!json.exists())
        return;
    json.mayHave({"remove"});
    if (!json["remove"].exists())
        return;
    for (const CellValue& name : json["remove"].items())
        m_cell.refusedRemovals << name.text();
}

} // namespace controller
