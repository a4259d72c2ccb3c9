#include "moves.h"

#include "frames.h"

#include <QTest>

using controller::Axis;
using controller::Joints;
using controller::Mount;
using controller::MoveError;
using controller::Pose;
using controller::Posture;
using controller::Robot;
using controller::RobotModel;
using controller::standardModel;

namespace {

// For a path of the joints at every tick.
using Track = std::vector<Joints>;

Track trackOf(Jogging* bench) {
    Track track{bench->robot.posture().joints};
    const bool stands = untilItStands(bench, 60000, [&] { track.push_back(bench->robot.posture().joints); });
    if (!stands)
        QTest::qFail("it still moves", __FILE__, __LINE__);
    track.push_back(track.back());
    return track;
}

double tickS() {
    return double(controller::Clock::tickMs) / 1000;
}

Pose poseAt(const Robot& robot, const Joints& joints) {
    return controller::poseOf(robot.kinematics().pose(postureOf(joints), robot.tool(), robot.wobj()));
}

RobotModel slowToStart() {
    RobotModel model = standardModel();
    for (Axis& axis : model.joints)
        axis.acceleration = 40;
    model.joints[4].acceleration = 15;
    return model;
}

RobotModel withSeven() {
    RobotModel model = standardModel();
    model.joints.insert(2, {"roll", -170, 170, 150, 25, false});
    return model;
}

RobotModel onATrack() {
    RobotModel model = standardModel();
    model.externals = {{{"E1", 0, 6000, 1500, 3000, true}, {{0, -3000, 0, 0, 0, 0}, Mount::world}, 1}};
    model.foot = {{}, 0};
    return model;
}

} // namespace

Q_DECLARE_METATYPE(controller::Joints)
Q_DECLARE_METATYPE(controller::Pose)
Q_DECLARE_METATYPE(controller::RobotModel)

class TestJointMove : public QObject {
    Q_OBJECT

private slots:
    void theToolComesToItsTarget_data() {
        QTest::addColumn<RobotModel>("model");
        QTest::newRow("six joints") << standardModel();
        QTest::newRow("seven joints") << withSeven();
        QTest::newRow("on a track") << onATrack();
    }

    void theToolComesToItsTarget() {
        QFETCH(RobotModel, model);
        Jogging bench(model);
        const Posture before = bench.robot.posture();
        const Pose target{700, 800, 900, 90, 20, 170};
        QVERIFY(goJoint(&bench.robot, target));
        QCOMPARE(bench.robot.motion(), Robot::Motion::JointMove);
        QVERIFY(untilItStands(&bench));
        QCOMPARE(text(bench.pose()), text(controller::poseOf(controller::frameOf(target))));
        QCOMPARE(bench.robot.stoppedBy(), "arrived");
        QVERIFY(!bench.robot.error());
        QCOMPARE(bench.robot.posture().externals, before.externals);
        if (model.joints.size() == 7)
            QCOMPARE(bench.joint(2), 25.0);
    }

    void allAxesArriveTogetherAndInStep() {
        Jogging bench;
        const Joints end{60, 20, -30, 40, 50, -100};
        const Joints start = bench.robot.posture().joints;
        QVERIFY(goJoint(&bench.robot, poseAt(bench.robot, end), 0.7));
        const Track track = trackOf(&bench);
        QVERIFY(track.size() > 20);
        for (const Joints& joints : track) {
            const double share = (joints[0] - start[0]) / (end[0] - start[0]);
            for (size_t i = 1; i < 6; ++i)
                QVERIFY(std::abs(joints[i] - start[i] - share * (end[i] - start[i])) < 1e-4);
        }
    }

    void noAxisIsFasterThanItCan_data() {
        QTest::addColumn<RobotModel>("model");
        QTest::addColumn<double>("share");
        QTest::addColumn<bool>("reachesIt");
        QTest::newRow("at full speed") << standardModel() << 1.0 << true;
        QTest::newRow("at a quarter") << standardModel() << 0.25 << true;
        QTest::newRow("slow to start") << slowToStart() << 1.0 << false;
        QTest::newRow("slow to start, slowly") << slowToStart() << 0.3 << true;
    }

    void noAxisIsFasterThanItCan() {
        QFETCH(RobotModel, model);
        QFETCH(double, share);
        QFETCH(bool, reachesIt);
        Jogging bench(model);
        QVERIFY(goJoint(&bench.robot, poseAt(bench.robot, {-120, 60, 30, 100, -60, 170}), share));
        const Track track = trackOf(&bench);
        double fastest = 0;
        double hardest = 0;
        for (size_t tick = 1; tick + 1 < track.size(); ++tick) {
            for (size_t i = 0; i < 6; ++i) {
                const Axis& axis = model.joints.at(int(i));
                const double speed = (track[tick][i] - track[tick - 1][i]) / tickS();
                const double next = (track[tick + 1][i] - track[tick][i]) / tickS();
                fastest = std::fmax(fastest, std::abs(speed) / axis.speed);
                hardest = std::fmax(hardest, std::abs(next - speed) / tickS() / controller::accelerationOf(axis));
            }
        }
        QVERIFY2(fastest < share + 1e-6, qPrintable(QString::number(fastest)));
        QCOMPARE(fastest > share - 0.01, reachesIt);
        QVERIFY2(hardest < 1 + 1e-6 && hardest > 0.99, qPrintable(QString::number(hardest)));
    }

