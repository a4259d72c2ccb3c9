#include "messages.h"

#include "controller/robot/movecommand.h"
#include "controller/robot/robot.h"

#include <QTest>

using controller::HostInfo;
using controller::Robot;

namespace {

const QString errorKey = QStringLiteral("move.last_error_with_setting");

/// From where the tool of the standard robot is at its start, `y` aside.
QByteArray moveTo(double yM, double speed = 0.25) {
    return R"({"point": {"rot": [0.18, 0, 0.18], "trans": [0.97, )" + QByteArray::number(yM) +
           R"(, 1.155]}, "traj": {"speed": )" + QByteArray::number(speed) + "}}";
}

double yOf(Messages* bus) {
    return bus->get("robot.position", "cartesian.pose.frame.pos.y")->getDouble();
}

void setVersion(Messages* bus, const QString& version) {
    HostInfo host;
    host.version = version;
    bus->controller.setHost(host);
}

} // namespace

class TestMoveKeys : public QObject {
    Q_OBJECT

private slots:
    void aMoveIsSentAndConfirmed_data() {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("motion");
        QTest::newRow("3.1 joint") << "3.1.0"
                                   << "move.move_to.jc"
                                   << "joint move";
        QTest::newRow("3.1 linear") << "3.1.0"
                                    << "move.move_to.l"
                                    << "linear move";
        QTest::newRow("3.0 linear") << "3.0"
                                    << "move.move_to.l"
                                    << "linear move";
        QTest::newRow("2.3 joint") << "2.3.17"
                                   << "move.move_to.jc"
                                   << "joint move";
        QTest::newRow("2.2 joint") << "2.2.9"
                                   << "move.j"
                                   << "joint move";
        QTest::newRow("3.2 linear") << "3.2"
                                    << "move.l"
                                    << "linear move";
        QTest::newRow("1.0 joint") << "1.0"
                                   << "move.j"
                                   << "joint move";
        QTest::newRow("none") << ""
                              << "move.l"
                              << "linear move";
    }

    void aMoveIsSentAndConfirmed() {
        QFETCH(QString, version);
        QFETCH(QString, command);
        QFETCH(QString, motion);
        Messages bus;
        setVersion(&bus, version);
        QVERIFY(!bus.command("move.reset"));
        QVERIFY(!bus.command(command, moveTo(0.2)));
        bus.controller.clock()->step(200);
        QCOMPARE(text(bus.get("robot.state", "moving")), "false");
        QVERIFY(!bus.command("move.opr.enough"));
        QCOMPARE(bus.get("robot.state", "motion")->getString(), motion);
        QCOMPARE(bus.get("robot.state", "state")->getString(), "moving");
        bus.controller.clock()->step(200);
        QVERIFY(yOf(&bus) > 1 && yOf(&bus) < 199);
        bus.controller.clock()->step(2000);
        QVERIFY(std::abs(yOf(&bus) - 200) < 1e-6);
        QCOMPARE(text(bus.get("robot.state")),
                 "{\"motion\":\"\",\"moving\":false,\"state\":\"idle\",\"stopped_by\":\"arrived\"}");
        QCOMPARE(bus.noticed.size() + bus.remarked.size(), 0);
    }

    void namesOfAnotherVersionAreRefusedWithTheRightOnes_data() {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("right");
        QTest::newRow("joint, long") << "2.2"
                                     << "move.move_to.jc"
                                     << "move.j";
        QTest::newRow("linear, long") << "2.2"
                                      << "move.move_to.l"
                                      << "move.l";
        QTest::newRow("joint, short") << "3.1.0"
                                      << "move.j"
                                      << "move.move_to.jc";
        QTest::newRow("linear, short") << "3.1.0"
                                       << "move.l"
                                       << "move.move_to.l";
    }

