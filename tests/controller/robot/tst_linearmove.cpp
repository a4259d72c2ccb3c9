#include "controller/robot/linearpath.h"

#include "frames.h"
#include "moves.h"

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

struct Moment {
    KDL::Frame frame;
    Joints joints;
};

KDL::Frame frameIn(const Jogging& bench) {
    return bench.robot.kinematics().pose(bench.robot.posture(), bench.robot.tool(), bench.robot.wobj());
}

std::vector<Moment> trackOf(Jogging* bench) {
    std::vector<Moment> track{{frameIn(*bench), bench->robot.posture().joints}};
    const bool stands = untilItStands(bench, 120000, [&] {
        track.push_back({frameIn(*bench), bench->robot.posture().joints});
    });
    if (!stands)
        QTest::qFail("it still moves", __FILE__, __LINE__);
    track.push_back(track.back());
    return track;
}

double tickS() {
    return double(controller::Clock::tickMs) / 1000;
}

double distanceToLine(const KDL::Vector& point, const KDL::Vector& from, const KDL::Vector& to) {
    const KDL::Vector along = (to - from) / (to - from).Norm();
    const KDL::Vector way = point - from;
    return (way - along * dot(way, along)).Norm();
}

double angleDeg(const KDL::Rotation& from, const KDL::Rotation& to) {
    KDL::Vector axis;
    return controller::degOf((from.Inverse() * to).GetRotAngle(axis));
}

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

RobotModel withSeven() {
    RobotModel seven = model();
    seven.joints.insert(2, {"roll", -170, 170, 150, 25, false});
    return seven;
}

RobotModel onATrack() {
    RobotModel track = model();
    track.externals = {{{"E1", 0, 6000, 1500, 3000, true}, {{0, -3000, 0, 0, 0, 0}, Mount::world}, 1}};
    track.foot = {{}, 0};
    return track;
}

} // namespace

Q_DECLARE_METATYPE(controller::Joints)
Q_DECLARE_METATYPE(controller::Pose)
Q_DECLARE_METATYPE(controller::RobotModel)

class TestLinearMove : public QObject {
    Q_OBJECT

private slots:
    void theTipGoesAlongTheLineAndTurnsEvenly_data() {
        QTest::addColumn<RobotModel>("model");
        QTest::addColumn<Pose>("way");
        for (const auto& [name, robot] : {std::make_pair("six", model()), std::make_pair("seven", withSeven()),
                                          std::make_pair("on a track", onATrack())}) {
            QTest::addRow("%s, along", name) << robot << Pose{150, -200, 80, 0, 0, 0};
            QTest::addRow("%s, and turning", name) << robot << Pose{-100, 150, 60, 25, -20, 15};
        }
    }

    void theTipGoesAlongTheLineAndTurnsEvenly() {
        QFETCH(RobotModel, model);
        QFETCH(Pose, way);
        Jogging bench(model);
        const KDL::Frame start = frameIn(bench);
        const Pose from = controller::poseOf(start);
        const Pose to{from.x + way.x, from.y + way.y, from.z + way.z, from.a + way.a, from.b + way.b, from.c + way.c};
        const KDL::Frame end = controller::frameOf(to);
        const Posture before = bench.robot.posture();
        QVERIFY(goLinear(&bench.robot, to));
        QCOMPARE(bench.robot.motion(), Robot::Motion::LinearMove);
        double offLine = 0;
        double offTurn = 0;
        const std::vector<Moment> track = trackOf(&bench);
        for (const Moment& moment : track) {
            offLine = std::fmax(offLine, distanceToLine(moment.frame.p, start.p, end.p));
            const double share = (moment.frame.p - start.p).Norm() / (end.p - start.p).Norm();
            const double turned = angleDeg(start.M, moment.frame.M) + angleDeg(moment.frame.M, end.M);
            offTurn = std::fmax(offTurn, std::abs(turned - angleDeg(start.M, end.M)));
            offTurn =
                std::fmax(offTurn, std::abs(angleDeg(start.M, moment.frame.M) - share * angleDeg(start.M, end.M)));
        }
        QVERIFY2(offLine < 1e-6, qPrintable(QString::number(offLine)));
        QVERIFY2(offTurn < 1e-5, qPrintable(QString::number(offTurn)));
        QVERIFY(track.size() > 40);
        QCOMPARE(bench.robot.stoppedBy(), "arrived");
        QVERIFY((frameIn(bench).p - end.p).Norm() < 1e-6);
        QCOMPARE(bench.robot.posture().externals, before.externals);
        if (model.joints.size() == 7)
            QCOMPARE(bench.joint(2), 25.0);
    }

