#include "controller/cell/robotreader.h"

#include "reading.h"

using controller::RobotModel;
using controller::standardModel;

namespace {

const char* const sixAxes = R"({"name": "A1", "min": -10, "max": 10, "speed": 5},
    {"name": "A2", "min": -10, "max": 10, "speed": 5}, {"name": "A3", "min": -10, "max": 10, "speed": 5},
    {"name": "A4", "min": -10, "max": 10, "speed": 5}, {"name": "A5", "min": -10, "max": 10, "speed": 5},
    {"name": "A6", "min": 20, "max": 30, "speed": 5, "start": 25.5})";

QByteArray robot(const QByteArray& members) {
    return "{\"robot\": {" + members + "}}";
}

QByteArray external(const QByteArray& members) {
    return robot("\"external\": [{\"name\": \"E1\", \"min\": 0, \"max\": 10, \"speed\": 5, " + members + "}]");
}

QByteArray arm(const QByteArray& members) {
    return robot("\"arm\": {\"shoulderHeight\": 1, \"shoulderOffset\": 2, \"upperArm\": 3, \"elbowOffset\": -4, " +
                 members + "}");
}

QString names(const RobotModel& model) {
    QStringList names;
    for (const controller::Axis& axis : model.axes())
        names << axis.name;
    return names.join(' ');
}

} // namespace

