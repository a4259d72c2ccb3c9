#include "controller/cellfile.h"
#include "controller/project/persistentvariables.h"
#include "controller/robot/pathcheck.h"

#include "contents.h"

#include <QFile>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using controller::CellFile;
using controller::Content;
using controller::Message;
using controller::Verb;
using controller::VirtualController;

namespace {

QString pluginAnswer(VirtualController& controller, const char* data) {
    Message message;
    message.verb = Verb::Execute;
    message.key = "weld";
    message.subKey = "ServiceAPI.plugin";
    message.content = content(data);
    return text(controller.handle(message));
}

void mistakesOfSections() {
    QTest::newRow("no JSON") << "{\n  \"bus\": {\n    \"a\": x\n  }\n}"
                             << "Line 3, column"
                             << "not JSON";
    QTest::newRow("empty file") << ""
                                << "Line 1, column 1"
                                << "not JSON";
    QTest::newRow("array") << "[1]"
                           << "object"
                           << "{\"bus\"";
    QTest::newRow("unknown section") << R"({"buss": {}})"
                                     << "buss: "
                                     << "\"bus\"";
    QTest::newRow("bus is an array") << R"({"bus": []})"
                                     << "bus: "
                                     << "Write an object";
    QTest::newRow("rules are an object") << R"({"pluginCommands": {}})"
                                         << "pluginCommands: "
                                         << "Write an array";
    QTest::newRow("empty name") << R"({"requests": {"": 1}})"
                                << "requests: "
                                << "empty";
    QTest::newRow("own key") << R"({"bus": {"controller.uptime": 1}})"
                             << "bus[\"controller.uptime\"]: "
                             << "another name";
    QTest::newRow("own changing key") << R"({"changing": {"controller.x": 1}})"
                                      << "changing[\"controller.x\"]: "
                                      << "another name";
    QTest::newRow("key of the robot") << R"({"bus": {"robot.axes": 1}})"
                                      << "bus[\"robot.axes\"]: "
                                      << "another name";
    QTest::newRow("key of the mirror") << R"({"changing": {"mirror.x": {"count": {"everyS": 1}}}})"
                                       << "changing[\"mirror.x\"]: "
                                       << "another name";
    QTest::newRow("own command") << R"({"commands": {"project.variable": 1}})"
                                 << "commands[\"project.variable\"]: "
                                 << "another name";
    QTest::newRow("command like an own one") << R"({"commands": {"controller.x": 1}})"
                                             << "commands[\"controller.x\"]: "
                                             << "another name";
    QTest::newRow("request like an own one") << R"({"requests": {"controller.x": 1}})"
                                             << "requests[\"controller.x\"]: "
                                             << "another name";
    QTest::newRow("key of the signals") << R"({"bus": {"io.signals": 1}})"
                                        << "bus[\"io.signals\"]: "
                                        << "another name";
    QTest::newRow("command of the signals") << R"({"commands": {"io.force": 1}})"
                                            << "commands[\"io.force\"]: "
                                            << "another name";
    QTest::newRow("key of the registers") << R"({"bus": {"register.list": 1}})"
                                          << "bus[\"register.list\"]: "
                                          << "another name";
    QTest::newRow("key of motion") << R"({"bus": {"motion.data": 1}})"
                                   << "bus[\"motion.data\"]: "
                                   << "another name";
    QTest::newRow("key twice") << R"({"bus": {"a": 1}, "changing": {"a": {"count": {"everyS": 1}}}})"
                               << "changing.a: "
                               << "Remove one";
}

void mistakesOfCourses() {
    QTest::newRow("always on") << R"({"changing": {"a": {"pulse": {"onS": 3, "periodS": 3}}}})"
                               << "changing.a.pulse.onS: "
                               << "less than \"periodS\"";
    QTest::newRow("pulse misspelt") << R"({"changing": {"a": {"pulse": {"on": 3, "periodS": 3}}}})"
                                    << "changing.a.pulse.on: "
                                    << "\"onS\"";
    QTest::newRow("no course") << R"({"changing": {"a": 5}})"
                               << "changing.a: "
                               << "\"wave\"";
    QTest::newRow("unknown course") << R"({"changing": {"a": {"saw": {}}}})"
                                    << "changing.a: "
                                    << "\"wave\"";
    QTest::newRow("two courses") << R"({"changing": {"a": {"wave": {}, "count": {}}}})"
                                 << "changing.a: "
                                 << "\"wave\"";
    QTest::newRow("misspelt") << R"({"changing": {"a": {"wave": {"min": 1, "max": 2, "period": 3}}}})"
                              << "changing.a.wave.period: "
                              << "\"periodS\"";
    QTest::newRow("missing") << R"({"changing": {"a": {"wave": {"min": 1, "periodS": 3}}}})"
                             << "changing.a.wave.max: "
                             << "Add a number";
    QTest::newRow("no number") << R"({"changing": {"a": {"wave": {"min": "1", "max": 2, "periodS": 3}}}})"
                               << "changing.a.wave.min: "
                               << "Write a number";
    QTest::newRow("upside down") << R"({"changing": {"a": {"wave": {"min": 3, "max": 2, "periodS": 3}}}})"
                                 << "changing.a.wave: "
                                 << "Exchange";
    QTest::newRow("too short") << R"({"changing": {"a": {"wave": {"min": 1, "max": 2, "periodS": 0}}}})"
                               << "changing.a.wave.periodS: "
                               << "from 1 to 1000000 seconds";
    QTest::newRow("too often") << R"({"changing": {"a": {"count": {"everyS": -1}}}})"
                               << "changing.a.count.everyS: "
                               << "from 0.1 to 1000000 seconds";
    QTest::newRow("too long") << R"({"changing": {"a": {"count": {"everyS": 1e30}}}})"
                              << "changing.a.count.everyS: "
                              << "from 0.1 to 1000000 seconds";
    QTest::newRow("half a part") << R"({"changing": {"a": {"count": {"from": 0.5, "everyS": 1}}}})"
                                 << "changing.a.count.from: "
                                 << "whole number";
    QTest::newRow("from far away") << R"({"changing": {"a": {"count": {"from": 1e12, "everyS": 1}}}})"
                                   << "changing.a.count.from: "
                                   << "from -1000000000 to 1000000000";
    QTest::newRow("greatest int") << R"({"changing": {"a": {"count": {"from": 2147483647, "everyS": 1}}}})"
                                  << "changing.a.count.from: "
                                  << "from -1000000000 to 1000000000";
    QTest::newRow("too low") << R"({"changing": {"a": {"wave": {"min": -1e308, "max": 1e308, "periodS": 3}}}})"
                             << "changing.a.wave.min: "
                             << "from -1000000000 to 1000000000";
    QTest::newRow("too high") << R"({"changing": {"a": {"wave": {"min": 1, "max": 1e308, "periodS": 3}}}})"
                              << "changing.a.wave.max: "
                              << "from -1000000000 to 1000000000";
}

void mistakesOfNamesAndRules() {
    QTest::newRow("section twice") << "{\"bus\": {\"a\": 1},\n \"bus\": {\"b\": 1}}"
                                   << "Line 2, column 2: "
                                   << "\"bus\" stands";
    QTest::newRow("key twice, once in escapes")
        << "{\"bus\": {\"x\": [{\"a\": 1}, {\"a\": 1}], \"io\": 1, \"\\u0069o\": 2}}"
        << "Line 1, column 46: "
        << "\"io\" stands";
    QTest::newRow("no when") << R"({"pluginCommands": [{"when": 1, "answer": []}, {"answer": []}]})"
                             << "pluginCommands[1].when: "
                             << "Add ";
    QTest::newRow("no answer") << R"({"pluginCommands": [{"when": 1}]})"
                               << "pluginCommands[0].answer: "
                               << "Add an array";
    QTest::newRow("answer is no array") << R"({"pluginCommands": [{"when": 1, "answer": 1}]})"
                                        << "pluginCommands[0].answer: "
                                        << "Write an array";
}

} // namespace