    void theTipKeepsToItsSpeedAndAcceleration() {
        Jogging bench(model());
        const Pose from = bench.pose();
        QVERIFY(goLinear(&bench.robot, {from.x + 300, from.y, from.z + 100, from.a, from.b, from.c}, 400));
        const std::vector<Moment> track = trackOf(&bench);
        double fastest = 0;
        double hardest = 0;
        for (size_t tick = 1; tick + 1 < track.size(); ++tick) {
            const double speed = (track[tick].frame.p - track[tick - 1].frame.p).Norm() / tickS();
            const double next = (track[tick + 1].frame.p - track[tick].frame.p).Norm() / tickS();
            fastest = std::fmax(fastest, speed);
            hardest = std::fmax(hardest, std::abs(next - speed) / tickS());
        }
        QVERIFY2(std::abs(fastest - 400) < 1e-3, qPrintable(QString::number(fastest)));
        QVERIFY2(hardest < 4000.01 && hardest > 3900, qPrintable(QString::number(hardest)));
        // 316.2 mm at 400 a second, and 0.1 s to get there
        QCOMPARE(bench.clock.nowMs(), qint64(900));
    }

    void aToolThatOnlyTurnsHasASpeedOfItsOwn() {
        RobotModel slow = model();
        slow.linear.degPerS = 30;
        slow.linear.degPerS2 = 60;
        Jogging bench(slow);
        const Pose from = bench.pose();
        QVERIFY(goLinear(&bench.robot, {from.x, from.y, from.z, from.a + 30, from.b, from.c}));
        for (const Moment& moment : trackOf(&bench))
            QVERIFY((moment.frame.p - KDL::Vector(from.x, from.y, from.z)).Norm() < 1e-5);
        QCOMPARE(bench.clock.nowMs(), qint64(1500));
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne_data() {
        QTest::addColumn<int>("pieceMs");
        for (const int pieceMs : {1, 7, 20, 33, 250})
            QTest::addRow("%d ms", pieceMs) << pieceMs;
    }

    void manySmallStepsOfTheClockAreAsGoodAsOne() {
        QFETCH(int, pieceMs);
        Jogging whole(model());
        Jogging pieces(model());
        const Pose from = whole.pose();
        for (Jogging* bench : {&whole, &pieces}) {
            bench->clock.step(13);
            QVERIFY(goLinear(&bench->robot, {from.x + 150, from.y - 200, from.z + 80, from.a, from.b + 10, from.c}));
        }
        whole.clock.step(700);
        for (int doneMs = 0; doneMs < 700; doneMs += pieceMs)
            pieces.clock.step(qMin(pieceMs, 700 - doneMs));
        QVERIFY(pieces.robot.isMoving());
        QVERIFY(pieces.robot.posture() == whole.robot.posture());
    }

    void itStopsWhereTheArmCannotGoOn_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<Pose>("way");
        QTest::addColumn<double>("mmPerS");
        QTest::addColumn<QString>("by");
        QTest::addColumn<int>("code");
        QTest::newRow("an axis at its limit")
            << Joints{0, -20, 0, 0, 110, 0} << Pose{0, 0, 0, 0, -40, 0} << 250.0 << "limit A5" << int(MoveError::Limit);
        QTest::newRow("the first axis at its limit")
            << Joints{165, 0, 0, 0, 90, 0} << Pose{0, -800, 0, 0, 0, 0} << 400.0 << "limit A1" << int(MoveError::Limit);
        QTest::newRow("past axis 1, near to it") << Joints{60, -40, 40, 0, 90, 0} << Pose{-290, -600, 0, 0, 0, 0}
                                                 << 500.0 << "singularity" << int(MoveError::Singularity);
        QTest::newRow("past a straight wrist") << Joints{0, 0, 0, 80, 20, 0} << Pose{0, 300, 0, -60, 0, 0} << 600.0
                                               << "singularity" << int(MoveError::Singularity);
    }