    void namesOfAnotherVersionAreRefusedWithTheRightOnes() {
        QFETCH(QString, version);
        QFETCH(QString, command);
        QFETCH(QString, right);
        Messages bus;
        setVersion(&bus, version);
        bus.watch(errorKey);
        QCOMPARE(refusalOf(bus.command(command, moveTo(0.2))),
                 "The controller knows no bus command \"" + command + "\": with version \"" + version +
                     "\" of the host it is \"" + right + "\". The version stands in the cell file, under \"host\".");
        QCOMPARE(bus.noticed.size(), 1);
        QCOMPARE(bus.delivered.size(), 0);
        QVERIFY(!refusalOf(bus.command("move.opr.enough")).isEmpty());
        QVERIFY(!bus.controller.robot()->isMoving());
    }

    void anotherVersionTakesTheNamesBefore() {
        Messages bus;
        setVersion(&bus, "1.0");
        setVersion(&bus, "3.0");
        QVERIFY(!refusalOf(bus.command("move.j", moveTo(0.2))).isEmpty());
        QVERIFY(!bus.command("move.move_to.jc", moveTo(0.2)));
    }

    void withoutATargetNothingMovesAndTheErrorIsDelivered_data() {
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QString>("delivered");
        QTest::newRow("no target")
            << QByteArray(R"({"traj": {"speed": 0.25}})")
            << "{\"code\":-101,\"text\":\"The move has no target: \\\"point.trans\\\" is missing.\"}";
        QTest::newRow("no orientation")
            << QByteArray(R"({"point": {"trans": [0.97, 0.97, 1.155]}, "traj": {"speed": 0.25}})")
            << "{\"code\":-102,\"text\":\"The target of the move has no orientation: \\\"point.rot\\\" is "
               "missing.\"}";
        QTest::newRow("out of reach") << moveTo(5)
                                      << "{\"code\":-111,\"text\":\"The arm does not reach the target of the move.\"}";
    }

    void withoutATargetNothingMovesAndTheErrorIsDelivered() {
        QFETCH(QByteArray, sent);
        QFETCH(QString, delivered);
        Messages bus;
        bus.watch(errorKey);
        const QString refusal = refusalOf(bus.command("move.move_to.l", sent));
        QVERIFY(!refusal.isEmpty());
        QCOMPARE(bus.delivered, QStringList{errorKey + ' ' + delivered});
        QCOMPARE(text(bus.get(errorKey)), delivered);
        QCOMPARE(bus.remarked.size(), 1);
        QCOMPARE(bus.remarked.first().first().toString(), refusal);
        QCOMPARE(bus.noticed.size(), 0);
        // The error has been told; that there is nothing to start is no news.
        QVERIFY(!bus.command("move.opr.enough"));
        QCOMPARE(bus.get("robot.state", "state")->getString(), "error");
        bus.controller.clock()->step(1000);
        QCOMPARE(yOf(&bus), 0.0);
    }

    void aResetClearsTheErrorWithoutADelivery() {
        Messages bus;
        bus.command("move.move_to.l", moveTo(5));
        bus.watch(errorKey);
        bus.watch("robot.state");
        QVERIFY(!bus.command("move.reset"));
        QCOMPARE(text(bus.get(errorKey)), "{\"code\":0,\"text\":\"\"}");
        QCOMPARE(bus.delivered, QStringList{"robot.state {\"motion\":\"\",\"moving\":false,\"state\":\"idle\","
                                            "\"stopped_by\":\"\"}"});
    }

