#include "moves.h"

#include "controller/robot/posturechoice.h"

#include <QTest>

using controller::Configuration;
using controller::configurationOf;
using controller::Joints;
using controller::Kinematics;
using controller::MoveError;
using controller::MoveTarget;
using controller::Posture;
using controller::PostureChoice;
using controller::RobotModel;
using controller::standardModel;

namespace {

/// An arm whose joints can go around.
RobotModel free() {
    RobotModel model = standardModel();
    for (controller::Axis& axis : model.joints) {
        axis.minimum = -350;
        axis.maximum = 350;
    }
    return model;
}

MoveTarget targetOf(const Kinematics& kinematics, const Joints& joints) {
    return {kinematics.pose(postureOf(joints), "flange", "world"), "flange", "world"};
}

double apart(const Posture& posture, const Joints& joints) {
    double most = 0;
    for (size_t i = 0; i < joints.size(); ++i)
        most = std::fmax(most, std::abs(posture.joints[i] - joints[i]));
    return most;
}

} // namespace

Q_DECLARE_METATYPE(controller::Joints)

class TestPostureChoice : public QObject {
    Q_OBJECT

private slots:
    void theOneOfTheConfigurationIsTaken_data() {
        QTest::addColumn<Joints>("joints");
        QTest::newRow("as it stands") << Joints{10, 20, 30, 40, 50, 60};
        QTest::newRow("wrist flipped") << Joints{10, 20, 30, -140, -50, -120};
        QTest::newRow("arm to the back") << Joints{-160, -100, 60, 40, 50, 60};
        QTest::newRow("elbow down") << Joints{10, 100, -200, 40, 50, 60};
        QTest::newRow("elbow down, to the back, flipped") << Joints{170, -20, -150, 100, -30, -60};
        QTest::newRow("a turn more") << Joints{10, 20, 30, 40, 50, 330};
        QTest::newRow("two turns more") << Joints{300, 20, 30, -310, 50, 60};
        QTest::newRow("on the border of a quadrant") << Joints{0, 0, 0, 0, 90, 180};
        QTest::newRow("zeros: the wrist is stretched") << Joints{};
        QTest::newRow("stretched and turned") << Joints{10, 20, 30, 140, 0, -100};
    }

    void theOneOfTheConfigurationIsTaken() {
        QFETCH(Joints, joints);
        const Kinematics kinematics(free());
        const MoveTarget target = targetOf(kinematics, joints);
        const Configuration wanted = configurationOf(kinematics, postureOf(joints));
        const PostureChoice choice = postureOf(kinematics, target, wanted, postureOf({45, 10, 10, 20, 70, 10}));
        QVERIFY2(!choice.error, qPrintable(choice.error.text));
        QVERIFY(KDL::Equal(kinematics.pose(choice.posture, "flange", "world"), target.pose, 1e-4));
        QCOMPARE(hasBranches(kinematics, choice.posture, wanted.branches), true);
        // Where the wrist is stretched there are more than one.
        if (std::abs(joints[4]) > 0)
            QVERIFY2(apart(choice.posture, joints) < 1e-3, qPrintable(QString::number(apart(choice.posture, joints))));
        for (size_t i = 0; i < 6; ++i) {
            const double centre = wanted.quadrants[i] * 90 + 45;
            QVERIFY(std::abs(choice.posture.joints[i] - centre) < 45.011);
        }
    }

    void everyBranchIsAnotherPosture() {
        const Kinematics kinematics(free());
        const Joints joints{10, 20, 30, 40, 50, 60};
        const MoveTarget target = targetOf(kinematics, joints);
        const std::vector<Posture> all = kinematics.postures(target.pose, "flange", "world", postureOf(joints));
        QCOMPARE(all.size(), size_t(8));
        QSet<int> branches;
        for (const Posture& posture : all) {
            const Configuration configuration = configurationOf(kinematics, posture);
            branches.insert(configuration.branches);
            const PostureChoice choice = postureOf(kinematics, target, configuration, postureOf(joints));
            QVERIFY(apart(choice.posture, posture.joints) < 1e-6);
        }
        QCOMPARE(branches.size(), 8);
    }

    void aConfigurationThatTheTargetHasNotIsAnError_data() {
        QTest::addColumn<int>("joint");
        QTest::addColumn<int>("quadrant");
        QTest::newRow("another quadrant") << 1 << 1;
        QTest::newRow("a joint that is not there") << 6 << 1;
        QTest::newRow("another branch") << -1 << int(Configuration::WristFlipped);
    }

