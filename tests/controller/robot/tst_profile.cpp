#include "controller/robot/profile.h"

#include <QTest>

#include <cmath>

using controller::Profile;
using controller::Progress;

class TestProfile : public QObject {
    Q_OBJECT

private slots:
    void itLastsAsLongAsItsLimitsWant_data() {
        QTest::addColumn<double>("length");
        QTest::addColumn<double>("speed");
        QTest::addColumn<double>("acceleration");
        QTest::addColumn<double>("seconds");
        // 1 s and 1 m each to speed up and slow down, 4 s between
        QTest::newRow("trapezoid") << 10.0 << 2.0 << 2.0 << 6.0;
        QTest::newRow("just reaches its speed") << 2.0 << 2.0 << 2.0 << 2.0;
        QTest::newRow("too short for its speed") << 0.5 << 2.0 << 2.0 << 1.0;
        QTest::newRow("nowhere") << 0.0 << 2.0 << 2.0 << 0.0;
    }

    void itLastsAsLongAsItsLimitsWant() {
        QFETCH(double, length);
        QFETCH(double, speed);
        QFETCH(double, acceleration);
        QFETCH(double, seconds);
        const Profile profile = Profile::over(length, speed, acceleration);
        QCOMPARE(profile.seconds(), seconds);
        QCOMPARE(profile.end(), length);
        QCOMPARE(profile.after(seconds / 2).at, length / 2);
        QCOMPARE(profile.after(seconds + 1).at, length);
        QCOMPARE(profile.after(seconds + 1).speed, 0.0);
        QCOMPARE(profile.after(-1).at, 0.0);
    }

    void itKeepsToItsLimits_data() { itLastsAsLongAsItsLimitsWant_data(); }

    void itKeepsToItsLimits() {
        QFETCH(double, length);
        QFETCH(double, speed);
        QFETCH(double, acceleration);
        const Profile profile = Profile::over(length, speed, acceleration);
        const double every = 0.0137;
        double before = 0;
        double speedBefore = 0;
        for (double seconds = every; seconds < profile.seconds() + 1; seconds += every) {
            const double at = profile.after(seconds).at;
            const double speedNow = (at - before) / every;
            QVERIFY(at >= before && speedNow <= speed * (1 + 1e-9));
            QVERIFY(std::abs(speedNow - speedBefore) <= acceleration * every * (1 + 1e-9) + 1e-9);
            before = at;
            speedBefore = speedNow;
        }
        QCOMPARE(before, length);
    }

    void brakingGoesOnWhereItIs() {
        const Profile profile = Profile::over(10, 2, 2);
        const Progress now = profile.after(3);
        QCOMPARE(now.speed, 2.0);
        const Profile braking = Profile::braking(now, 2);
        QCOMPARE(braking.after(0).at, now.at);
        QCOMPARE(braking.after(0.5).at, now.at + 0.75);
        QCOMPARE(braking.after(0.5).speed, 1.0);
        QCOMPARE(braking.seconds(), 1.0);
        QCOMPARE(braking.end(), now.at + 1);
        QCOMPARE(braking.after(5).at, now.at + controller::brakingDistance(now, 2));
    }

    void brakingAtRestIsOverAtOnce() {
        const Profile braking = Profile::braking({0.25, 0}, 2);
        QCOMPARE(braking.seconds(), 0.0);
        QCOMPARE(braking.end(), 0.25);
    }
};

QTEST_GUILESS_MAIN(TestProfile)
#include "tst_profile.moc"