    void itStopsWhereTheArmCannotGoOn() {
        QFETCH(Joints, joints);
        QFETCH(Pose, way);
        QFETCH(double, mmPerS);
        Jogging bench;
        bench.robot.setPosture(postureOf(joints));
        const Pose from = bench.pose();
        const KDL::Frame start = frameIn(bench);
        QSignalSpy failed(&bench.robot, &Robot::failed);
        const Pose to{from.x + way.x, from.y + way.y, from.z + way.z, from.a + way.a, from.b + way.b, from.c + way.c};
        QVERIFY(goLinear(&bench.robot, to, mmPerS));
        const std::vector<Moment> track = trackOf(&bench);
        QTEST(bench.robot.stoppedBy(), "by");
        QTEST(bench.robot.error().code, "code");
        QCOMPARE(failed.size(), 1);
        QCOMPARE(bench.noticed.size(), 1);
        QCOMPARE(bench.noticed.first().first().toString(), bench.robot.error().text);
        QVERIFY2(track.size() > 8, qPrintable(QString::number(track.size())));
        for (size_t tick = 1; tick < track.size(); ++tick) {
            for (size_t i = 0; i < 6; ++i) {
                const Axis& axis = bench.robot.model().joints.at(int(i));
                QVERIFY(track[tick].joints[i] <= axis.maximum + 1e-6 && track[tick].joints[i] >= axis.minimum - 1e-6);
                const double speed = std::abs(track[tick].joints[i] - track[tick - 1].joints[i]) / tickS();
                QVERIFY2(speed <= axis.speed, qPrintable(QStringLiteral("%1: %2").arg(axis.name).arg(speed)));
            }
        }
        if (std::abs(way.x) + std::abs(way.y) > 0)
            QVERIFY(distanceToLine(track.back().frame.p, start.p, controller::frameOf(to).p) < 1e-6);
    }

    void itBrakesBeforeThePlaceWhereItCannotGoOn() {
        Jogging bench;
        bench.robot.setPosture(postureOf({165, 0, 0, 0, 90, 0}));
        const Pose from = bench.pose();
        QVERIFY(goLinear(&bench.robot, {from.x, from.y - 800, from.z, from.a, from.b, from.c}, 400));
        double hardest = 0;
        bool hasBraked = false;
        KDL::Vector before = frameIn(bench).p;
        double speedBefore = 0;
        QVERIFY(untilItStands(&bench, 60000, [&] {
            const KDL::Vector now = frameIn(bench).p;
            const double speed = (now - before).Norm() / tickS();
            hardest = std::fmax(hardest, std::abs(speed - speedBefore) / tickS());
            hasBraked = hasBraked || bench.robot.isBraking();
            before = now;
            speedBefore = speed;
        }));
        QVERIFY(hasBraked);
        QVERIFY2(hardest < 4000.01, qPrintable(QString::number(hardest)));
        // It comes near.
        QVERIFY2(bench.joint(0) > 168 && bench.joint(0) <= 170, qPrintable(QString::number(bench.joint(0))));
    }

    void aTargetOutOfReachIsRefusedAtOnce() {
        Jogging bench;
        const Posture before = bench.robot.posture();
        QVERIFY(!goLinear(&bench.robot, {2500, 0, 800, 180, 0, 180}));
        QCOMPARE(bench.robot.error().code, int(MoveError::OutOfReach));
        QVERIFY(!goLinear(&bench.robot, {970, 0, 1100, 180, 0, 180}, 2001));
        QCOMPARE(bench.robot.error().code, int(MoveError::BadSpeed));
        QVERIFY(bench.robot.error().text.contains("at most 2 m/s"));
        bench.clock.step(1000);
        QVERIFY(bench.robot.posture() == before);
    }