class TestCellFile : public QObject {
    Q_OBJECT

private slots:
    void theHostAndTheAnswersAboutPathsAreThoseOfTheCell() {
        VirtualController controller;
        QString error;
        const QByteArray cell = R"({"host": {"version": "1.0"}, "pathCheck": [{"from": "a", "to": "b", "error": -5}]})";
        QVERIFY2(CellFile::loadText(cell, "cell", &controller, &error), qPrintable(error));
        QCOMPARE(controller.host().version, "1.0");
        QCOMPARE(controller.pathCheck()->between("a", "b").code, -5);
        QVERIFY2(CellFile::loadText("{}", "cell", &controller, &error), qPrintable(error));
        QCOMPARE(controller.host().version, "3.1.0");
        QVERIFY(controller.pathCheck()->between("a", "b").code != -5);
    }

    void theDefaultCellIsGood() {
        VirtualController controller;
        QString error;
        QVERIFY2(CellFile::load(CellFile::defaultPath(), &controller, &error), qPrintable(error));
        QCOMPARE(error, QString());
        QVERIFY(controller.bus()->value("io.di")->hasCmobj("part_present"));
        QVERIFY(controller.bus()->value("io.do")->hasCmobj("lamp"));
        QCOMPARE(text(controller.bus()->command("gripper.open", nullptr)), QString("{\"ok\":true}"));
        QCOMPARE(text(controller.requests()->handle("system.controller.get_params", nullptr)),
                 QString("{\"robot_template\":3}"));
        const double cold = controller.bus()->value("cell.temperature")->getDouble();
        controller.clock()->step(20000);
        QVERIFY(controller.bus()->value("cell.temperature")->getDouble() > cold);
        QCOMPARE(text(controller.bus()->value("cell.parts")), QString("4"));
    }