    void aMoveThatEndsEarlyDeliversItsError() {
        Messages bus;
        controller::Posture nearTheLimit;
        nearTheLimit.joints = {165, 0, 0, 0, 90, 0};
        bus.controller.robot()->setPosture(nearTheLimit);
        bus.watch(errorKey);
        const double x = bus.get("robot.position", "cartesian.pose.frame.pos.x")->getDouble() / 1000;
        const double y = yOf(&bus) / 1000 - 0.8;
        const double a = bus.get("robot.position", "cartesian.pose.frame.ori.euler.a")->getDouble() / 1000;
        QVERIFY(!bus.command("move.move_to.l", R"({"point": {"rot": [)" + QByteArray::number(a, 'g', 12) +
                                                   R"(, 0, 0.18], "trans": [)" + QByteArray::number(x, 'g', 12) + "," +
                                                   QByteArray::number(y, 'g', 12) +
                                                   R"(, 1.155]}, "traj": {"speed": 0.4}})"));
        bus.watch("robot.state");
        QVERIFY(!bus.command("move.opr.enough"));
        bus.controller.clock()->step(20000);
        const QStringList states = bus.delivered.filter("robot.state");
        QVERIFY(states.value(0).contains("\"state\":\"moving\""));
        QVERIFY(states.value(1).contains("\"state\":\"stopping\""));
        QVERIFY(states.last().contains("\"state\":\"error\""));
        QCOMPARE(bus.delivered.filter(errorKey),
                 QStringList{errorKey + " {\"code\":-112,\"text\":\"The move cannot go on: A1 is at its "
                                        "limit.\"}"});
        QCOMPARE(text(bus.get("robot.state")),
                 "{\"motion\":\"\",\"moving\":false,\"state\":\"error\",\"stopped_by\":\"limit A1\"}");
    }

    void stoppingSlowsDown_data() {
        QTest::addColumn<QByteArray>("sent");
        QTest::newRow("with a node") << QByteArray(R"({"task_space": 1})");
        QTest::newRow("with nothing") << QByteArray();
    }

    void stoppingSlowsDown() {
        QFETCH(QByteArray, sent);
        Messages bus;
        bus.command("move.move_to.l", moveTo(0.3, 0.5));
        bus.command("move.opr.enough");
        bus.controller.clock()->step(300);
        const double y = yOf(&bus);
        QVERIFY(!bus.command("move.stop", sent));
        QCOMPARE(bus.get("robot.state", "state")->getString(), "stopping");
        bus.controller.clock()->step(1000);
        QVERIFY(yOf(&bus) > y + 20 && yOf(&bus) < 250);
        QCOMPARE(text(bus.get("robot.state")),
                 "{\"motion\":\"\",\"moving\":false,\"state\":\"idle\",\"stopped_by\":\"\"}");
        QCOMPARE(text(bus.get(errorKey)), "{\"code\":0,\"text\":\"\"}");
    }

    void withNothingToStartTheStartIsRefused() {
        Messages bus;
        QCOMPARE(refusalOf(bus.command("move.opr.enough")),
                 "There is no move to start with \"move.opr.enough\": send one before.");
        QVERIFY(!bus.command("move.stop"));
        QVERIFY(!bus.command("move.reset"));
    }

    void joggingDuringAMoveIsRefused() {
        Messages bus;
        bus.command("move.move_to.l", moveTo(0.3));
        bus.command("move.opr.enough");
        QCOMPARE(refusalOf(bus.command("robot.jog", R"({"space": "joint", "axis": 0, "percent": 50})")),
                 "The robot cannot be jogged while it moves to a target.");
        QVERIFY(!bus.command("robot.jog.stop"));
        bus.controller.clock()->step(5000);
        QVERIFY(std::abs(yOf(&bus) - 300) < 1e-6);
    }

    void theErrorCannotBeSet() {
        Messages bus;
        QCOMPARE(refusalOf(bus.set(errorKey, "1")), "The bus key \"" + errorKey + "\" cannot be set.");
    }

    void theHostSaysWhatItIs() {
        Messages bus;
        QCOMPARE(text(bus.get("host.info")),
                 "{\"id\":\"virtual\",\"level\":1,\"type\":\"standard\",\"version\":\"3.1.0\"}");
        bus.watch("host.info");
        setVersion(&bus, "2.3.5");
        QCOMPARE(bus.delivered, QStringList{"host.info {\"id\":\"virtual\",\"level\":1,\"type\":\"standard\","
                                            "\"version\":\"2.3.5\"}"});
        QVERIFY(!refusalOf(bus.set("host.info", "1")).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMoveKeys)
#include "tst_movekeys.moc"