    void theWayBetweenMayLeadOutOfReach() {
        Jogging bench;
        // From one side of the stretched arm to the other, the line goes through where the shoulder is.
        bench.robot.setPosture(postureOf({80, 20, 20, 0, 50, 0}));
        const Pose from = bench.pose();
        QVERIFY(goLinear(&bench.robot, {from.x, -from.y, from.z, from.a, from.b, from.c}, 300));
        QVERIFY(untilItStands(&bench));
        QVERIFY(bench.robot.error());
        QVERIFY2(bench.robot.stoppedBy() != "arrived", qPrintable(bench.robot.stoppedBy()));
        QVERIFY(std::abs(bench.pose().y) > 1);
    }

    // Half a metre beside axis 1, 150 degrees a second are 1309 mm a second.
    void anAxisMayTurnAsFastAsItCan_data() {
        QTest::addColumn<double>("mmPerS");
        QTest::addColumn<QString>("text");
        QTest::newRow("just not too fast") << 1270.0 << "";
        QTest::newRow("just too fast") << 1320.0
                                       << "The move cannot go on: A1 would have to turn too fast, near a singularity.";
    }

    void anAxisMayTurnAsFastAsItCan() {
        QFETCH(double, mmPerS);
        const controller::Kinematics kinematics(standardModel());
        const auto target = [](double y) {
            return controller::MoveTarget{controller::frameOf({500, y, 1000, 180, 0, 180}), "flange", "world"};
        };
        const controller::PostureChoice start = nearestPosture(kinematics, target(-700), standardModel().start());
        QVERIFY(!start.error);
        controller::LinearPath path(&kinematics, start.posture, target(700), mmPerS);
        QTEST(path.lookAheadTo(1).text, "text");
    }

    // At full speed the last of the way would be too fast for axis 1.
    void whereItSlowsDownItMayComeNearer() {
        RobotModel gentle = standardModel();
        gentle.linear.mmPerS2 = 200;
        const controller::Kinematics kinematics(gentle);
        const auto target = [](double y) {
            return controller::MoveTarget{controller::frameOf({150, y, 1300, 180, 60, 180}), "flange", "world"};
        };
        const controller::PostureChoice start = nearestPosture(kinematics, target(-800), gentle.start());
        QVERIFY(!start.error);
        controller::LinearPath toItsEnd(&kinematics, start.posture, target(0), 450);
        QCOMPARE(toItsEnd.lookAheadTo(1).text, QString());
        controller::LinearPath beyond(&kinematics, start.posture, target(800), 450);
        QCOMPARE(beyond.lookAheadTo(1).code, int(MoveError::Singularity));
    }

    void theWayBetweenMayLeadThroughTheHoleAroundTheShoulder_data() {
        QTest::addColumn<double>("shoulderOffset");
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("by");
        QTest::newRow("nothing reaches there") << 0.0 << 180.0 << "out of reach";
        QTest::newRow("turned about axis 1 it reaches there") << 150.0 << 330.0 << "singularity";
    }

    void theWayBetweenMayLeadThroughTheHoleAroundTheShoulder() {
        QFETCH(double, shoulderOffset);
        QFETCH(double, x);
        RobotModel free = standardModel();
        for (Axis& axis : free.joints) {
            axis.minimum = -350;
            axis.maximum = 350;
        }
        free.lengths.shoulderOffset = shoulderOffset;
        const controller::Kinematics kinematics(free);
        const auto target = [x](double z) {
            return controller::MoveTarget{controller::frameOf({x, 0, z, 0, 90, 0}), "flange", "world"};
        };
        const controller::PostureChoice start = nearestPosture(kinematics, target(1000), free.start());
        QVERIFY(!start.error);
        QVERIFY(!nearestPosture(kinematics, target(-100), free.start()).error);
        // So slowly no axis is too fast before.
        controller::LinearPath path(&kinematics, start.posture, target(-100), 1);
        QTEST(path.lookAheadTo(1).stoppedBy, "by");
    }

    void whereItStandsItArrivesAtOnce() {
        Jogging bench(model());
        QVERIFY(goLinear(&bench.robot, bench.pose()));
        bench.clock.step(20);
        QVERIFY(!bench.robot.isMoving());
        QCOMPARE(bench.robot.stoppedBy(), "arrived");
    }
};

QTEST_GUILESS_MAIN(TestLinearMove)
#include "tst_linearmove.moc"
