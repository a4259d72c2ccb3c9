#include "view/stancemotion.h"
#include "view/trace.h"

#include <QTest>

using namespace pendant::view;

// How the picture follows a robot that tells where it is now and then.
class TestViewMotion : public QObject {
    Q_OBJECT

private slots:
    void itGoesEvenlyFromOneStanceToTheNext();
    void itTakesAsLongAsTheStepBefore();
    void aFirstStepTakesTheUsualTime();
    void aNewGoalOnTheWayBeginsWhereItIs();
    void theSameGoalAgainIsNoMotion();
    void aJumpIsThereAtOnce();
    void aNewAxisComesFromZero();
    void theTraceFadesTowardsItsEnd();
    void theTraceForgetsWhatIsOld();
    void theTraceStaysWhileTheRobotStands();
};

void TestViewMotion::itGoesEvenlyFromOneStanceToTheNext() {
    StanceMotion motion;
    motion.jumpTo({{0, 10}, {100}}, 1000);
    motion.moveTo({{40, -10}, {300}}, 1100);
    QVERIFY(motion.at(1100) == (Stance{{0, 10}, {100}}));
    QVERIFY(motion.at(1125) == (Stance{{10, 5}, {150}}));
    QVERIFY(motion.isMoving(1199));
    QVERIFY(!motion.isMoving(1200));
    QVERIFY(motion.at(1200) == (Stance{{40, -10}, {300}}));
    QVERIFY(motion.at(99999) == motion.goal());
}

void TestViewMotion::itTakesAsLongAsTheStepBefore() {
    StanceMotion motion;
    motion.jumpTo({{0}, {}}, 0);
    motion.moveTo({{1}, {}}, 40);
    motion.moveTo({{2}, {}}, 100);
    QVERIFY(motion.isMoving(159) && !motion.isMoving(160));
}

void TestViewMotion::aFirstStepTakesTheUsualTime() {
    StanceMotion motion;
    motion.jumpTo({{0}, {}}, 0);
    motion.moveTo({{1}, {}}, 60000);
    QVERIFY(motion.isMoving(60000 + StanceMotion::usualStepMs - 1));
    QVERIFY(!motion.isMoving(60000 + StanceMotion::usualStepMs));
}

void TestViewMotion::aNewGoalOnTheWayBeginsWhereItIs() {
    StanceMotion motion;
    motion.jumpTo({{0}, {}}, 0);
    motion.moveTo({{100}, {}}, 100);
    motion.moveTo({{0}, {}}, 150);
    QCOMPARE(motion.at(150).joints.first(), 50.0);
    QCOMPARE(motion.at(175).joints.first(), 25.0);
}

void TestViewMotion::theSameGoalAgainIsNoMotion() {
    StanceMotion motion;
    motion.jumpTo({{5}, {}}, 0);
    motion.moveTo({{5}, {}}, 100);
    QVERIFY(!motion.isMoving(101));
}

void TestViewMotion::aJumpIsThereAtOnce() {
    StanceMotion motion;
    motion.jumpTo({{5}, {}}, 70);
    QVERIFY(!motion.isMoving(70));
    QCOMPARE(motion.at(70).joints.first(), 5.0);
}

void TestViewMotion::aNewAxisComesFromZero() {
    StanceMotion motion;
    motion.jumpTo({{10}, {}}, 0);
    motion.moveTo({{10, 20}, {}}, 100);
    QCOMPARE(motion.at(150).joints, (QVector<double>{10, 10}));
}

void TestViewMotion::theTraceFadesTowardsItsEnd() {
    Trace trace;
    for (int i = 0; i <= 20; ++i)
        trace.add({i * 10.0, 0, 0}, i * 50);
    QCOMPARE(trace.steps().size(), 21);
    QCOMPARE(trace.strength(20), 1.0);
    QVERIFY(trace.strength(0) < trace.strength(10) && trace.strength(10) < 1);
    QCOMPARE(trace.strength(0), 1 - 1000.0 / double(Trace::lengthMs));
}

void TestViewMotion::theTraceForgetsWhatIsOld() {
    Trace trace;
    for (int i = 0; i <= 200; ++i)
        trace.add({i * 10.0, 0, 0}, i * 50);
    QCOMPARE(trace.steps().size(), int(Trace::lengthMs / 50) + 1);
    QCOMPARE(trace.steps().last().at.x, 2000.0);
    trace.clear();
    QVERIFY(trace.steps().isEmpty());
}

void TestViewMotion::theTraceStaysWhileTheRobotStands() {
    Trace trace;
    trace.add({0, 0, 0}, 0);
    trace.add({100, 0, 0}, 50);
    trace.add({100.2, 0, 0}, 60000);
    QCOMPARE(trace.steps().size(), 2);
    trace.add({200, 0, 0}, 3600000);
    QCOMPARE(trace.steps().size(), 3);
    QVERIFY(trace.strength(0) > 0.9);
}

QTEST_APPLESS_MAIN(TestViewMotion)
#include "tst_view_motion.moc"