    void aFileOnDiskIsRead() {
        const QTemporaryDir folder;
        QFile file(folder.filePath("mine.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"bus": {"a": 1}})");
        file.close();
        VirtualController controller;
        QString error;
        QVERIFY2(CellFile::load(file.fileName(), &controller, &error), qPrintable(error));
        QCOMPARE(text(controller.bus()->value("a")), QString("1"));
    }

    void aFileThatIsNotThereIsNamed() {
        VirtualController controller;
        QString error;
        QVERIFY(!CellFile::load("none.json", &controller, &error));
        QVERIFY2(error.contains("none.json") && error.contains("cannot be read"), qPrintable(error));
    }

    void startValuesMayBeAnyJson_data() {
        QTest::addColumn<QString>("json");
        for (const char* json : {"1", "1.5", "true", "\"text\"", "null", "[]", "[1,[2]]", "{\"a\":{\"b\":[]}}",
                                 "{\"wave\":{\"min\":1}}", "{\"value\":1}"})
            QTest::newRow(json) << json;
    }

    void startValuesMayBeAnyJson() {
        QFETCH(QString, json);
        VirtualController controller;
        QVERIFY(take(controller, "{\"bus\": {\"key\": " + json + "}}"));
        QVERIFY(controller.bus()->hasValue("key"));
        QCOMPARE(text(controller.bus()->value("key")), json);
    }

    void everySectionMayBeMissing() {
        VirtualController controller;
        QVERIFY(take(controller, "{}"));
    }

    void commandsWorkWithAndWithoutAnAnswer() {
        VirtualController controller;
        QVERIFY(take(controller, R"({"commands": {"open": [1,2], "shut": null}})"));
        QCOMPARE(text(controller.bus()->command("open", content("5"))), QString("[1,2]"));
        QCOMPARE(text(controller.bus()->command("open", content("5"))), QString("[1,2]"));
        QCOMPARE(text(controller.bus()->command("shut", nullptr)), QString("null"));
    }

    void theFirstRuleThatFitsAnswersAPluginCommand_data() {
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QString>("answer");
        QTest::newRow("text") << R"(["start", 5])"
                              << R"([true,"started"])";
        QTest::newRow("a later rule of the same") << R"(["start"])"
                                                  << R"([true,"started"])";
        QTest::newRow("number") << "[4]"
                                << "[]";
        QTest::newRow("object, empty members apart") << R"([{"do":"stop","how":null}])"
                                                     << "[\"stopped\"]";
        QTest::newRow("object that says more") << R"([{"do":"stop","now":1}])"
                                               << R"([{"do":"stop","now":1}])";
        QTest::newRow("no array") << "\"start\""
                                  << R"([true,"started"])";
        QTest::newRow("no rule") << "[\"other\"]"
                                 << "[\"other\"]";
        QTest::newRow("nothing") << "[]"
                                 << "[]";
    }

    void theFirstRuleThatFitsAnswersAPluginCommand() {
        QFETCH(QString, sent);
        QFETCH(QString, answer);
        VirtualController controller;
        QVERIFY(take(controller, R"({"pluginCommands": [
            {"when": "start", "answer": [true, "started"]},
            {"when": "start", "answer": [false]},
            {"when": 4.0, "answer": []},
            {"when": {"gripper": {"open": ""}}, "answer": ["opened"]},
            {"when": {"do": "stop", "why": null}, "answer": ["stopped"]}]})"));
        QCOMPARE(pluginAnswer(controller, sent.toUtf8()), "{\"data\":" + answer + "}");
    }

    void aCellComesOnTopOfWhatIsThere() {
        VirtualController controller;
        QVERIFY(take(controller, R"({"bus": {"a": 1, "b": 1}, "changing": {"n": {"count": {"everyS": 1}}},
                                      "requests": {"r": 1}})"));
        QVERIFY(
            take(controller, R"({"bus": {"b": 2, "n": 7}, "changing": {"a": {"count": {"from": 5, "everyS": 1}}}})"));
        controller.clock()->step(1000);
        QCOMPARE(text(controller.bus()->value("a")), QString("6"));
        QCOMPARE(text(controller.bus()->value("b")), QString("2"));
        QCOMPARE(text(controller.bus()->value("n")), QString("7"));
        QVERIFY(!controller.bus()->set("n", "", content("8")));
        QVERIFY(controller.requests()->knows("r"));
    }

