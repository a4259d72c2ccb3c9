#include "moves.h"

#include <QTest>

using controller::JogCommand;
using controller::MoveError;
using controller::Pose;
using controller::Posture;
using controller::Robot;

namespace {

// The tool of the standard robot at its start, and places from there.
const Pose start{970, 0, 1155, 180, 0, 180};

Pose aside(double mm) {
    Pose pose = start;
    pose.y += mm;
    return pose;
}

controller::MoveCommand linear(const Pose& pose, double mmPerS = 250) {
    controller::MoveCommand command;
    command.way = controller::MoveCommand::Linear;
    command.target.pose = controller::frameOf(pose);
    command.speed = mmPerS;
    return command;
}

const JogCommand jogFirst{JogCommand::Joint, 0, 100};

} // namespace

class TestMoving : public QObject {
    Q_OBJECT

private slots:
    void aMoveStartsWhenItIsConfirmed() {
        Jogging bench;
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        bench.clock.step(500);
        QVERIFY(!bench.robot.isMoving());
        QCOMPARE(bench.pose().y, 0.0);
        QVERIFY(bench.robot.confirm());
        QVERIFY(bench.robot.isMoving());
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y - 200) < 1e-6);
        // 200 mm at 250 a second
        QCOMPARE(bench.clock.nowMs(), qint64(500 + 880));
    }

    void withoutOneThatIsPreparedThereIsNothingToConfirm() {
        Jogging bench;
        QVERIFY(!bench.robot.confirm());
        QVERIFY(go(&bench.robot, controller::MoveCommand::Linear, aside(50), 250));
        QVERIFY(!bench.robot.confirm());
        QVERIFY(untilItStands(&bench));
        QVERIFY(!bench.robot.confirm());
    }

    void theLastThatWasPreparedCounts() {
        Jogging bench;
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        QVERIFY(!bench.robot.prepare(linear(aside(-100))));
        QVERIFY(bench.robot.confirm());
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y + 100) < 1e-6);
    }

    void aMoveThatIsRefusedForgetsTheOneBefore() {
        Jogging bench;
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        QVERIFY(bool(bench.robot.prepare(linear(aside(5000)))));
        QVERIFY(!bench.robot.confirm());
    }

    void whatPutsItElsewhereForgetsTheMove() {
        Jogging bench;
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        bench.robot.setPosture(postureOf({0, 5, 0, 0, 85, 0}));
        QVERIFY(!bench.robot.confirm());
        QVERIFY(goLinear(&bench.robot, aside(200)));
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y - 200) < 1e-6);
    }

    void whileAMoveIsUnderWayAnotherIsRefused() {
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, aside(200)));
        bench.clock.step(200);
        QSignalSpy failed(&bench.robot, &Robot::failed);
        QCOMPARE(bench.robot.prepare(linear(aside(-200))).code, int(MoveError::Busy));
        QCOMPARE(failed.size(), 1);
        QVERIFY(!bench.robot.confirm());
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y - 200) < 1e-6);
        QCOMPARE(bench.robot.stoppedBy(), "arrived");
    }

    void stoppingSlowsDownOnThePath_data() {
        QTest::addColumn<bool>("reset");
        QTest::newRow("stop") << false;
        QTest::newRow("reset") << true;
    }

    void stoppingSlowsDownOnThePath() {
        QFETCH(bool, reset);
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, {970, 300, 1155, 180, 0, 180}, 500));
        bench.clock.step(300);
        const double before = bench.pose().y;
        reset ? bench.robot.reset() : bench.robot.brake();
        QVERIFY(bench.robot.isMoving());
        QVERIFY(bench.robot.isBraking());
        QVERIFY(untilItStands(&bench));
        // 500 mm a second at 4000: 0.125 s and 31.25 mm
        QVERIFY2(std::abs(bench.pose().y - before - 31.25) < 1e-3,
                 qPrintable(QString::number(bench.pose().y - before)));
        QVERIFY(std::abs(bench.pose().x - 970) < 1e-6 && std::abs(bench.pose().z - 1155) < 1e-6);
        QCOMPARE(bench.robot.stoppedBy(), QString());
        QVERIFY(!bench.robot.error());
        QCOMPARE(bench.clock.nowMs(), qint64(300 + 140));
        QCOMPARE(bench.state.size(), 3);
    }

    void aJointMoveStopsOnItsPathToo() {
        Jogging bench;
        const Posture before = bench.robot.posture();
        QVERIFY(goJoint(&bench.robot, {700, 800, 900, 90, 20, 170}));
        bench.clock.step(300);
        const double share = bench.joint(0);
        bench.robot.brake();
        QVERIFY(untilItStands(&bench));
        QVERIFY(bench.joint(0) > share + 5);
        const double ratio = (bench.joint(4) - before.joints[4]) / bench.joint(0);
        Jogging whole;
        QVERIFY(goJoint(&whole.robot, {700, 800, 900, 90, 20, 170}));
        QVERIFY(untilItStands(&whole));
        QVERIFY(whole.joint(0) > bench.joint(0) + 5);
        QVERIFY(std::abs((whole.joint(4) - before.joints[4]) / whole.joint(0) - ratio) < 1e-9);
    }

    void stoppingForgetsWhatIsPrepared_data() { stoppingSlowsDownOnThePath_data(); }

    void stoppingForgetsWhatIsPrepared() {
        QFETCH(bool, reset);
        Jogging bench;
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        reset ? bench.robot.reset() : bench.robot.brake();
        QVERIFY(!bench.robot.confirm());
    }

    void theNextMoveStartsWhenTheOneBeforeStands() {
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, aside(300), 500));
        bench.clock.step(300);
        bench.robot.reset();
        QVERIFY(goLinear(&bench.robot, aside(-100), 500));
        QVERIFY(bench.robot.isBraking());
        const double there = bench.pose().y;
        bench.clock.step(100);
        QVERIFY(bench.pose().y > there);
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y + 100) < 1e-6);
        QCOMPARE(bench.robot.stoppedBy(), "arrived");
    }

    void whileItBrakesTheNextIsPreparedAndWaitsToBeConfirmed() {
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, aside(300), 500));
        bench.clock.step(300);
        bench.robot.reset();
        QVERIFY(goLinear(&bench.robot, aside(100), 500));
        QVERIFY(!bench.robot.prepare(linear(aside(-100))));
        bench.clock.step(1000);
        QVERIFY(!bench.robot.isMoving());
        QVERIFY(bench.pose().y > 100);
        QVERIFY(bench.robot.confirm());
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y + 100) < 1e-6);
    }

    void anotherRobotHasNoErrorAndNothingPrepared() {
        Jogging bench;
        QVERIFY(!goLinear(&bench.robot, aside(5000)));
        bench.state.clear();
        bench.robot.setModel(controller::standardModel());
        QVERIFY(!bench.robot.error());
        QCOMPARE(bench.state.size(), 1);
        QVERIFY(!bench.robot.prepare(linear(aside(100))));
        bench.robot.setModel(controller::standardModel());
        QVERIFY(!bench.robot.confirm());
        QVERIFY(goLinear(&bench.robot, aside(100)));
        bench.clock.step(100);
        bench.robot.setModel(controller::standardModel());
        bench.clock.step(1000);
        QCOMPARE(bench.pose().y, 0.0);
    }

    void aMoveThatWaitsIsForgottenByAStop() {
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, aside(300), 500));
        bench.clock.step(300);
        bench.robot.reset();
        QVERIFY(goLinear(&bench.robot, aside(-100), 500));
        bench.robot.brake();
        QVERIFY(untilItStands(&bench));
        QVERIFY(bench.pose().y > 100);
    }

    void theErrorStaysUntilAResetOrTheNextMove() {
        Jogging bench;
        QVERIFY(!goLinear(&bench.robot, aside(5000)));
        QVERIFY(bool(bench.robot.error()));
        bench.clock.step(1000);
        QVERIFY(bool(bench.robot.error()));
        bench.state.clear();
        bench.robot.reset();
        QVERIFY(!bench.robot.error());
        bench.robot.reset();
        QCOMPARE(bench.state.size(), 1);
        QVERIFY(!goLinear(&bench.robot, aside(5000)));
        QVERIFY(!bench.robot.prepare(linear(aside(50))));
        QVERIFY(!bench.robot.error());
    }

    void aResetWhileItBrakesBeforeALimitLeavesNoError() {
        Jogging bench;
        bench.robot.setPosture(postureOf({165, 0, 0, 0, 90, 0}));
        const Pose from = bench.pose();
        QVERIFY(goLinear(&bench.robot, {from.x, from.y - 800, from.z, from.a, from.b, from.c}, 1000));
        for (int i = 0; i < 1000 && !bench.robot.isBraking(); ++i)
            bench.clock.step(20);
        QVERIFY(bench.robot.isBraking());
        QSignalSpy failed(&bench.robot, &Robot::failed);
        bench.robot.reset();
        QVERIFY(untilItStands(&bench));
        QCOMPARE(failed.size(), 0);
        QCOMPARE(bench.robot.stoppedBy(), QString());
    }

    void aMoveEndsJogging() {
        Jogging bench;
        bench.hold(jogFirst, 200);
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        QVERIFY(!bench.robot.isMoving());
        QCOMPARE(bench.robot.stoppedBy(), QString());
        QVERIFY(bench.robot.confirm());
        QCOMPARE(bench.robot.motion(), Robot::Motion::LinearMove);
        QVERIFY(untilItStands(&bench));
        QVERIFY(std::abs(bench.pose().y - 200) < 1e-6);
    }

    void aMoveThatIsRefusedLetsJoggingGoOn() {
        Jogging bench;
        bench.hold(jogFirst, 100);
        QVERIFY(bool(bench.robot.prepare(linear(aside(5000)))));
        QCOMPARE(bench.robot.motion(), Robot::Motion::Jog);
    }

    void duringAMoveItCannotBeJogged() {
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, aside(200)));
        QCOMPARE(bench.robot.refusalOf(jogFirst), "The robot cannot be jogged while it moves to a target.");
        bench.clock.step(200);
        bench.robot.jog(jogFirst);
        bench.robot.stop(); // a key that is let go
        QCOMPARE(bench.robot.motion(), Robot::Motion::LinearMove);
        bench.robot.brake();
        QVERIFY(!bench.robot.refusalOf(jogFirst).isEmpty());
        QVERIFY(untilItStands(&bench));
        QCOMPARE(bench.robot.refusalOf(jogFirst), QString());
    }

    void joggingForgetsWhatIsPrepared() {
        Jogging bench;
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        bench.hold(jogFirst, 100);
        QVERIFY(!bench.robot.confirm());
    }

    void anotherFrameDoesNotChangeWhereAMoveGoes() {
        controller::RobotModel model = controller::standardModel();
        model.tools.insert("torch", {0, 0, 300, 0, 0, 0});
        Jogging bench(model);
        QVERIFY(goLinear(&bench.robot, aside(200)));
        bench.clock.step(100);
        bench.robot.setFrame("torch", "world");
        QVERIFY(bench.robot.isMoving());
        QVERIFY(untilItStands(&bench));
        bench.robot.setFrame("flange", "world");
        QVERIFY(std::abs(bench.pose().y - 200) < 1e-6);
    }

    void aPostureThatIsSetEndsAMove() {
        Jogging bench;
        QVERIFY(goLinear(&bench.robot, aside(200)));
        bench.clock.step(100);
        bench.robot.setPosture(Posture());
        QVERIFY(!bench.robot.isMoving());
        bench.clock.step(1000);
        QVERIFY(bench.robot.posture() == Posture());
    }

    void withTheDrivesOffNothingMoves() {
        Jogging bench;
        bench.robot.setDrives(false);
        QCOMPARE(bench.robot.prepare(linear(aside(200))).code, int(MoveError::DrivesOff));
        QCOMPARE(bench.robot.refusalOf(jogFirst), "The robot cannot be jogged: its drives are off.");
        bench.hold(jogFirst, 400);
        QCOMPARE(bench.joint(0), 0.0);
        bench.robot.setDrives(true);
        QVERIFY(goLinear(&bench.robot, aside(200)));
    }

    void drivesThatGoOffStopItAtOnce() {
        Jogging bench;
        QSignalSpy failed(&bench.robot, &Robot::failed);
        QVERIFY(goLinear(&bench.robot, aside(200)));
        bench.clock.step(200);
        bench.robot.setDrives(false);
        const Posture there = bench.robot.posture();
        QVERIFY(!bench.robot.isMoving());
        QCOMPARE(bench.robot.stoppedBy(), "drives off");
        QCOMPARE(bench.robot.error().code, int(MoveError::DrivesOff));
        QCOMPARE(failed.size(), 1);
        bench.clock.step(1000);
        QVERIFY(bench.robot.posture() == there);
    }

    void drivesThatGoOffEndJoggingAndForgetWhatIsPrepared() {
        Jogging bench;
        bench.hold(jogFirst, 100);
        bench.robot.setDrives(false);
        QCOMPARE(bench.robot.stoppedBy(), "drives off");
        QVERIFY(!bench.robot.error());
        bench.robot.setDrives(true);
        QVERIFY(!bench.robot.prepare(linear(aside(200))));
        bench.robot.setDrives(false);
        bench.robot.setDrives(true);
        QVERIFY(!bench.robot.confirm());
    }

    void inAutomaticModeItMovesButIsNotJogged() {
        Jogging bench;
        bench.hold(jogFirst, 100);
        bench.robot.setMode(Robot::Mode::Automatic);
        QVERIFY(!bench.robot.isMoving());
        QCOMPARE(bench.robot.refusalOf(jogFirst), "The robot cannot be jogged in automatic mode.");
        QVERIFY(goLinear(&bench.robot, aside(100)));
        bench.clock.step(100);
        bench.robot.setMode(Robot::Mode::Manual);
        QVERIFY(bench.robot.isMoving());
    }

    void whoHearsOfTheEndMaySendTheNext() {
        Jogging bench;
        int count = 0;
        connect(&bench.robot, &Robot::stateChanged, this, [&] {
            if (!bench.robot.isMoving() && bench.robot.stoppedBy() == "arrived" && ++count < 3)
                QVERIFY(goLinear(&bench.robot, aside(count * 50)));
        });
        QVERIFY(goLinear(&bench.robot, aside(20)));
        bench.clock.step(5000);
        QCOMPARE(count, 3);
        QVERIFY(std::abs(bench.pose().y - 100) < 1e-6);
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne() {
        Jogging whole;
        Jogging pieces;
        for (Jogging* bench : {&whole, &pieces}) {
            QVERIFY(goLinear(&bench->robot, aside(300), 500));
            bench->clock.step(311);
            bench->robot.reset();
            QVERIFY(goJoint(&bench->robot, {700, 800, 900, 90, 20, 170}, 0.6));
        }
        whole.clock.step(1000);
        for (int i = 0; i < 50; ++i)
            pieces.clock.step(20);
        QVERIFY(pieces.robot.posture() == whole.robot.posture());
        QVERIFY(pieces.robot.isMoving());
        whole.clock.step(1000);
        for (int i = 0; i < 1000; ++i)
            pieces.clock.step(1);
        QVERIFY(pieces.robot.posture() == whole.robot.posture());
        QCOMPARE(pieces.moved.size(), whole.moved.size());
    }
};

QTEST_GUILESS_MAIN(TestMoving)
#include "tst_moving.moc"
