#include "../contents.h"

#include "controller/robot/position.h"
#include "controller/robot/robot.h"
#include "controller/virtualcontroller.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::Message;
using controller::Posture;
using controller::RobotModel;
using controller::Verb;
using controller::VirtualController;

namespace {

RobotModel model() {
    RobotModel model = controller::standardModel();
    model.externals = {{{"E1", 0, 6000, 1500, 3000, true}, {}, 1}};
    model.tools.insert("gripper", {0, 0, 180, 0, 0, 0});
    model.wobjs.insert("table", {{800, -300, 400, 0, 0, 0}, controller::Mount::world});
    return model;
}

Message message(Verb verb, const QString& key, const char* json = nullptr, const QString& subKey = QString()) {
    Message made;
    made.verb = verb;
    made.key = key;
    made.subKey = subKey;
    made.content = json ? content(json) : nullptr;
    return made;
}

} // namespace

class TestRobotKeys : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_controller = std::make_unique<VirtualController>();
        m_controller->robot()->setModel(model());
        m_controller->clock()->step(1000);
        m_delivered.clear();
        connect(m_controller.get(), &VirtualController::delivered, this,
                [this](const QString& key, const Content& value) { m_delivered << key + ' ' + text(value); });
    }

    void thePositionIsThatOfTheFrame() {
        const QString json = text(send(Verb::Get, "robot.position"));
        QCOMPARE(json, "{\"cartesian\":{\"conf\":{\"cf1\":0,\"cf2\":0,\"cf3\":0,\"cf4\":0,\"cf5\":1,\"cf6\":0,"
                       "\"cf7\":0,\"cfx\":0},\"pose\":{\"elb\":0,\"frame\":{\"ori\":{\"euler\":{\"a\":180,\"b\":0,"
                       "\"c\":180},\"quaternion\":{\"q1\":0,\"q2\":0,\"q3\":1,\"q4\":0}},\"pos\":{\"x\":970,\"y\":0,"
                       "\"z\":1155}}}},\"joint\":{\"extern_pos\":[3000,0,0,0,0,0],"
                       "\"inner_pos\":[0,0,0,0,90,0,0]}}");
        QVERIFY(!send(Verb::Set, "robot.frame", R"({"tool": "gripper", "wobj": "table"})"));
        const Content position = send(Verb::Get, "robot.position");
        QCOMPARE(text(position, "cartesian.pose.frame.pos"), "{\"x\":170,\"y\":300,\"z\":575}");
        QCOMPARE(text(send(Verb::Get, "robot.position", nullptr, "joint.inner_pos.#4")), "90");
    }

    void itsListsHaveSevenJointsAndSixExternalAxesInOrder() {
        const Content position = send(Verb::Get, "robot.position");
        QCOMPARE(childNames(brisk::standin::contentOf(position->r("joint.inner_pos"))), "#0 #1 #2 #3 #4 #5 #6");
        QCOMPARE(childNames(brisk::standin::contentOf(position->r("joint.extern_pos"))), "#0 #1 #2 #3 #4 #5");
    }

    void aFrameThatIsNotThereIsRefused_data() {
        QTest::addColumn<QString>("subKey");
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("reason");
        QTest::newRow("tool") << "" << QByteArray(R"({"tool": "x", "wobj": "table"})")
                              << "The controller knows no tool \"x\"";
        QTest::newRow("work object") << "" << QByteArray(R"({"tool": "gripper", "wobj": "y"})")
                                     << "The controller knows no work object \"y\"";
        QTest::newRow("half a frame") << "" << QByteArray(R"({"tool": "gripper"})")
                                      << "The controller knows no work object \"\"";
        QTest::newRow("no frame") << "" << QByteArray("5") << "The controller knows no tool \"\"";
        QTest::newRow("part") << "tool" << QByteArray("\"x\"") << "The controller knows no tool \"x\"";
        QTest::newRow("no such part") << "base" << QByteArray("\"x\"") << "no \"base\"";
    }

    void aFrameThatIsNotThereIsRefused() {
        QFETCH(QString, subKey);
        QFETCH(QByteArray, json);
        QFETCH(QString, reason);
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        const QString refusal = refusalOf(send(Verb::Set, "robot.frame", json.constData(), subKey));
        QVERIFY2(refusal.contains(reason), qPrintable(refusal));
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toString(), refusal);
        QCOMPARE(text(send(Verb::Get, "robot.frame")), "{\"tool\":\"flange\",\"wobj\":\"world\"}");
    }

    void partOfTheFrameMayBeSet() {
        QVERIFY(!send(Verb::Set, "robot.frame", "\"table\"", "wobj"));
        QCOMPARE(text(send(Verb::Get, "robot.frame")), "{\"tool\":\"flange\",\"wobj\":\"table\"}");
        QCOMPARE(text(send(Verb::Get, "robot.frame", nullptr, "wobj")), "\"table\"");
    }

    void aNewFrameDeliversItselfAndThePosition() {
        send(Verb::Watch, "robot.position");
        send(Verb::Watch, "robot.frame");
        send(Verb::Set, "robot.frame", "\"table\"", "wobj");
        QCOMPARE(m_delivered.size(), 2);
        QVERIFY(m_delivered[0].startsWith("robot.position") && m_delivered[0].contains("\"x\":170"));
        QCOMPARE(m_delivered[1], "robot.frame {\"tool\":\"flange\",\"wobj\":\"table\"}");
        m_controller->clock()->step(1000);
        QCOMPARE(m_delivered.size(), 2);
    }

    void axesAndFramesAreListed() {
        const QString axes = text(send(Verb::Get, "robot.axes"));
        QVERIFY2(axes.startsWith("[{\"external\":false,\"max\":170,\"min\":-170,\"name\":\"A1\",\"unit\":\"deg\"},"),
                 qPrintable(axes));
        QVERIFY2(axes.endsWith("{\"external\":true,\"max\":6000,\"min\":0,\"name\":\"E1\",\"unit\":\"mm\"}]"),
                 qPrintable(axes));
        QCOMPARE(send(Verb::Get, "robot.axes")->cmobjCount(), 7);
        QCOMPARE(text(send(Verb::Get, "robot.frames")),
                 "{\"tools\":[\"flange\",\"gripper\",\"tool0\"],\"wobjs\":[\"table\",\"wobj0\",\"world\"]}");
    }

    void whatTheRobotTellsCannotBeSet_data() {
        QTest::addColumn<QString>("key");
        for (const char* key : {"robot.position", "robot.axes", "robot.frames", "robot.state", "robot.arm"})
            QTest::newRow(key) << key;
    }

    void whatTheRobotTellsCannotBeSet() {
        QFETCH(QString, key);
        const QString before = text(send(Verb::Get, key));
        QCOMPARE(refusalOf(send(Verb::Set, key, "1")), "The bus key \"" + key + "\" cannot be set.");
        QCOMPARE(text(send(Verb::Get, key)), before);
    }

    void joggingMovesAndTellsSo() {
        send(Verb::Watch, "robot.state");
        QCOMPARE(text(send(Verb::Get, "robot.state")),
                 "{\"motion\":\"\",\"moving\":false,\"state\":\"idle\",\"stopped_by\":\"\"}");
        QVERIFY(!send(Verb::Command, "robot.jog", R"({"space": "joint", "axis": 0, "percent": 50})"));
        m_controller->clock()->step(400);
        QCOMPARE(m_controller->robot()->posture().joints[0], 6.0);
        m_controller->clock()->step(400);
        QCOMPARE(
            m_delivered,
            (QStringList{
                "robot.state {\"motion\":\"jog\",\"moving\":true,\"state\":\"moving\",\"stopped_by\":\"\"}",
                "robot.state {\"motion\":\"\",\"moving\":false,\"state\":\"idle\",\"stopped_by\":\"not renewed\"}"}));
    }

    void joggingStopsWhenTold() {
        send(Verb::Command, "robot.jog", R"({"space": "cart", "axis": 2, "percent": 100})");
        m_controller->clock()->step(100);
        QVERIFY(!send(Verb::Command, "robot.jog.stop"));
        m_controller->clock()->step(300);
        QCOMPARE(text(send(Verb::Get, "robot.position", nullptr, "cartesian.pose.frame.pos.z")), "1180");
        QCOMPARE(text(send(Verb::Get, "robot.state")),
                 "{\"motion\":\"\",\"moving\":false,\"state\":\"idle\",\"stopped_by\":\"\"}");
    }

    void whatCannotBeJoggedIsRefused_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("nothing") << QByteArray("null");
        QTest::newRow("no space") << QByteArray(R"({"axis": 0, "percent": 50})");
        QTest::newRow("odd space") << QByteArray(R"({"space": "tool", "axis": 0, "percent": 50})");
        QTest::newRow("no axis") << QByteArray(R"({"space": "joint", "percent": 50})");
        QTest::newRow("half an axis") << QByteArray(R"({"space": "joint", "axis": 0.5, "percent": 50})");
        QTest::newRow("an axis too many") << QByteArray(R"({"space": "joint", "axis": 7, "percent": 50})");
        QTest::newRow("no speed") << QByteArray(R"({"space": "joint", "axis": 0})");
        QTest::newRow("text") << QByteArray(R"({"space": "joint", "axis": 0, "percent": "x"})");
        QTest::newRow("too fast") << QByteArray(R"({"space": "joint", "axis": 0, "percent": 101})");
    }

    void whatCannotBeJoggedIsRefused() {
        QFETCH(QByteArray, json);
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        QVERIFY(!refusalOf(send(Verb::Command, "robot.jog", json.constData())).isEmpty());
        QCOMPARE(noticed.size(), 1);
        QVERIFY(!m_controller->robot()->isMoving());
    }

    void thePositionIsDeliveredAtMostTwentyTimesASecond() {
        send(Verb::Watch, "robot.position");
        for (int i = 0; i < 5; ++i) {
            send(Verb::Command, "robot.jog", R"({"space": "joint", "axis": 0, "percent": 100})");
            m_controller->clock()->step(200);
        }
        QVERIFY2(m_delivered.size() <= 20 && m_delivered.size() > 10, qPrintable(QString::number(m_delivered.size())));
    }

    void theLastPositionIsDeliveredToo() {
        send(Verb::Watch, "robot.position");
        send(Verb::Command, "robot.jog", R"({"space": "joint", "axis": 0, "percent": 100})");
        m_controller->clock()->step(120);
        send(Verb::Command, "robot.jog.stop");
        m_controller->clock()->step(1000);
        QVERIFY2(m_delivered.last().contains("\"inner_pos\":[3.6,0,0,0,90,0,0]"), qPrintable(m_delivered.last()));
        const int count = m_delivered.size();
        m_controller->clock()->step(1000);
        QCOMPARE(m_delivered.size(), count);
    }

    void theEndOfCartesianJoggingIsRemarked() {
        QSignalSpy remarked(m_controller.get(), &VirtualController::remarked);
        Posture posture;
        posture.joints = {0, -20, 0, 0, 110, 0};
        m_controller->robot()->setPosture(posture);
        for (int i = 0; i < 10; ++i) {
            send(Verb::Command, "robot.jog", R"({"space": "cart", "axis": 4, "percent": -100})");
            m_controller->clock()->step(200);
        }
        QCOMPARE(remarked.size(), 1);
        QCOMPARE(text(send(Verb::Get, "robot.state")),
                 "{\"motion\":\"\",\"moving\":false,\"state\":\"idle\",\"stopped_by\":\"limit A5\"}");
    }

    void theRequestAnswersForTheToolAndWorkObjectAskedFor() {
        const Content asked = send(Verb::Request, request(), R"({"tool": "gripper", "wobj": "table"})");
        QCOMPARE(text(asked, "cartesian.pose.frame.pos"), "{\"x\":170,\"y\":300,\"z\":575}");
        QCOMPARE(text(send(Verb::Get, "robot.frame")), "{\"tool\":\"flange\",\"wobj\":\"world\"}");
        const Content own = send(Verb::Request, request(), R"({"tool": "flange", "wobj": "world"})");
        QCOMPARE(text(own), text(send(Verb::Get, "robot.position")));
    }

    void theRequestRefusesWhatIsNotThere_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("reason");
        QTest::newRow("tool") << QByteArray(R"({"tool": "x", "wobj": "table"})") << "no tool \"x\"";
        QTest::newRow("work object") << QByteArray(R"({"tool": "gripper", "wobj": "y"})") << "no work object \"y\"";
        QTest::newRow("nothing") << QByteArray("null") << "no tool \"\"";
        QTest::newRow("numbers") << QByteArray(R"({"tool": 1, "wobj": 2})") << "no tool \"\"";
    }

    void theRequestRefusesWhatIsNotThere() {
        QFETCH(QByteArray, json);
        QFETCH(QString, reason);
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        const QString refusal = refusalOf(send(Verb::Request, request(), json.constData()));
        QVERIFY2(refusal.contains(reason), qPrintable(refusal));
        QCOMPARE(noticed.size(), 1);
    }

private:
    static QString request() { return "project.vex_program.get_rob_pos"; }

    static QString text(const Content& content) { return ::text(content); }
    static QString text(const Content& content, const char* path) {
        return ::text(brisk::standin::contentOf(content->r(path)));
    }

    Content send(Verb verb, const QString& key, const char* json = nullptr, const QString& subKey = QString()) {
        return m_controller->handle(message(verb, key, json, subKey));
    }

    std::unique_ptr<VirtualController> m_controller;
    QStringList m_delivered;
};

QTEST_GUILESS_MAIN(TestRobotKeys)
#include "tst_robotkeys.moc"