    void aMistakeIsNamedWithItsPlace_data() {
        QTest::addColumn<QString>("json");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("remedy");
        mistakesOfSections();
        mistakesOfCourses();
        mistakesOfNamesAndRules();
    }

    void aMistakeIsNamedWithItsPlace() {
        QFETCH(QString, json);
        QFETCH(QString, place);
        QFETCH(QString, remedy);
        VirtualController controller;
        QString error;
        QVERIFY(!CellFile::loadText(json.toUtf8(), "mine.json", &controller, &error));
        QVERIFY2(error.contains("mine.json"), qPrintable(error));
        QVERIFY2(error.contains(place), qPrintable(error));
        QVERIFY2(error.contains(remedy), qPrintable(error));
        QVERIFY2(error.endsWith('.'), qPrintable(error));
    }

    void theSameNameMayStandInSeveralObjects() {
        VirtualController controller;
        QVERIFY(take(
            controller,
            "{\"bus\": {\"a\": {\"a\": [\"a\", \"a\", \"\\\\\", \"\\\"a\\\": {\"]}, \"b\": {\"a\": {\"a\": \"a\"}}}}"));
        QCOMPARE(text(controller.bus()->get("b", "a.a")), QString("\"a\""));
    }

    void robotAndProjectAreThoseOfTheLastCellAlone() {
        VirtualController controller;
        QVERIFY(take(controller, R"({"tools": {"torch": {}}, "pers": {"n": {"type": "int", "value": 1}},
            "project": {"name": "weld", "variables": [{"name": "a", "type": "int", "value": 1}]}})"));
        QCOMPARE(text(controller.bus()->get("robot.frames", "tools")), QString("[\"flange\",\"tool0\",\"torch\"]"));
        QCOMPARE(text(controller.bus()->get("mirror.project", "cur_project")), QString("\"virtual/weld\""));
        QCOMPARE(text(controller.bus()->get("mirror.project", "var._list.#0.name")), QString("\"a\""));
        QVERIFY(controller.persistentVariables()->contains("n"));
        QVERIFY(take(controller, "{}"));
        QCOMPARE(text(controller.bus()->get("robot.frames", "tools")), QString("[\"flange\",\"tool0\"]"));
        QCOMPARE(text(controller.bus()->get("mirror.project", "cur_project")), QString("\"virtual/project\""));
        QCOMPARE(text(controller.bus()->get("mirror.project", "var._list")), QString("[]"));
        QVERIFY(!controller.persistentVariables()->contains("n"));
    }

    void aBadCellLeavesRobotAndProject() {
        VirtualController controller;
        QVERIFY(take(controller, R"({"tools": {"torch": {}}, "project": {"name": "weld"}})"));
        QString error;
        QVERIFY(!CellFile::loadText(R"({"tools": {"grip": {}}, "project": {"name": "stack"},
            "pers": {"n": {"type": "int", "value": 1}}, "refuse": {"remove": [5]}})",
                                    "mine.json", &controller, &error));
        QCOMPARE(text(controller.bus()->get("robot.frames", "tools")), QString("[\"flange\",\"tool0\",\"torch\"]"));
        QCOMPARE(text(controller.bus()->get("mirror.project", "cur_project")), QString("\"virtual/weld\""));
        QVERIFY(!controller.persistentVariables()->contains("n"));
    }

    void aBadCellChangesNothing() {
        VirtualController controller;
        QSignalSpy written(controller.bus(), &controller::BusTable::written);
        QString error;
        QVERIFY(!CellFile::loadText(R"({"bus": {"a": 1}, "changing": {"n": {"count": {"everyS": 1}}},
            "commands": {"open": 1}, "requests": {"r": 1},
            "pluginCommands": [{"when": 1, "answer": [2]}, {"when": 2}]})",
                                    "mine.json", &controller, &error));
        QCOMPARE(written.size(), 0);
        QVERIFY(!controller.bus()->hasValue("a"));
        QVERIFY(!controller.changing()->contains("n"));
        QVERIFY(!controller.bus()->hasCommand("open"));
        QVERIFY(!controller.requests()->knows("r"));
        QCOMPARE(pluginAnswer(controller, "[1]"), QString("{\"data\":[1]}"));
    }

private:
    static bool take(VirtualController& controller, const QString& json) {
        QString error;
        const bool isTaken = CellFile::loadText(json.toUtf8(), "mine.json", &controller, &error);
        if (!isTaken)
            qWarning("%s", qPrintable(error));
        return isTaken;
    }
};

QTEST_GUILESS_MAIN(TestCellFile)
#include "tst_cellfile.moc"