class TestRobotReader : public QObject {
    Q_OBJECT

private slots:
    void withoutARobotThereIsTheStandardOne_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("nothing") << QByteArray("{}");
        QTest::newRow("an empty robot") << QByteArray(R"({"robot": {}})");
    }

    void withoutARobotThereIsTheStandardOne() {
        QFETCH(QByteArray, json);
        const RobotModel model = cellIn(json).robot;
        QCOMPARE(names(model), names(standardModel()));
        QCOMPARE(model.lengths.upperArm, standardModel().lengths.upperArm);
        QCOMPARE(model.tool, "flange");
        QCOMPARE(model.wobj, "world");
        QVERIFY(model.start() == standardModel().start());
    }

    void lengthsAndSpeedsAreRead() {
        const RobotModel model = cellIn(arm(R"("forearm": 5, "wrist": 6)")).robot;
        QCOMPARE(model.lengths.shoulderHeight, 1.0);
        QCOMPARE(model.lengths.shoulderOffset, 2.0);
        QCOMPARE(model.lengths.upperArm, 3.0);
        QCOMPARE(model.lengths.elbowOffset, -4.0);
        QCOMPARE(model.lengths.forearm, 5.0);
        QCOMPARE(model.lengths.wrist, 6.0);
        const RobotModel quick = cellIn(robot(R"("jog": {"mmPerS": 100, "percentOfAxis": 50})")).robot;
        QCOMPARE(quick.jog.mmPerS, 100.0);
        QCOMPARE(quick.jog.degPerS, 45.0);
        QCOMPARE(quick.jog.percentOfAxis, 50.0);
    }

    void accelerationsAndLinearLimitsAreRead() {
        const RobotModel standard = standardModel();
        QCOMPARE(standard.linear.mmPerS, 2000.0);
        // 150 degrees a second within 0.4 s
        QCOMPARE(accelerationOf(standard.joints[0]), 375.0);
        const RobotModel model = cellIn(robot(QByteArray(R"("linear": {"mmPerS": 500, "degPerS2": 90}, "axes": [)") +
                                              sixAxes + R"(, {"name": "A7", "min": 0, "max": 10, "speed": 5,
                                              "acceleration": 2.5}])"))
                                     .robot;
        QCOMPARE(model.linear.mmPerS, 500.0);
        QCOMPARE(model.linear.mmPerS2, 4000.0);
        QCOMPARE(model.linear.degPerS, 180.0);
        QCOMPARE(model.linear.degPerS2, 90.0);
        QCOMPARE(accelerationOf(model.joints[6]), 2.5);
    }

    void jointsAreRead() {
        const RobotModel model = cellIn(robot(QByteArray("\"axes\": [") + sixAxes + ']')).robot;
        QCOMPARE(names(model), "A1 A2 A3 A4 A5 A6");
        QCOMPARE(model.joints[5].minimum, 20.0);
        QCOMPARE(model.joints[5].maximum, 30.0);
        QCOMPARE(model.joints[5].speed, 5.0);
        QCOMPARE(model.start().joints[5], 25.5);
        QVERIFY(!isRedundant(model));
    }

    void sevenJointsAreRedundant() {
        const QByteArray seventh = R"(, {"name": "A7", "min": -10, "max": 10, "speed": 5})";
        QVERIFY(isRedundant(cellIn(robot(QByteArray("\"axes\": [") + sixAxes + seventh + ']')).robot));
    }

    void externalAxesMayStandOnEachOther() {
        const RobotModel model = cellIn(R"({"robot": {"external": [
            {"name": "E1", "min": 0, "max": 9, "speed": 5, "start": 4, "along": "y", "place": {"z": 250}},
            {"name": "E2", "min": -90, "max": 90, "speed": 60, "about": "x", "place": {"x": 5, "on": "E1"}}],
            "foot": {"a": 90, "on": "E2"}}, "wobjs": {"table": {"y": 7, "on": "E1"}}})")
                                     .robot;
        QCOMPARE(names(model), "A1 A2 A3 A4 A5 A6 E1 E2");
        QVERIFY(model.externals[0].axis.isLinear);
        QCOMPARE(model.externals[0].direction, 1);
        QCOMPARE(model.externals[0].mount.pose.z, 250.0);
        QCOMPARE(model.externals[0].mount.on, -1);
        QVERIFY(!model.externals[1].axis.isLinear);
        QCOMPARE(model.externals[1].direction, 0);
        QCOMPARE(model.externals[1].mount.on, 0);
        QCOMPARE(model.foot.on, 1);
        QCOMPARE(model.foot.pose.a, 90.0);
        QCOMPARE(model.wobjs.value("table").on, 0);
        QCOMPARE(model.wobjs.value("table").pose.y, 7.0);
        QCOMPARE(model.start().externals[0], 4.0);
    }

    void toolsAndWorkObjectsComeBesideThoseOfEveryRobot() {
        const RobotModel model = cellIn(R"({"robot": {"tool": "torch", "wobj": "table"},
            "tools": {"torch": {"x": 1, "b": -35}}, "wobjs": {"table": {"x": 2}}})")
                                     .robot;
        QCOMPARE(model.tools.keys(), (QStringList{"flange", "tool0", "torch"}));
        QCOMPARE(model.wobjs.keys(), (QStringList{"table", "wobj0", "world"}));
        QCOMPARE(model.tools.value("torch").b, -35.0);
        QCOMPARE(model.tool, "torch");
        QCOMPARE(model.wobj, "table");
    }

    void aMistakeIsNamedWithItsPlace_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("mistake");
        QTest::newRow("no object") << QByteArray(R"({"robot": 5})") << "robot: Write an object: {\"name\": ...}.";
        QTest::newRow("unknown member") << robot("\"axis\": []")
                                        << "robot.axis: This is not known here. There may be "
                                           "\"arm\", \"axes\", \"external\", \"foot\", \"jog\", \"linear\", \"tool\", "
                                           "\"wobj\".";
        QTest::newRow("a length is missing") << arm(R"("forearm": 5)") << "robot.arm.wrist: Add a number.";
        QTest::newRow("no length") << arm(R"("forearm": "5", "wrist": 6)") << "robot.arm.forearm: Write a number.";
        QTest::newRow("no forearm") << arm(R"("forearm": 0, "wrist": 6)")
                                    << "robot.arm.forearm: It must be more than 0.";
        QTest::newRow("too long") << arm(R"("forearm": 5, "wrist": 1e9)")
                                  << "robot.arm.wrist: It must be from -100000 to 100000 mm.";
        QTest::newRow("too few axes") << robot("\"axes\": []")
                                      << "robot.axes: Write six joints, or seven where the third turns the upper arm.";
        QTest::newRow("minimum is a text")
            << robot(QByteArray("\"axes\": [") + sixAxes + R"(, {"name": "A7", "min": "0", "max": 1, "speed": 1}])")
            << "robot.axes[6].min: Write a number.";
        QTest::newRow("minimum above maximum")
            << robot(QByteArray("\"axes\": [") + sixAxes + R"(, {"name": "A7", "min": 2, "max": 1, "speed": 1}])")
            << "robot.axes[6].min: It must be less than \"max\".";
        QTest::newRow("name is missing") << robot(QByteArray("\"axes\": [") + sixAxes +
                                                  R"(, {"min": 0, "max": 1, "speed": 1}])")
                                         << "robot.axes[6].name: Add a text.";
        QTest::newRow("name is there") << robot(QByteArray("\"axes\": [") + sixAxes +
                                                R"(, {"name": "A2", "min": 0, "max": 1, "speed": 1}])")
                                       << "robot.axes[6].name: There is an axis of this name already.";
        QTest::newRow("name is empty") << robot(QByteArray("\"axes\": [") + sixAxes +
                                                R"(, {"name": "", "min": 0, "max": 1, "speed": 1}])")
                                       << "robot.axes[6].name: Give the axis a name.";
        QTest::newRow("no speed") << robot(QByteArray("\"axes\": [") + sixAxes +
                                           R"(, {"name": "A7", "min": 0, "max": 1, "speed": 0}])")
                                  << "robot.axes[6].speed: It must be from 0.001 to 100000.";
        QTest::newRow("start outside")
            << robot(QByteArray("\"axes\": [") + sixAxes +
                     R"(, {"name": "A7", "min": 0, "max": 1, "speed": 1, "start": 2}])")
            << "robot.axes[6].start: \"start\" must be from \"min\" to \"max\"; left out it is 0.";
        QTest::newRow("start left out")
            << robot(QByteArray("\"axes\": [") + sixAxes + R"(, {"name": "A7", "min": 1, "max": 2, "speed": 1}])")
            << "robot.axes[6]: \"start\" must be from \"min\" to \"max\"; left out it is 0.";
    }

    void aMistakeIsNamedWithItsPlace() {
        QFETCH(QByteArray, json);
        QTEST(mistakeIn(json), "mistake");
    }

    void aMistakeAroundTheArmIsNamedWithItsPlace_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("mistake");
        QTest::newRow("no direction") << external("\"place\": {}")
                                      << "robot.external[0]: Write either \"along\", for an axis in mm, or \"about\", "
                                         "for one in degrees.";
        QTest::newRow("two directions") << external(R"("along": "x", "about": "x")")
                                        << "robot.external[0]: Write either \"along\", for an axis in mm, or "
                                           "\"about\", for one in degrees.";
        QTest::newRow("odd direction") << external(R"("along": "w")")
                                       << "robot.external[0].along: Write \"x\", \"y\" or \"z\".";
        QTest::newRow("on itself") << external(R"("along": "x", "place": {"on": "E1"})")
                                   << "robot.external[0].place.on: There is no external axis \"E1\" before this one.";
        QTest::newRow("foot on nothing") << robot(R"("foot": {"on": "E1"})")
                                         << "robot.foot.on: There is no external axis \"E1\" before this one.";
        QTest::newRow("odd place") << robot(R"("foot": {"d": 1})")
                                   << "robot.foot.d: This is not known here. There may be \"x\", \"y\", \"z\", \"a\", "
                                      "\"b\", \"c\", \"on\".";
        QTest::newRow("turned too far") << QByteArray(R"({"tools": {"torch": {"a": 361}}})")
                                        << "tools.torch.a: It must be from -360 to 360 degrees.";
        QTest::newRow("tool of its own") << QByteArray(R"({"tools": {"flange": {}}})")
                                         << "tools.flange: Every robot has tools \"tool0\", \"flange\". Choose another "
                                            "name.";
        QTest::newRow("tool on an axis") << QByteArray(R"({"tools": {"t": {"on": "E1"}}})")
                                         << "tools.t.on: This is not known here. There may be \"x\", \"y\", \"z\", "
                                            "\"a\", \"b\", \"c\", "
                                            "\"scope\".";
        QTest::newRow("world") << QByteArray(R"({"wobjs": {"world": {}}})")
                               << "wobjs.world: Every cell has work objects \"wobj0\", \"world\". Choose another "
                                  "name.";
        QTest::newRow("no such tool")
            << QByteArray(R"({"robot": {"tool": "grip"}, "tools": {"gripper": {}}})")
            << "robot.tool: There is no \"grip\". There are \"flange\", \"gripper\", \"tool0\".";
        QTest::newRow("no such work object")
            << robot(R"("wobj": "x")") << "robot.wobj: There is no \"x\". There are \"wobj0\", \"world\".";
        QTest::newRow("no acceleration")
            << robot(R"("axes": [{"name": "A1", "min": 0, "max": 1, "speed": 1, "acceleration": 0}])")
            << "robot.axes[0].acceleration: It must be from 0.001 to 100000.";
        QTest::newRow("no move moves it") << external(R"("along": "x", "acceleration": 1)")
                                          << "robot.external[0].acceleration: This is not known here. There may be "
                                             "\"name\", \"min\", \"max\", \"speed\", \"start\", \"along\", "
                                             "\"about\", \"place\".";
        QTest::newRow("unknown limit") << robot(R"("linear": {"mmPerS3": 1})")
                                       << "robot.linear.mmPerS3: This is not known here. There may be \"mmPerS\", "
                                          "\"mmPerS2\", \"degPerS\", \"degPerS2\".";
        QTest::newRow("no limit") << robot(R"("linear": {"degPerS2": 0})")
                                  << "robot.linear.degPerS2: It must be from 0.001 to 100000.";
        QTest::newRow("too fast to jog") << robot(R"("jog": {"percentOfAxis": 101})")
                                         << "robot.jog.percentOfAxis: It must be from 0.001 to 100.";
    }

    void aMistakeAroundTheArmIsNamedWithItsPlace() {
        QFETCH(QByteArray, json);
        QTEST(mistakeIn(json), "mistake");
    }

    void sixExternalAxesAreTheMost() {
        QByteArray axes;
        for (int i = 0; i < 6; ++i)
            axes += "{\"name\": \"E" + QByteArray::number(i) +
                    "\", \"min\": 0, \"max\": 1, \"speed\": 1, \"along\": \"x\"},";
        QCOMPARE(cellIn(robot("\"external\": [" + axes.chopped(1) + ']')).robot.externals.size(), 6);
        const QByteArray seventh = R"({"name": "E7", "min": 0, "max": 1, "speed": 1, "along": "x"})";
        QCOMPARE(mistakeIn(robot("\"external\": [" + axes + seventh + ']')),
                 "robot.external: There may be six external axes.");
    }
};

QTEST_GUILESS_MAIN(TestRobotReader)
#include "tst_robotreader.moc"