    void aConfigurationThatTheTargetHasNotIsAnError() {
        QFETCH(int, joint);
        QFETCH(int, quadrant);
        const Kinematics kinematics(standardModel());
        const Joints joints{10, 20, 30, 40, 50, 60};
        Configuration wanted = configurationOf(kinematics, postureOf(joints));
        (joint < 0 ? wanted.branches : wanted.quadrants.at(size_t(joint))) = quadrant;
        const PostureChoice choice = postureOf(kinematics, targetOf(kinematics, joints), wanted, postureOf(joints));
        QCOMPARE(choice.error.code, int(MoveError::NoSuchPosture));
        QVERIFY(choice.error.text.contains("\"point.conf\""));
    }

    void aConfigurationPastALimitNamesTheAxis() {
        const Joints joints{10, 20, 30, 40, 50, 60};
        const Kinematics kinematics(free());
        const MoveTarget target = targetOf(kinematics, joints);
        RobotModel narrow = free();
        narrow.joints[3].maximum = 39;
        const Configuration wanted = configurationOf(kinematics, postureOf(joints));
        const PostureChoice choice = postureOf(Kinematics(narrow), target, wanted, postureOf({}));
        QCOMPARE(choice.error.code, int(MoveError::Limit));
        QVERIFY(choice.error.text.contains("A4"));
    }

    void theNearestIsTheOneThatIsReachedFirst() {
        const Kinematics kinematics(free());
        const MoveTarget target = targetOf(kinematics, {10, 20, 30, 40, 50, 60});
        const PostureChoice flipped = nearestPosture(kinematics, target, postureOf({10, 20, 30, -140, -50, -120}));
        QVERIFY(apart(flipped.posture, {10, 20, 30, -140, -50, -120}) < 1e-5);
        const PostureChoice aTurnOn = nearestPosture(kinematics, target, postureOf({0, 0, 0, 30, 60, -310}));
        QVERIFY(apart(aTurnOn.posture, {10, 20, 30, 40, 50, -300}) < 1e-5);
    }

    void theNearestGoesTheOtherWayRoundWhereALimitIs_data() {
        QTest::addColumn<double>("present");
        QTest::addColumn<double>("wanted");
        // 370 and -370 would be nearer and are past the limits of 360.
        QTest::newRow("upper") << 350.0 << 10.0;
        QTest::newRow("lower") << -350.0 << -10.0;
    }

    void theNearestGoesTheOtherWayRoundWhereALimitIs() {
        QFETCH(double, present);
        QFETCH(double, wanted);
        RobotModel model = standardModel();
        model.joints[4].minimum = 0; // no flipped wrist
        const Kinematics kinematics(model);
        const MoveTarget target = targetOf(kinematics, {0, 0, 20, 0, 60, wanted});
        const PostureChoice choice = nearestPosture(kinematics, target, postureOf({0, 0, 20, 0, 60, present}));
        QVERIFY2(!choice.error, qPrintable(choice.error.text));
        QVERIFY(apart(choice.posture, {0, 0, 20, 0, 60, wanted}) < 1e-5);
    }

    void theDustOfTheSearchDoesNotLeadPastALimit() {
        const Kinematics kinematics(standardModel());
        const Joints atLimits{170, -90, 155, -190, 125, 360};
        const Configuration wanted = configurationOf(kinematics, postureOf(atLimits));
        const PostureChoice choice =
            postureOf(kinematics, targetOf(kinematics, atLimits), wanted, postureOf({160, -80, 150, -180, 120, 350}));
        QVERIFY2(!choice.error, qPrintable(choice.error.text));
        for (size_t i = 0; i < 6; ++i) {
            const controller::Axis& axis = kinematics.model().joints.at(int(i));
            QVERIFY(choice.posture.joints[i] >= axis.minimum && choice.posture.joints[i] <= axis.maximum);
        }
    }

    void outOfReachIsOutOfReach() {
        const Kinematics kinematics(standardModel());
        const MoveTarget far{KDL::Frame(KDL::Vector(3000, 0, 0)), "flange", "world"};
        QCOMPARE(nearestPosture(kinematics, far, {}).error.code, int(MoveError::OutOfReach));
        QCOMPARE(postureOf(kinematics, far, {}, {}).error.code, int(MoveError::OutOfReach));
    }
};

QTEST_GUILESS_MAIN(TestPostureChoice)
#include "tst_posturechoice.moc"
