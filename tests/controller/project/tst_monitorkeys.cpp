#include "../contents.h"
#include "records.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/virtualcontroller.h"

#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::Message;
using controller::Verb;
using controller::VirtualController;

class TestMonitorKeys : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_controller = std::make_unique<VirtualController>();
        controller::ProjectStart start = controller::emptyProject();
        start.variables << variableRecord("count", "int", 1) << variableRecord("speed", "double", 0.5);
        m_controller->project()->start(start);
        m_controller->persistentVariables()->list({{"shift", "QString", "early"}});
        m_delivered.clear();
        connect(m_controller.get(), &VirtualController::delivered, this,
                [this](const QString& key, const Content& value) { m_delivered << key + ' ' + text(value); });
    }

    void nothingIsRegisteredAtFirst() { QCOMPARE(text(send(Verb::Get, "monitor.pers")), "[]"); }

    void whatIsSelectedIsRegistered() {
        QVERIFY(!send(Verb::Set, "monitor.select", R"(["shift", "count"])"));
        QCOMPARE(text(send(Verb::Get, "monitor.pers")),
                 R"([{"name":"shift","type":"QString","value":"early"},{"name":"count","type":"int","value":1}])");
        QCOMPARE(text(send(Verb::Get, "monitor.select")), R"(["shift","count"])");
        QVERIFY(!send(Verb::Set, "monitor.select", R"(["speed"])"));
        QCOMPARE(text(send(Verb::Get, "monitor.pers")), R"([{"name":"speed","type":"double","value":0.5}])");
    }

    void childrenInTheOrderOfTheirNumbersMayBeSelected() {
        const Content select = controller::copied(nullptr);
        for (int i = 0; i < 12; ++i)
            select->append(nullptr, QStringLiteral("#%1").arg(i))->setValue(nullptr, i == 10 ? "count" : "speed");
        Message message;
        message.verb = Verb::Set;
        message.key = "monitor.select";
        message.content = select;
        QVERIFY(!m_controller->handle(message));
        QVERIFY(text(send(Verb::Get, "monitor.select")).endsWith(R"("speed","count","speed"])"));
    }

    void anUnknownNameIsToldAndRegisteredWhenItComes() {
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        QVERIFY(!send(Verb::Set, "monitor.select", R"(["later"])"));
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toString(), "The controller knows no persistent variable \"later\".");
        QCOMPARE(text(send(Verb::Get, "monitor.pers")), "[]");
        m_controller->project()->put(underNode("#7", variableRecord("later", "bool", true)), nullptr, false);
        QCOMPARE(text(send(Verb::Get, "monitor.pers")), R"([{"name":"later","type":"bool","value":true}])");
    }

    void aChangeOfARegisteredVariableIsDelivered() {
        send(Verb::Set, "monitor.select", R"(["count"])");
        send(Verb::Watch, "monitor.pers");
        send(Verb::Command, "monitor.pers.modify", R"({"count": 5})");
        QCOMPARE(m_delivered, QStringList{R"(monitor.pers [{"name":"count","type":"int","value":5}])"});
    }

    void valuesAreReadAsTextsInTheOrderAskedFor() {
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        const Content reply = send(Verb::Execute, "monitor.pers.read", R"(["speed", "x", "shift", "count"])");
        QCOMPARE(text(reply), R"({"data":["0.5","","early","1"]})");
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(text(send(Verb::Execute, "monitor.pers.read", "[]")), R"({"data":[]})");
    }

    void valuesAreModified() {
        QVERIFY(!send(Verb::Command, "monitor.pers.modify", R"({"count": 5, "shift": "late"})"));
        QCOMPARE(text(send(Verb::Execute, "monitor.pers.read", R"(["count", "shift"])")), R"({"data":["5","late"]})");
        const Content project = send(Verb::Get, "mirror.project");
        QCOMPARE(project->r("var._list.#0.value.[0][0][0]")->getInt(), 5);
    }

    void nothingIsModifiedWhenOneIsRefused() {
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        QVERIFY(!refusalOf(send(Verb::Command, "monitor.pers.modify", R"({"count": 5, "speed": "fast"})")).isEmpty());
        QCOMPARE(text(send(Verb::Execute, "monitor.pers.read", R"(["count"])")), R"({"data":["1"]})");
        QCOMPARE(noticed.size(), 1);
        QVERIFY(!send(Verb::Command, "monitor.pers.modify"));
    }

    void theListCannotBeSet_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("subKey");
        QTest::newRow("list") << "monitor.pers"
                              << "";
        QTest::newRow("part of the selection") << "monitor.select"
                                               << "#0";
    }

    void theListCannotBeSet() {
        QFETCH(QString, key);
        QFETCH(QString, subKey);
        QVERIFY(!refusalOf(send(Verb::Set, key, R"(["count"])", subKey)).isEmpty());
        QCOMPARE(text(send(Verb::Get, "monitor.pers")), "[]");
    }

private:
    Content send(Verb verb, const QString& key, const char* json = nullptr, const QString& subKey = QString()) {
        Message message;
        message.verb = verb;
        message.key = key;
        message.subKey = subKey;
        message.content = json ? content(json) : nullptr;
        return m_controller->handle(message);
    }

    std::unique_ptr<VirtualController> m_controller;
    QStringList m_delivered;
};

QTEST_GUILESS_MAIN(TestMonitorKeys)
#include "tst_monitorkeys.moc"
