#include "controller/robot/kinematics.h"

#include "frames.h"

#include <QTest>

Q_DECLARE_METATYPE(controller::Posture)

using controller::Kinematics;
using controller::Mount;
using controller::Pose;
using controller::poseOf;
using controller::Posture;
using controller::RobotModel;
using controller::standardModel;

namespace {

/// A track along Y, and a positioner that tilts about Y and carries a table that turns about Z.
RobotModel model() {
    RobotModel model = standardModel();
    model.externals = {{{"E1", 0, 3000, 500, 0, true}, {{}, Mount::world}, 1},
                       {{"E2", -90, 90, 60, 0, false}, {{1000, 0, 600, 0, 0, 0}, Mount::world}, 1},
                       {{"E3", -360, 360, 90, 0, false}, {{0, 0, 100, 0, 0, 0}, 1}, 2}};
    model.tools.insert("gripper", {10, 20, 180, 0, 0, 0});
    model.tools.insert("bent", {0, 0, 100, 0, 90, 0});
    model.wobjs.insert("table", {{800, -300, 400, 90, 0, 0}, Mount::world});
    model.wobjs.insert("turned", {{0, 0, 50, 0, 0, 0}, 2});
    model.wobjs.insert("tilted", {{}, 1});
    return model;
}

Posture toolDown(double e1 = 0, double e2 = 0, double e3 = 0) {
    Posture posture;
    posture.joints[4] = 90;
    posture.externals = {e1, e2, e3};
    return posture;
}

} // namespace

class TestKinematics : public QObject {
    Q_OBJECT

private slots:
    void aPoseIsThatOfTheToolInTheWorkObject_data() {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("wobj");
        QTest::addColumn<Posture>("posture");
        QTest::addColumn<QString>("pose");
        // The flange is at 970, 0, 1155; its Z goes down and its X to the back.
        QTest::newRow("flange in world") << "flange"
                                         << "world" << toolDown() << "970 0 1155 / 180 0 180";
        QTest::newRow("tool") << "gripper"
                              << "world" << toolDown() << "960 20 975 / 180 0 180";
        QTest::newRow("bent tool") << "bent"
                                   << "world" << toolDown() << "970 0 1055 / 0 -90 0";
        // 170 to the front, 300 to the left and 755 up of it; it is turned to the left
        QTest::newRow("work object") << "flange"
                                     << "table" << toolDown() << "300 -170 755 / 90 0 180";
        QTest::newRow("both") << "gripper"
                              << "table" << toolDown() << "320 -160 575 / 90 0 180";
    }

    void aPoseIsThatOfTheToolInTheWorkObject() {
        QFETCH(QString, tool);
        QFETCH(QString, wobj);
        QFETCH(Posture, posture);
        QTEST(text(poseOf(Kinematics(model()).pose(posture, tool, wobj))), "pose");
    }

    void theFootMayStandOnATrack() {
        RobotModel onTrack = model();
        onTrack.foot = {{0, 0, 250, 0, 0, 0}, 0};
        const Kinematics kinematics(onTrack);
        QCOMPARE(text(poseOf(kinematics.pose(toolDown(1200), "flange", "world"))), "970 1200 1405 / 180 0 180");
        QCOMPARE(text(poseOf(kinematics.pose(toolDown(0), "flange", "world"))), "970 0 1405 / 180 0 180");
    }

    void aWorkObjectMayStandOnAPositioner_data() {
        QTest::addColumn<QString>("wobj");
        QTest::addColumn<Posture>("posture");
        QTest::addColumn<QString>("pose");
        QTest::newRow("at rest") << "tilted" << toolDown() << "-30 0 555 / 180 0 180";
        // Its Z is the world's X then, its X the world's -Z.
        QTest::newRow("tilted") << "tilted" << toolDown(0, 90) << "-555 0 -30 / 180 90 180";
        QTest::newRow("on the second axis") << "turned" << toolDown() << "-30 0 405 / 180 0 180";
        QTest::newRow("turned") << "turned" << toolDown(0, 0, 90) << "0 30 405 / 90 0 180";
        QTest::newRow("tilted and turned") << "turned" << toolDown(0, 90, 180) << "555 0 -180 / 0 90 180";
        QTest::newRow("not on the track") << "turned" << toolDown(700) << "-30 0 405 / 180 0 180";
    }

    void aWorkObjectMayStandOnAPositioner() {
        QFETCH(QString, wobj);
        QFETCH(Posture, posture);
        const Kinematics kinematics(model());
        const KDL::Frame got = kinematics.pose(posture, "flange", wobj);
        QFETCH(QString, pose);
        const QStringList wanted = pose.split(' ');
        const KDL::Frame frame =
            controller::frameOf({wanted[0].toDouble(), wanted[1].toDouble(), wanted[2].toDouble(), wanted[4].toDouble(),
                                 wanted[5].toDouble(), wanted[6].toDouble()});
        QVERIFY2(KDL::Equal(got, frame, 1e-9), qPrintable(text(poseOf(got))));
    }

    void aPoseIsReachedWithToolAndWorkObject() {
        RobotModel onTrack = model();
        onTrack.foot = {{0, 0, 250, 30, 0, 0}, 0};
        const Kinematics kinematics(onTrack);
        Posture there = toolDown(500, 20, 30);
        there.joints = {5, 20, 15, 10, 60, -20, 0};
        const KDL::Frame pose = kinematics.pose(there, "bent", "turned");
        Posture found = there;
        for (size_t i = 0; i < 6; ++i)
            found.joints[i] += 3;
        QVERIFY(kinematics.reach(pose, "bent", "turned", &found));
        QCOMPARE(found.externals, there.externals);
        for (size_t i = 0; i < 6; ++i)
            QVERIFY(std::abs(found.joints[i] - there.joints[i]) < 1e-6);
    }

    void allPosturesAreFoundWithTheExternalAxesWhereTheyAre() {
        RobotModel onTrack = model();
        onTrack.foot = {{0, 0, 250, 30, 0, 0}, 0};
        const Kinematics kinematics(onTrack);
        Posture there = toolDown(500, 20, 30);
        there.joints = {5, 20, 15, 10, 60, -20, 0};
        const KDL::Frame pose = kinematics.pose(there, "bent", "turned");
        const std::vector<Posture> postures = kinematics.postures(pose, "bent", "turned", there);
        QCOMPARE(postures.size(), size_t(8));
        for (const Posture& posture : postures) {
            QCOMPARE(posture.externals, there.externals);
            QVERIFY(KDL::Equal(kinematics.pose(posture, "bent", "turned"), pose, 1e-4));
        }
    }

    void namesThatAreNotThereAreNamed() {
        const Kinematics kinematics(model());
        QCOMPARE(kinematics.unknown("gripper", "table"), QString());
        QCOMPARE(kinematics.unknown("grip", "table"),
                 "The controller knows no tool \"grip\". There are \"bent\", \"flange\", \"gripper\", "
                 "\"tool0\".");
        QCOMPARE(kinematics.unknown("gripper", ""), "The controller knows no work object \"\". There are \"table\", "
                                                    "\"tilted\", \"turned\", \"wobj0\", \"world\".");
    }
};

QTEST_GUILESS_MAIN(TestKinematics)
#include "tst_kinematics.moc"
