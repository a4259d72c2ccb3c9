#include "jogging.h"

#include "frames.h"

#include <QTest>

#include <array>

using controller::JogCommand;
using controller::Joints;
using controller::Mount;
using controller::Pose;
using controller::Posture;
using controller::RobotModel;
using controller::standardModel;

namespace {

RobotModel model() {
    RobotModel model = standardModel();
    model.joints[0].start = 10;
    model.joints[1].start = 20;
    model.joints[2].start = 15;
    model.joints[3].start = 10;
    model.joints[4].start = 60;
    model.joints[5].start = -20;
    model.tools.insert("torch", {50, 0, 300, 0, -35, 0});
    model.wobjs.insert("table", {{800, -300, 400, 90, 0, 20}, Mount::world});
    model.tool = "torch";
    model.wobj = "table";
    return model;
}

RobotModel sevenJoints() {
    RobotModel seven = model();
    seven.joints.insert(2, {"roll", -170, 170, 150, 25, false});
    return seven;
}

JogCommand cartesian(int axis, double percent = 100) {
    return {JogCommand::Cartesian, axis, percent};
}

std::array<double, 6> parts(const Pose& pose) {
    return {pose.x, pose.y, pose.z, pose.a, pose.b, pose.c};
}

Posture at(const Joints& joints) {
    Posture posture;
    posture.joints = joints;
    return posture;
}

} // namespace

Q_DECLARE_METATYPE(controller::Joints)
Q_DECLARE_METATYPE(controller::JogCommand)

class TestCartesianJog : public QObject {
    Q_OBJECT

private slots:
    void onlyWhatIsJoggedChanges_data() {
        QTest::addColumn<bool>("isRedundant");
        QTest::addColumn<int>("axis");
        QTest::addColumn<double>("percent");
        for (const bool isRedundant : {false, true}) {
            for (int axis = 0; axis < 6; ++axis) {
                for (const double percent : {100.0, -30.0})
                    QTest::addRow("%d joints, %d at %g", isRedundant ? 7 : 6, axis, percent)
                        << isRedundant << axis << percent;
            }
        }
    }

    void onlyWhatIsJoggedChanges() {
        QFETCH(bool, isRedundant);
        QFETCH(int, axis);
        QFETCH(double, percent);
        Jogging jogging(isRedundant ? sevenJoints() : model());
        const auto before = parts(jogging.pose());
        jogging.robot.jog(cartesian(axis, percent));
        jogging.clock.step(400);
        const auto after = parts(jogging.pose());
        for (int i = 0; i < 6; ++i) {
            const double way = i == axis ? (axis < 3 ? 250 : 45) * 0.4 * percent / 100 : 0;
            const double off = std::remainder(after[size_t(i)] - before[size_t(i)] - way, 360);
            QVERIFY2(std::abs(off) < 1e-6, qPrintable(QStringLiteral("%1 is off by %2").arg(i).arg(off)));
        }
        QVERIFY(jogging.robot.isMoving());
    }

    void thereAndBackAgainIsWhereItBegan() {
        Jogging jogging(model());
        const Posture before = jogging.robot.posture();
        for (int axis = 0; axis < 6; ++axis)
            jogging.hold(cartesian(axis), 300);
        for (int axis = 5; axis >= 0; --axis)
            jogging.hold(cartesian(axis, -100), 300);
        jogging.robot.stop();
        for (size_t i = 0; i < 6; ++i)
            QVERIFY(std::abs(jogging.joint(i) - before.joints[i]) < 1e-6);
    }

    void theThirdOfSevenKeepsItsAngle() {
        Jogging jogging(sevenJoints());
        jogging.hold(cartesian(1), 600);
        QCOMPARE(jogging.joint(2), 25.0);
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne_data() {
        QTest::addColumn<int>("pieceMs");
        for (const int pieceMs : {1, 7, 20, 33, 250})
            QTest::addRow("%d ms", pieceMs) << pieceMs;
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne() {
        QFETCH(int, pieceMs);
        Jogging whole(model());
        whole.robot.jog(cartesian(4));
        whole.clock.step(480);
        Jogging pieces(model());
        pieces.robot.jog(cartesian(4));
        for (int doneMs = 0; doneMs < 480; doneMs += pieceMs)
            pieces.clock.step(qMin(pieceMs, 480 - doneMs));
        QVERIFY(pieces.robot.posture() == whole.robot.posture());
    }

    void itStopsWhereTheToolCannotGoOn_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<JogCommand>("command");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("notice");
        QTest::newRow("at the end of the arm, fast")
            << Joints{0, 20, 20, 0, 50, 0} << cartesian(0) << "singularity"
            << "Jogging along X cannot go on: A3 would have to turn too fast, near a singularity.";
        QTest::newRow("at the end of the arm, slowly")
            << Joints{0, 60, -75, 0, 105, 0} << cartesian(0, 1) << "out of reach"
            << "Jogging along X cannot go on: the arm does not reach further.";
        QTest::newRow("past a straight wrist")
            << Joints{0, 0, 0, 80, 20, 0} << cartesian(3, -100) << "singularity"
            << "Jogging along A cannot go on: A4 would have to turn too fast, near a singularity.";
        QTest::newRow("at the limit of a joint") << Joints{0, -20, 0, 0, 110, 0} << cartesian(4, -100) << "limit A5"
                                                 << "Jogging along B cannot go on: A5 is at its limit.";
    }

    void itStopsWhereTheToolCannotGoOn() {
        QFETCH(Joints, joints);
        QFETCH(JogCommand, command);
        QFETCH(QString, notice);
        Jogging jogging;
        jogging.robot.setPosture(at(joints));
        jogging.hold(command, 30000);
        QVERIFY(!jogging.robot.isMoving());
        QTEST(jogging.robot.stoppedBy(), "by");
        QCOMPARE(jogging.noticed.size(), 1);
        QCOMPARE(jogging.noticed.first().first().toString(), notice);
    }

    void everyStartAtTheEndIsTold() {
        Jogging jogging;
        jogging.robot.setPosture(at({0, -20, 0, 0, 110, 0}));
        jogging.hold(cartesian(4, -100), 5000);
        QCOMPARE(jogging.noticed.size(), 1);
        jogging.robot.stop();
        jogging.hold(cartesian(4, -100), 1000);
        QCOMPARE(jogging.noticed.size(), 2);
        const Pose end = jogging.pose();
        jogging.hold(cartesian(4, 100), 400);
        QVERIFY(jogging.robot.isMoving());
        QVERIFY(std::abs(parts(jogging.pose())[4] - end.b) > 10);
    }

    void eulerBGoesOnBeyond90() {
        Jogging jogging;
        jogging.robot.setPosture(at({0, 0, 0, 0, 40, 0}));
        QCOMPARE(text(jogging.pose()).section('/', 1), " 180 50 180");
        jogging.hold(cartesian(4, 100), 1400);
        QVERIFY(jogging.robot.isMoving());
        // 50 and 63 degrees on are 67 from the other side.
        QCOMPARE(text(jogging.pose()).section('/', 1), " 0 67 0");
    }
};

QTEST_GUILESS_MAIN(TestCartesianJog)
#include "tst_cartesianjog.moc"
