#include "controller/robot/pose.h"

#include "frames.h"

#include <QTest>

#include <random>

Q_DECLARE_METATYPE(controller::Pose)

using controller::frameOf;
using controller::Pose;
using controller::poseOf;
using controller::Quaternion;
using controller::quaternionOf;
using controller::radOf;
using KDL::Rotation;

namespace {

// Written out from the definitions, with nothing of what is tested.
Rotation ofEuler(const Pose& pose) {
    const double ca = std::cos(pose.a * M_PI / 180);
    const double sa = std::sin(pose.a * M_PI / 180);
    const double cb = std::cos(pose.b * M_PI / 180);
    const double sb = std::sin(pose.b * M_PI / 180);
    const double cc = std::cos(pose.c * M_PI / 180);
    const double sc = std::sin(pose.c * M_PI / 180);
    return {ca * cb,
            ca * sb * sc - sa * cc,
            ca * sb * cc + sa * sc,
            sa * cb,
            sa * sb * sc + ca * cc,
            sa * sb * cc - ca * sc,
            -sb,
            cb * sc,
            cb * cc};
}

Rotation ofQuaternion(const Quaternion& q) {
    const double w = q.q1;
    const double x = q.q2;
    const double y = q.q3;
    const double z = q.q4;
    return {1 - 2 * (y * y + z * z), 2 * (x * y - w * z),     2 * (x * z + w * y),
            2 * (x * y + w * z),     1 - 2 * (x * x + z * z), 2 * (y * z - w * x),
            2 * (x * z - w * y),     2 * (y * z + w * x),     1 - 2 * (x * x + y * y)};
}

} // namespace

class TestPose : public QObject {
    Q_OBJECT

private slots:
    void theAnglesTurnAboutZThenTheNewYThenTheNewestX_data() {
        QTest::addColumn<Pose>("pose");
        QTest::addColumn<QString>("xGoes");
        QTest::addColumn<QString>("zGoes");
        QTest::newRow("none") << Pose{} << "1 0 0"
                              << "0 0 1";
        QTest::newRow("a") << Pose{0, 0, 0, 90, 0, 0} << "0 1 0"
                           << "0 0 1";
        QTest::newRow("b") << Pose{0, 0, 0, 0, 90, 0} << "0 0 -1"
                           << "1 0 0";
        QTest::newRow("c") << Pose{0, 0, 0, 0, 0, 90} << "1 0 0"
                           << "0 -1 0";
        QTest::newRow("a, then b about the new Y") << Pose{0, 0, 0, 90, 90, 0} << "0 0 -1"
                                                   << "0 1 0";
        QTest::newRow("a, then c about the new X") << Pose{0, 0, 0, 90, 0, 90} << "0 1 0"
                                                   << "1 0 0";
        QTest::newRow("b, then c about the new X") << Pose{0, 0, 0, 0, 90, 90} << "0 0 -1"
                                                   << "0 -1 0";
    }

    void theAnglesTurnAboutZThenTheNewYThenTheNewestX() {
        QFETCH(Pose, pose);
        const KDL::Frame frame = frameOf(pose);
        QTEST(text(frame.M.UnitX()), "xGoes");
        QTEST(text(frame.M.UnitZ()), "zGoes");
    }

    void aPoseComesBackFromItsFrame_data() {
        QTest::addColumn<Pose>("pose");
        QTest::addColumn<QString>("back");
        QTest::newRow("place") << Pose{970, -0.25, 1155.5, 0, 0, 0} << "970 -0.25 1155.5 / 0 0 0";
        QTest::newRow("angles") << Pose{0, 0, 0, 30, -40, 50} << "0 0 0 / 30 -40 50";
        QTest::newRow("half turns") << Pose{0, 0, 0, 180, 0, 180} << "0 0 0 / 180 0 180";
        QTest::newRow("-180 is 180") << Pose{0, 0, 0, -180, 0, 0} << "0 0 0 / 180 0 0";
        QTest::newRow("no -0") << Pose{-0.0, 0, 0, -0.0, -0.0, -0.0} << "0 0 0 / 0 0 0";
        QTest::newRow("more than a turn") << Pose{0, 0, 0, 370, 0, 0} << "0 0 0 / 10 0 0";
        QTest::newRow("b beyond 90") << Pose{0, 0, 0, 0, 100, 0} << "0 0 0 / 180 80 180";
        QTest::newRow("upright") << Pose{0, 0, 0, 0, 90, 25} << "0 0 0 / 0 90 25";
        QTest::newRow("upright, turned") << Pose{0, 0, 0, 25, 90, 0} << "0 0 0 / 0 90 -25";
        QTest::newRow("upside down") << Pose{0, 0, 0, 25, -90, 10} << "0 0 0 / 0 -90 35";
    }

