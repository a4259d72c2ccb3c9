#include "../contents.h"

#include "controller/cellfile.h"
#include "controller/io/registers.h"
#include "controller/io/signaltable.h"
#include "controller/robot/robot.h"
#include "controller/virtualcontroller.h"

#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::Message;
using controller::Verb;
using controller::VirtualController;

namespace {

const char* const cell = R"({
    "signals": [
        {"name": "part", "type": "DI", "course": {"pulse": {"onS": 1, "periodS": 2}}},
        {"name": "lamp", "type": "DO"},
        {"name": "speed", "type": "AO", "value": 2}
    ],
    "registers": [{"name": "order", "value": ["A-17", ""]}, {"name": "none", "value": []}],
    "tools": {"gripper": {"z": 180}, "camera": {"x": 90, "scope": "global"}, "pin": {"scope": "system"}},
    "wobjs": {"table": {"x": 800, "a": 90}},
    "speeds": [{"name": "slow", "value": {"mm_per_s": 50}, "description": "for teaching"}],
    "zones": [{"name": "exact", "value": 0}]
})";

} // namespace

class TestIoKeys : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_controller = std::make_unique<VirtualController>();
        QString error;
        QVERIFY2(controller::CellFile::loadText(cell, "mine.json", m_controller.get(), &error), qPrintable(error));
        m_delivered.clear();
        m_notices.clear();
        connect(m_controller.get(), &VirtualController::delivered, this,
                [this](const QString& key, const Content& value) { m_delivered << key + ' ' + text(value); });
        connect(m_controller.get(), &VirtualController::noticed, this,
                [this](const QString& text) { m_notices << text; });
    }
    void cleanup() { m_controller.reset(); }

    void theSignalsAreReadWithTheirTypes() {
        QCOMPARE(text(send(Verb::Get, "io.signals")),
                 R"({"signal_detail":{"lamp":{"forced":false,"signal_type":2},"part":{"forced":false,"signal_type":1},)"
                 R"("speed":{"forced":false,"max":10,"min":0,"signal_type":6}},)"
                 R"("signal_value":{"lamp":false,"part":false,"speed":2}})");
        QCOMPARE(childNames(brisk::standin::contentOf(send(Verb::Get, "io.signals")->c("signal_value"))),
                 "part lamp speed");
    }

    void theSignalsAreDeliveredWhenOneChanges() {
        send(Verb::Watch, "io.signals");
        QVERIFY(m_delivered.isEmpty());
        m_controller->clock()->step(1500);
        QCOMPARE(m_delivered.size(), 1);
        QVERIFY(m_delivered.last().contains(R"("part":true)"));
        send(Verb::Command, "io.set", R"({"name": "lamp", "value": true})");
        QCOMPARE(m_delivered.size(), 2);
        QVERIFY(m_delivered.last().contains(R"("lamp":true)"));
    }

    void anInputIsForcedAndReleased() {
        QVERIFY(!send(Verb::Execute, "io.force", R"({"name": "part", "value": true})"));
        QCOMPARE(m_controller->ioSignals()->value("part"), QVariant(true));
        QVERIFY(!send(Verb::Execute, "io.release", R"({"name": "part"})"));
        QCOMPARE(m_controller->ioSignals()->value("part"), QVariant(false));
    }

    void whatIsRefusedSaysWhy_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QString>("says");
        const auto row = [](const char* title, const char* key, const char* sent, const char* says) {
            QTest::newRow(title) << key << QByteArray(sent) << says;
        };
        row("set an input", "io.set", R"({"name": "part", "value": true})",
            "The signal \"part\" is an input: force it by \"io.force\".");
        row("set without a value", "io.set", R"({"name": "lamp"})", "The signal \"lamp\" takes true or false.");
        row("set nothing", "io.set", "null", "The controller has no signal \"\".");
        row("force an output", "io.force", R"({"name": "lamp", "value": true})",
            "The signal \"lamp\" is an output: set it by \"io.set\".");
        row("release an unknown one", "io.release", R"({"name": "x"})", "The controller has no signal \"x\".");
        row("unknown register", "register.set", R"({"name": "x", "value": []})",
            "The controller has no register \"x\".");
        row("register of a number", "register.set", R"({"name": "order", "value": [1]})",
            "The register \"order\" takes a list of texts.");
        row("register without a value", "register.set", R"({"name": "order"})",
            "The register \"order\" takes a list of texts.");
    }

    void whatIsRefusedSaysWhy() {
        QFETCH(QString, key);
        QFETCH(QByteArray, sent);
        QFETCH(QString, says);
        QCOMPARE(refusalOf(send(Verb::Execute, key, sent)), says);
        QCOMPARE(m_notices, QStringList{says});
    }

    void noneOfTheKeysCanBeSet_data() {
        QTest::addColumn<QString>("key");
        for (const char* key : {"io.signals", "register.list", "motion.data", "mirror.state"})
            QTest::newRow(key) << key;
    }

    void noneOfTheKeysCanBeSet() {
        QFETCH(QString, key);
        QCOMPARE(refusalOf(send(Verb::Set, key, "1")), QString("The bus key \"%1\" cannot be set.").arg(key));
    }

    void theRegistersAreAList() {
        QCOMPARE(text(send(Verb::Get, "register.list")),
                 R"([{"name":"order","value":["A-17",""]},{"name":"none","value":[]}])");
    }

    void aRegisterIsSet() {
        send(Verb::Watch, "register.list");
        QVERIFY(!send(Verb::Execute, "register.set", R"({"name": "none", "value": ["x", "y"]})"));
        QVERIFY(!send(Verb::Execute, "register.set", R"({"name": "order", "value": []})"));
        QCOMPARE(m_delivered.size(), 2);
        QCOMPARE(m_delivered.last(),
                 R"(register.list [{"name":"order","value":[]},{"name":"none","value":["x","y"]}])");
        QVERIFY(m_notices.isEmpty());
    }

    void theCellHasKeysOfItsOwnBesideTheseOfSignals() {
        QString error;
        QVERIFY(controller::CellFile::loadText(R"({"bus": {"io.do": {"lamp": false}}})", "mine.json",
                                               m_controller.get(), &error));
        QCOMPARE(text(send(Verb::Get, "io.do")), R"({"lamp":false})");
        QCOMPARE(text(send(Verb::Get, "io.signals", "null", "signal_value")), "null");
    }

    void toolsAndWorkObjectsHaveTheListOfTheirScope() {
        QCOMPARE(names("tools.system"), "flange pin tool0");
        QCOMPARE(names("tools.project"), "gripper");
        QCOMPARE(names("tools.global"), "camera");
        QCOMPARE(names("wobjs.system"), "wobj0 world");
        QCOMPARE(names("wobjs.project"), "table");
        QCOMPARE(names("wobjs.global"), "");
        QCOMPARE(text(send(Verb::Get, "motion.data", "null", "wobjs.project.#0.frame")),
                 R"({"a":90,"b":0,"c":0,"x":800,"y":0,"z":0})");
    }

    void speedsAndZonesAreVariablesOfTheSystem() {
        QCOMPARE(
            text(send(Verb::Get, "motion.data", "null", "variables")),
            R"([{"description":"for teaching","name":"slow","type":"speed","value":{"[0][0][0]":{"mm_per_s":50}}},)"
            R"({"description":"","name":"exact","type":"zone","value":{"[0][0][0]":0}}])");
    }

    void anotherCellIsDelivered() {
        send(Verb::Watch, "motion.data");
        send(Verb::Watch, "register.list");
        send(Verb::Watch, "io.signals");
        QString error;
        QVERIFY(controller::CellFile::loadText(R"({"tools": {"torch": {}}})", "mine.json", m_controller.get(), &error));
        QCOMPARE(names("tools.project"), "torch");
        QCOMPARE(names("tools.global"), "");
        QCOMPARE(names("tools.system"), "flange tool0");
        for (const char* key : {"motion.data", "register.list", "io.signals"})
            QVERIFY2(!m_delivered.filter(key).isEmpty(), key);
    }

    void oneQuestionBringsTheWholeState() {
        const Content state = send(Verb::Get, "mirror.state");
        for (const char* key : {"robot.state", "robot.position", "io.signals", "register.list", "motion.data"})
            QCOMPARE(text(brisk::standin::contentOf(state->c(key))), text(send(Verb::Get, key)));
        QVERIFY(state->c("register.list")->isList());
    }

    void theParametersAreKnownWithoutACell() {
        VirtualController controller;
        QVERIFY(controller.requests()->knows("system.controller.get_params"));
        QVERIFY(controller.requests()->handle("system.controller.get_params", nullptr)->isEmpty());
    }

private:
    Content send(Verb verb, const QString& key, const QByteArray& sent = "null", const QString& subKey = QString()) {
        return m_controller->handle({1, verb, key, subKey, content(sent.constData()), true});
    }
    QString names(const QString& list) {
        QStringList names;
        const Content found = send(Verb::Get, "motion.data", "null", list);
        for (brisk::ModuleObject* record : found->cmobjs())
            names << record->c("name")->getString();
        return names.join(' ');
    }

    std::unique_ptr<VirtualController> m_controller;
    QStringList m_delivered;
    QStringList m_notices;
};

QTEST_GUILESS_MAIN(TestIoKeys)
#include "tst_iokeys.moc"
