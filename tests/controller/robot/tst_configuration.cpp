#include "controller/robot/configuration.h"

#include <QTest>

Q_DECLARE_METATYPE(controller::Joints)

using controller::Configuration;
using controller::configurationOf;
using controller::Joints;
using controller::Kinematics;
using controller::Posture;
using controller::RobotModel;
using controller::standardModel;

namespace {

RobotModel sevenJoints() {
    RobotModel model = standardModel();
    model.joints.insert(2, {"roll", -170, 170, 100, 0, false});
    return model;
}

QString quadrants(const Configuration& configuration) {
    QStringList texts;
    for (const int quadrant : configuration.quadrants)
        texts << QString::number(quadrant);
    return texts.join(' ');
}

} // namespace

class TestConfiguration : public QObject {
    Q_OBJECT

private slots:
    void aQuadrantIsTheAngleOver90RoundedDown_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<QString>("quadrants");
        QTest::newRow("zeros") << Joints{} << "0 0 0 0 0 0 0";
        QTest::newRow("edges") << Joints{89.999, 90, 179.999, 180, -0.001, -90, -90.001} << "0 1 1 2 -1 -1 -2";
        QTest::newRow("turns") << Joints{360, -360, 0, 0, 0, 359, 0} << "4 -4 0 0 0 3 0";
        QTest::newRow("dust does not count") << Joints{-1e-12, 90 - 1e-12} << "0 1 0 0 0 0 0";
    }

    void aQuadrantIsTheAngleOver90RoundedDown() {
        QFETCH(Joints, joints);
        Posture posture;
        posture.joints = joints;
        QTEST(quadrants(configurationOf(Kinematics(standardModel()), posture)), "quadrants");
    }

    void theBranchSaysHowTheArmIsBent_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<int>("branches");
        QTest::newRow("zeros") << Joints{} << 0;
        QTest::newRow("wrist below 0") << Joints{0, 0, 0, 0, -10} << 4;
        QTest::newRow("elbow down") << Joints{0, 60, -100} << 2;
        // The line of the forearm is straight over that of the upper arm at about -82 degrees.
        QTest::newRow("just before stretched") << Joints{0, 60, -81} << 0;
        QTest::newRow("just beyond stretched") << Joints{0, 60, -83} << 2;
        QTest::newRow("to the back") << Joints{0, -90, -60} << 1;
        QTest::newRow("to the back, A1 turned") << Joints{135, -90, -60} << 1;
        QTest::newRow("to the front, A1 turned") << Joints{-160} << 0;
        QTest::newRow("all") << Joints{0, -90, -100, 0, -5} << 7;
    }

    void theBranchSaysHowTheArmIsBent() {
        QFETCH(Joints, joints);
        Posture posture;
        posture.joints = joints;
        QTEST(configurationOf(Kinematics(standardModel()), posture).branches, "branches");
    }

    void onTheBorderBothBranchesHold_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<int>("branches");
        QTest::addColumn<bool>("holds");
        QTest::newRow("its own") << Joints{0, -90, -100, 0, -5} << 7 << true;
        QTest::newRow("not to the front") << Joints{0, -90, -100, 0, -5} << 6 << false;
        QTest::newRow("not the elbow up") << Joints{0, -90, -100, 0, -5} << 5 << false;
        QTest::newRow("not the other wrist") << Joints{0, -90, -100, 0, -5} << 3 << false;
        QTest::newRow("stretched wrist") << Joints{0, 20, 0, 0, 0} << 0 << true;
        QTest::newRow("stretched wrist, flipped") << Joints{0, 20, 0, 0, 0.001} << 4 << true;
        QTest::newRow("bent wrist, flipped") << Joints{0, 20, 0, 0, 0.1} << 4 << false;
    }

    void onTheBorderBothBranchesHold() {
        QFETCH(Joints, joints);
        QFETCH(int, branches);
        Posture posture;
        posture.joints = joints;
        QTEST(hasBranches(Kinematics(standardModel()), posture, branches), "holds");
    }

    void theElbowIsTheThirdOfSeven() {
        Posture posture;
        posture.joints = {0, 10, 25, 30, 0, -5, 0};
        const Configuration seven = configurationOf(Kinematics(sevenJoints()), posture);
        QCOMPARE(seven.elbow, 25.0);
        QCOMPARE(seven.branches, 4);
        QCOMPARE(configurationOf(Kinematics(standardModel()), posture).elbow, 0.0);
    }
};

QTEST_GUILESS_MAIN(TestConfiguration)
#include "tst_configuration.moc"
