#include "jogging.h"

#include <QTest>

using controller::JogCommand;
using controller::Posture;
using controller::RobotModel;
using controller::standardModel;

namespace {

// 20 % of 150 degrees a second
const double fullSpeed = 30;

RobotModel withTrack() {
    RobotModel model = standardModel();
    model.externals = {{{"E1", 0, 6000, 1500, 3000, true}, {}, 1}};
    return model;
}

JogCommand jointCommand(int axis, double percent) {
    return {JogCommand::Joint, axis, percent};
}

} // namespace

class TestJointJog : public QObject {
    Q_OBJECT

private slots:
    void aJointMovesAtTheSpeedAskedFor_data() {
        QTest::addColumn<double>("percent");
        QTest::addColumn<double>("after400Ms");
        QTest::newRow("full") << 100.0 << 0.4 * fullSpeed;
        QTest::newRow("backwards") << -100.0 << -0.4 * fullSpeed;
        QTest::newRow("a quarter") << 25.0 << 0.1 * fullSpeed;
        QTest::newRow("none") << 0.0 << 0.0;
    }

    void aJointMovesAtTheSpeedAskedFor() {
        QFETCH(double, percent);
        Jogging jogging;
        jogging.robot.jog(jointCommand(1, percent));
        QCOMPARE(jogging.robot.isMoving(), percent < 0 || percent > 0);
        jogging.clock.step(400);
        QTEST(jogging.joint(1), "after400Ms");
        QCOMPARE(jogging.joint(0), 0.0);
        QCOMPARE(jogging.joint(4), 90.0);
    }

    void anExternalAxisComesAfterTheJoints() {
        Jogging jogging(withTrack());
        jogging.robot.jog(jointCommand(6, 50));
        jogging.clock.step(300);
        QCOMPARE(jogging.robot.posture().externals[0], 3000 + 0.2 * 1500 * 0.5 * 0.3);
    }

    void itStopsByItselfWhenItIsNotToldAgain_data() {
        QTest::addColumn<int>("atMs");
        QTest::newRow("on a tick") << 0;
        QTest::newRow("between two") << 7;
    }

    void itStopsByItselfWhenItIsNotToldAgain() {
        QFETCH(int, atMs);
        Jogging jogging;
        jogging.clock.step(atMs);
        jogging.robot.jog(jointCommand(0, 100));
        jogging.clock.step(480);
        QVERIFY(jogging.robot.isMoving());
        jogging.clock.step(10000);
        QVERIFY(!jogging.robot.isMoving());
        QCOMPARE(jogging.robot.stoppedBy(), "not renewed");
        QCOMPARE(jogging.joint(0), 0.5 * fullSpeed);
        QCOMPARE(jogging.state.size(), 2);
    }

    void itGoesOnWhileItIsToldAgain() {
        Jogging jogging;
        jogging.hold(jointCommand(0, 100), 2000);
        QVERIFY(jogging.robot.isMoving());
        QCOMPARE(jogging.joint(0), 2 * fullSpeed);
        QCOMPARE(jogging.state.size(), 1);
    }

    void itStopsAtOnceWhenTold_data() {
        QTest::addColumn<int>("afterMs");
        QTest::newRow("on a tick") << 100;
        QTest::newRow("between two") << 30;
        QTest::newRow("before the first") << 0;
    }

    void itStopsAtOnceWhenTold() {
        QFETCH(int, afterMs);
        Jogging jogging;
        jogging.robot.jog(jointCommand(0, 100));
        jogging.clock.step(afterMs);
        jogging.robot.stop();
        QVERIFY(!jogging.robot.isMoving());
        QCOMPARE(jogging.robot.stoppedBy(), QString());
        jogging.clock.step(1000);
        QCOMPARE(jogging.joint(0), afterMs * fullSpeed / 1000);
    }

    void anotherCommandTakesOverWhereItIs() {
        Jogging jogging;
        jogging.hold(jointCommand(0, 100), 200);
        jogging.hold(jointCommand(0, -50), 200);
        QCOMPARE(jogging.joint(0), 0.1 * fullSpeed);
        jogging.hold(jointCommand(2, 100), 100);
        QCOMPARE(jogging.joint(0), 0.1 * fullSpeed);
        QCOMPARE(jogging.joint(2), 0.1 * fullSpeed);
    }

    void itStopsAtALimit_data() {
        QTest::addColumn<int>("axis");
        QTest::addColumn<double>("percent");
        QTest::addColumn<double>("limit");
        QTest::addColumn<QString>("by");
        QTest::newRow("upper") << 0 << 100.0 << 170.0 << "limit A1";
        QTest::newRow("lower") << 2 << -100.0 << -100.0 << "limit A3";
        QTest::newRow("external") << 6 << 100.0 << 6000.0 << "limit E1";
    }