    void theSpeedIsAShareOfTheFullSpeed() {
        qint64 fullMs = 0;
        for (const double share : {1.0, 0.5, 0.1}) {
            Jogging bench;
            QVERIFY(goJoint(&bench.robot, poseAt(bench.robot, {150, 0, 0, 0, 90, 0}), share));
            QVERIFY(untilItStands(&bench));
            // 150 degrees at 150 a second, and 0.4 s to reach full speed
            const qint64 wantedMs = qint64(1000 / share + 400 * share);
            QVERIFY(bench.clock.nowMs() >= wantedMs && bench.clock.nowMs() <= wantedMs + 20);
            QVERIFY(bench.clock.nowMs() > fullMs);
            fullMs = bench.clock.nowMs();
        }
    }

    void theNearestPostureIsTaken() {
        Jogging bench;
        const Joints near{30, 10, 20, 150, -80, 100};
        bench.robot.setPosture(postureOf(near));
        const Joints end{35, 15, 15, 160, -75, 95};
        QVERIFY(goJoint(&bench.robot, poseAt(bench.robot, end)));
        QVERIFY(untilItStands(&bench));
        for (size_t i = 0; i < 6; ++i)
            QVERIFY(std::abs(bench.joint(i) - end[i]) < 1e-4);
    }

    void theConfigurationThatIsAskedForIsTaken() {
        Jogging bench;
        const Joints flipped{30, 10, 20, 150, -80, 100};
        controller::MoveCommand command;
        command.speed = 1;
        command.target.pose = controller::frameOf(poseAt(bench.robot, flipped));
        command.configuration = configurationOf(bench.robot.kinematics(), postureOf(flipped));
        QVERIFY(!bench.robot.prepare(command));
        QVERIFY(bench.robot.confirm());
        QVERIFY(untilItStands(&bench));
        for (size_t i = 0; i < 6; ++i)
            QVERIFY(std::abs(bench.joint(i) - flipped[i]) < 1e-4);
    }

    void whereItStandsItArrivesAtOnce() {
        Jogging bench;
        const Posture before = bench.robot.posture();
        QVERIFY(goJoint(&bench.robot, bench.pose()));
        bench.clock.step(20);
        QVERIFY(!bench.robot.isMoving());
        QCOMPARE(bench.robot.stoppedBy(), "arrived");
        for (size_t i = 0; i < 6; ++i)
            QVERIFY(std::abs(bench.joint(i) - before.joints[i]) < 1e-6);
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne_data() {
        QTest::addColumn<int>("pieceMs");
        for (const int pieceMs : {1, 7, 20, 33, 250})
            QTest::addRow("%d ms", pieceMs) << pieceMs;
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne() {
        QFETCH(int, pieceMs);
        Jogging whole;
        Jogging pieces;
        const Pose target{700, 800, 900, 90, 20, 170};
        for (Jogging* bench : {&whole, &pieces})
            QVERIFY(goJoint(&bench->robot, target));
        whole.clock.step(700);
        for (int doneMs = 0; doneMs < 700; doneMs += pieceMs)
            pieces.clock.step(qMin(pieceMs, 700 - doneMs));
        QVERIFY(pieces.robot.isMoving());
        QVERIFY(pieces.robot.posture() == whole.robot.posture());
        QCOMPARE(pieces.moved.size(), whole.moved.size());
    }

    void aTargetThatCannotBeReachedIsRefused_data() {
        QTest::addColumn<Pose>("target");
        QTest::addColumn<double>("share");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("far away") << Pose{3000, 0, 500, 0, 0, 180} << 1.0 << int(MoveError::OutOfReach)
                                  << "The arm does not reach the target of the move.";
        QTest::newRow("beyond all numbers") << Pose{1e308, 1e308, 1e308, 0, 0, 180} << 1.0 << int(MoveError::OutOfReach)
                                            << "The arm does not reach the target of the move.";
        QTest::newRow("turned by no number") << Pose{970, 0, 1100, qInf(), 0, 180} << 1.0 << int(MoveError::OutOfReach)
                                             << "The arm does not reach the target of the move.";
        QTest::newRow("behind") << Pose{-970, 0, 1155, 180, 0, 180} << 1.0 << int(MoveError::Limit)
                                << "The arm does not reach the target of the move: A";
        QTest::newRow("no speed") << Pose{970, 0, 1100, 180, 0, 180} << 0.0 << int(MoveError::BadSpeed)
                                  << "at most 1, the full speed of the axes.";
        QTest::newRow("mm a second") << Pose{970, 0, 1100, 180, 0, 180} << 250.0 << int(MoveError::BadSpeed)
                                     << "at most 1, the full speed of the axes.";
        QTest::newRow("no number") << Pose{970, 0, 1100, 180, 0, 180} << qQNaN() << int(MoveError::BadSpeed)
                                   << "at most 1, the full speed of the axes.";
    }

    void aTargetThatCannotBeReachedIsRefused() {
        QFETCH(Pose, target);
        QFETCH(double, share);
        QFETCH(QString, text);
        RobotModel model = standardModel();
        // So that it cannot go there over its head either.
        model.joints[1].minimum = -20;
        Jogging bench(model);
        const Posture before = bench.robot.posture();
        QVERIFY(!goJoint(&bench.robot, target, share));
        QTEST(bench.robot.error().code, "code");
        QVERIFY2(bench.robot.error().text.contains(text), qPrintable(bench.robot.error().text));
        QCOMPARE(bench.noticed.size(), 1);
        bench.clock.step(1000);
        QVERIFY(bench.robot.posture() == before);
        QVERIFY(!bench.robot.isMoving());
    }
};

QTEST_GUILESS_MAIN(TestJointMove)
#include "tst_jointmove.moc"