    void aPoseComesBackFromItsFrame() {
        QFETCH(Pose, pose);
        QTEST(text(poseOf(frameOf(pose))), "back");
    }

    void quaternionAndEulerAnglesAreTheSameRotation_data() {
        QTest::addColumn<Pose>("pose");
        for (const double b : {0.0, 90.0, -90.0, 89.9999, 89.999999, 90 - 1e-8, 90 - 1e-10, -90 + 1e-9}) {
            for (const double a : {0.0, 37.0, 180.0, -90.0}) {
                for (const double c : {0.0, 90.0, -179.999999, 180.0})
                    QTest::addRow("%.12g %.12g %.12g", a, b, c) << Pose{0, 0, 0, a, b, c};
            }
        }
        std::mt19937 random(20);
        std::uniform_real_distribution<double> angle(-180, 180);
        for (int i = 0; i < 200; ++i) {
            const Pose pose{0, 0, 0, angle(random), angle(random), angle(random)};
            QTest::addRow("%.12g %.12g %.12g", pose.a, pose.b, pose.c) << pose;
        }
    }

    void quaternionAndEulerAnglesAreTheSameRotation() {
        QFETCH(Pose, pose);
        const Rotation wanted = ofEuler(pose);
        const KDL::Frame frame = frameOf(pose);
        QVERIFY(apart(frame.M, wanted) < 1e-12);
        const Rotation euler = ofEuler(poseOf(frame));
        const Rotation quaternion = ofQuaternion(quaternionOf(frame.M));
        QVERIFY2(apart(euler, wanted) < 1e-10, qPrintable(QString::number(apart(euler, wanted))));
        QVERIFY2(apart(quaternion, wanted) < 1e-10, qPrintable(QString::number(apart(quaternion, wanted))));
        QVERIFY(apart(quaternion, euler) < 1e-9);
    }

    void aQuaternionHasNoNegativeRealPart() {
        for (int degrees = -360; degrees <= 360; degrees += 15) {
            const Quaternion q = quaternionOf(Rotation::RotZ(radOf(degrees)));
            QVERIFY(q.q1 >= 0);
            QVERIFY(std::abs(q.q1 * q.q1 + q.q2 * q.q2 + q.q3 * q.q3 + q.q4 * q.q4 - 1) < 1e-11);
        }
    }

    void ofTwoQuaternionsOfAHalfTurnTheFirstPartIsPositive_data() {
        QTest::addColumn<double>("degrees");
        QTest::newRow("forwards") << 180.0;
        QTest::newRow("backwards") << -180.0;
        QTest::newRow("a little less") << 180 - 1e-13;
        QTest::newRow("a little more") << 180 + 1e-13;
    }

    void ofTwoQuaternionsOfAHalfTurnTheFirstPartIsPositive() {
        QFETCH(double, degrees);
        const Quaternion q = quaternionOf(Rotation::RotY(radOf(degrees)));
        QCOMPARE(q.q1, 0.0);
        QCOMPARE(q.q3, 1.0);
        QVERIFY(!std::signbit(q.q1) && !std::signbit(q.q2) && !std::signbit(q.q4));
    }

    void theFirstPartThatIsNot0IsPositiveInAnyDirection() {
        const Quaternion q = quaternionOf(Rotation::Rot(KDL::Vector(-1, 2, 0), M_PI));
        QCOMPARE(q.q1, 0.0);
        QVERIFY(q.q2 > 0.4 && q.q3 < -0.8);
    }
};

QTEST_GUILESS_MAIN(TestPose)
#include "tst_pose.moc"