    void itStopsAtALimit() {
        QFETCH(int, axis);
        QFETCH(double, percent);
        QFETCH(double, limit);
        Jogging jogging(withTrack());
        jogging.hold(jointCommand(axis, percent), 12000);
        QCOMPARE(valueOf(jogging.robot.posture(), jogging.robot.model(), axis), limit);
        QVERIFY(!jogging.robot.isMoving());
        QTEST(jogging.robot.stoppedBy(), "by");
        // A key that is held there does not start it again and again.
        QCOMPARE(jogging.state.size(), 2);
    }

    void whyItStoppedStaysUntilItMovesAgain() {
        Jogging jogging;
        jogging.hold(jointCommand(0, 100), 12000);
        jogging.robot.stop();
        jogging.clock.step(1000);
        QCOMPARE(jogging.robot.stoppedBy(), "limit A1");
        jogging.hold(jointCommand(0, -100), 100);
        QVERIFY(jogging.robot.isMoving());
        QCOMPARE(jogging.robot.stoppedBy(), QString());
        QCOMPARE(jogging.joint(0), 170 - 0.1 * fullSpeed);
    }

    void pressedAgainAtALimitItStopsThereAgain() {
        Jogging jogging;
        jogging.hold(jointCommand(0, 100), 12000);
        jogging.robot.stop();
        jogging.moved.clear();
        jogging.hold(jointCommand(0, 100), 100);
        QCOMPARE(jogging.moved.size(), 0);
        QCOMPARE(jogging.robot.stoppedBy(), "limit A1");
        QCOMPARE(jogging.joint(0), 170.0);
        QCOMPARE(jogging.state.size(), 4);
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne_data() {
        QTest::addColumn<int>("pieceMs");
        for (const int pieceMs : {1, 7, 13, 20, 33, 250})
            QTest::addRow("%d ms", pieceMs) << pieceMs;
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne() {
        QFETCH(int, pieceMs);
        Jogging whole;
        whole.robot.jog(jointCommand(3, 33));
        whole.clock.step(480);
        Jogging pieces;
        pieces.robot.jog(jointCommand(3, 33));
        for (int doneMs = 0; doneMs < 480; doneMs += pieceMs)
            pieces.clock.step(qMin(pieceMs, 480 - doneMs));
        QVERIFY(pieces.robot.posture() == whole.robot.posture());
        QCOMPARE(pieces.moved.size(), whole.moved.size());
    }

    void aFrameOrAPostureThatIsSetStopsIt() {
        Jogging jogging;
        jogging.hold(jointCommand(0, 100), 100);
        jogging.robot.setFrame("flange", "world");
        QVERIFY(jogging.robot.isMoving());
        RobotModel model = standardModel();
        model.tools.insert("torch", {});
        Jogging other(model);
        other.hold(jointCommand(0, 100), 100);
        other.robot.setFrame("torch", "world");
        QVERIFY(!other.robot.isMoving());
        jogging.robot.setPosture(Posture());
        QVERIFY(!jogging.robot.isMoving());
        jogging.clock.step(400);
        QCOMPARE(jogging.joint(0), 0.0);
    }

    void whatCannotBeJoggedIsNamed_data() {
        QTest::addColumn<int>("space");
        QTest::addColumn<int>("axis");
        QTest::addColumn<double>("percent");
        QTest::addColumn<QString>("named");
        QTest::newRow("last joint") << 0 << 5 << 100.0 << "";
        QTest::newRow("no such joint") << 0 << 6 << 100.0 << "There is no axis 6 to jog: they are counted from 0 to 5.";
        QTest::newRow("below 0") << 0 << -1 << 1.0 << "There is no axis -1 to jog: they are counted from 0 to 5.";
        QTest::newRow("last direction") << 1 << 5 << -100.0 << "";
        QTest::newRow("no such direction")
            << 1 << 6 << 1.0 << "There is no axis 6 to jog: they are counted from 0 to 5.";
        QTest::newRow("too fast") << 0 << 0 << 100.5 << "The speed to jog with must be from -100 to 100 percent.";
        QTest::newRow("no number") << 0 << 0 << qQNaN() << "The speed to jog with must be from -100 to 100 percent.";
    }

    void whatCannotBeJoggedIsNamed() {
        QFETCH(int, space);
        QFETCH(int, axis);
        QFETCH(double, percent);
        const JogCommand command{space == 0 ? JogCommand::Joint : JogCommand::Cartesian, axis, percent};
        QTEST(Jogging().robot.refusalOf(command), "named");
    }
};

QTEST_GUILESS_MAIN(TestJointJog)
#include "tst_jointjog.moc"
