#include "controller/robot/arm.h"

#include "frames.h"

#include <QTest>

Q_DECLARE_METATYPE(controller::Joints)

using controller::Arm;
using controller::ArmLengths;
using controller::Joints;

namespace {

const ArmLengths lengths{450, 150, 700, 115, 820, 110};
const double upDown = 450 + 700 + 115;

} // namespace

class TestArm : public QObject {
    Q_OBJECT

private slots:
    void theFlangeIsWhereTheLengthsSay_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("zGoes");
        QTest::addColumn<QString>("xGoes");
        // upper arm upright, forearm to the front
        QTest::newRow("zeros") << Joints{} << "1080 0 1265"
                               << "1 0 0"
                               << "0 0 -1";
        QTest::newRow("A1") << Joints{90} << "0 1080 1265"
                            << "0 1 0"
                            << "0 0 -1";
        // upper arm to the front, forearm down
        QTest::newRow("A2") << Joints{0, 90} << "965 0 -480"
                            << "0 0 -1"
                            << "-1 0 0";
        // upper arm upright, forearm down
        QTest::newRow("A3") << Joints{0, 0, 90} << "265 0 220"
                            << "0 0 -1"
                            << "-1 0 0";
        // forearm up: stretched to the top
        QTest::newRow("A3 back") << Joints{0, 0, -90} << "35 0 2080"
                                 << "0 0 1"
                                 << "1 0 0";
        QTest::newRow("A5") << Joints{0, 0, 0, 0, 90} << "970 0 1155"
                            << "0 0 -1"
                            << "-1 0 0";
        QTest::newRow("A4 and A5") << Joints{0, 0, 0, 90, 90} << "970 110 1265"
                                   << "0 1 0"
                                   << "-1 0 0";
        QTest::newRow("A6") << Joints{0, 0, 0, 0, 0, 90} << "1080 0 1265"
                            << "1 0 0"
                            << "0 1 0";
        QTest::newRow("A1 and A6") << Joints{90, 0, 0, 0, 0, 90} << "0 1080 1265"
                                   << "0 1 0"
                                   << "-1 0 0";
        QTest::newRow("folded") << Joints{0, 90, -90} << "1780 0 565"
                                << "1 0 0"
                                << "0 0 -1";
    }

    void theFlangeIsWhereTheLengthsSay() {
        QFETCH(Joints, joints);
        const KDL::Frame flange = Arm(lengths, 6).flange(joints);
        QTEST(text(flange.p), "place");
        QTEST(text(flange.M.UnitZ()), "zGoes");
        QTEST(text(flange.M.UnitX()), "xGoes");
    }

    void theThirdOfSevenTurnsTheUpperArm_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<QString>("place");
        QTest::newRow("zeros") << Joints{} << "1080 0 1265";
        QTest::newRow("A3") << Joints{0, 0, 90} << "150 930 1265";
        QTest::newRow("A2 and A3") << Joints{0, 90, 90} << "965 930 450";
        QTest::newRow("A3 and A4") << Joints{0, 0, 90, 90} << "150 115 220";
        QTest::newRow("A6") << Joints{0, 0, 0, 0, 0, 90} << "970 0 1155";
    }

    void theThirdOfSevenTurnsTheUpperArm() {
        QFETCH(Joints, joints);
        QTEST(text(Arm(lengths, 7).flange(joints).p), "place");
    }

    void theCentreOfTheWristIsWhereItsAxesMeet_data() {
        QTest::addColumn<Joints>("joints");
        QTest::addColumn<QString>("place");
        QTest::newRow("zeros") << Joints{} << "970 0 1265";
        QTest::newRow("the wrist does not move it") << Joints{0, 0, 0, 40, 50, 60} << "970 0 1265";
        QTest::newRow("A1 and A2") << Joints{90, 90} << "0 965 -370";
    }

    void theCentreOfTheWristIsWhereItsAxesMeet() {
        QFETCH(Joints, joints);
        QTEST(text(Arm(lengths, 6).wristCentre(joints)), "place");
    }

    void jointsNearbyAreFoundForAFlange_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<Joints>("joints");
        QTest::newRow("bent") << 6 << Joints{10, 20, 30, 40, 50, 60};
        QTest::newRow("tool down") << 6 << Joints{0, 0, 0, 0, 90, 0};
        QTest::newRow("to the back") << 6 << Joints{120, -60, 40, -30, -60, 200};
        QTest::newRow("seven") << 7 << Joints{10, 20, 35, 40, -30, 60, -70};
    }

    void jointsNearbyAreFoundForAFlange() {
        QFETCH(int, count);
        QFETCH(Joints, joints);
        const Arm arm(lengths, count);
        Joints found = joints;
        for (int i = 0; i < count; ++i)
            found[size_t(i)] += count == 7 && i == 2 ? 0 : (i % 2 == 0 ? 2 : -2);
        const Joints from = found;
        QVERIFY(arm.reach(arm.flange(joints), &found));
        QVERIFY(found != from);
        for (size_t i = 0; i < joints.size(); ++i)
            QVERIFY2(std::abs(found[i] - joints[i]) < 1e-6, qPrintable(QString::number(found[i], 'g', 12)));
    }

    void theThirdOfSevenStaysWhereItIs() {
        const Arm arm(lengths, 7);
        Joints found{0, 10, 25, 30, 0, 50, 0};
        KDL::Frame flange = arm.flange(found);
        flange.p += KDL::Vector(5, -5, 5);
        QVERIFY(arm.reach(flange, &found));
        QCOMPARE(found[2], 25.0);
        QVERIFY((arm.flange(found).p - flange.p).Norm() < 1e-5);
    }

    void whatIsTooFarIsNotReached() {
        const Arm arm(lengths, 6);
        const Joints from{0, 10, 20, 30, 40, 50};
        Joints found = from;
        KDL::Frame flange = arm.flange(from);
        flange.p = KDL::Vector(1900, 0, upDown);
        QVERIFY(!arm.reach(flange, &found));
        QVERIFY(found == from);
    }
};

QTEST_GUILESS_MAIN(TestArm)
#include "tst_arm.moc"
