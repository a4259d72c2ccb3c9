#include "messages.h"

#include "controller/robot/robot.h"

#include <QTest>

using controller::Robot;

class TestSwitchKeys : public QObject {
    Q_OBJECT

private slots:
    void drivesAreOnAndModeIsManualAtTheStart() {
        Messages bus;
        QCOMPARE(text(bus.get("robot.drives")), "true");
        QCOMPARE(text(bus.get("robot.mode")), "\"manual\"");
    }

    void theySwitchTheRobot() {
        Messages bus;
        const Robot& robot = *bus.controller.robot();
        QVERIFY(!bus.set("robot.drives", "false"));
        QVERIFY(!robot.hasDrives());
        QCOMPARE(text(bus.get("robot.drives")), "false");
        QVERIFY(!bus.set("robot.drives", "true"));
        QVERIFY(robot.hasDrives());
        QVERIFY(!bus.set("robot.mode", "\"auto\""));
        QCOMPARE(robot.mode(), Robot::Mode::Automatic);
        QCOMPARE(text(bus.get("robot.mode")), "\"auto\"");
        QVERIFY(!bus.set("robot.mode", "\"manual\""));
        QCOMPARE(robot.mode(), Robot::Mode::Manual);
    }

    void aSwitchIsDeliveredOnce() {
        Messages bus;
        bus.watch("robot.drives");
        bus.watch("robot.mode");
        bus.watch("robot.state");
        bus.set("robot.drives", "false");
        QCOMPARE(bus.delivered, (QStringList{"robot.state {\"motion\":\"\",\"moving\":false,\"state\":\"off\","
                                             "\"stopped_by\":\"\"}",
                                             "robot.drives false"}));
        bus.delivered.clear();
        bus.set("robot.mode", "\"auto\"");
        QCOMPARE(bus.delivered, QStringList{"robot.mode \"auto\""});
        bus.delivered.clear();
        bus.controller.robot()->setDrives(true);
        bus.controller.robot()->setMode(Robot::Mode::Manual);
        QCOMPARE(bus.delivered.filter("robot.drives"), QStringList{"robot.drives true"});
        QCOMPARE(bus.delivered.filter("robot.mode"), QStringList{"robot.mode \"manual\""});
    }

    void whatTheyDoNotTakeIsRefused_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QString>("subKey");
        QTest::newRow("a number") << "robot.drives" << QByteArray("1") << "";
        QTest::newRow("a text") << "robot.drives" << QByteArray("\"on\"") << "";
        QTest::newRow("below it") << "robot.drives" << QByteArray("false") << "first";
        QTest::newRow("another mode") << "robot.mode" << QByteArray("\"remote\"") << "";
        QTest::newRow("no mode") << "robot.mode" << QByteArray("true") << "";
    }

    void whatTheyDoNotTakeIsRefused() {
        QFETCH(QString, key);
        QFETCH(QByteArray, sent);
        QFETCH(QString, subKey);
        Messages bus;
        const QString refusal = refusalOf(bus.set(key, sent, subKey));
        QVERIFY2(refusal.startsWith("The bus key \"" + key + "\" takes "), qPrintable(refusal));
        QCOMPARE(bus.noticed.size(), 1);
        QVERIFY(bus.controller.robot()->hasDrives());
        QCOMPARE(bus.controller.robot()->mode(), Robot::Mode::Manual);
    }

    void joggingWithTheDrivesOffIsRefused() {
        Messages bus;
        bus.set("robot.drives", "false");
        QCOMPARE(refusalOf(bus.command("robot.jog", R"({"space": "joint", "axis": 0, "percent": 50})")),
                 "The robot cannot be jogged: its drives are off.");
    }
};

QTEST_GUILESS_MAIN(TestSwitchKeys)
#include "tst_switchkeys.moc"
