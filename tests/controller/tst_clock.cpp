#include "controller/clock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <QVector>

#include <stdexcept>

using controller::Clock;

namespace {

/// The moments that the clock tells of.
class Moments : public QObject {
public:
    explicit Moments(Clock* clock) {
        connect(clock, &Clock::advanced, this, [this](qint64 nowMs, qint64 byMs) {
            isWhole = isWhole && nowMs - byMs == (moments.isEmpty() ? 0 : moments.last());
            moments << nowMs;
        });
    }

    QVector<qint64> moments;
    bool isWhole = true; // each piece begins where the one before ended
};

QVector<qint64> ticksUpTo(qint64 ms) {
    QVector<qint64> ticks;
    for (qint64 at = Clock::tickMs; at <= ms; at += Clock::tickMs)
        ticks << at;
    return ticks;
}

} // namespace

class TestClock : public QObject {
    Q_OBJECT

private slots:
    void itStandsAtZeroAtFirst() {
        const Clock clock;
        QCOMPARE(clock.nowMs(), 0);
        QVERIFY(!clock.runsByItself());
    }

    void aLongStepTellsOfTheSameMomentsAsManyShortOnes() {
        Clock once;
        const Moments ofOne(&once);
        once.step(1000);
        Clock often;
        const Moments ofMany(&often);
        for (int i = 0; i < 50; ++i)
            often.step(20);
        QCOMPARE(ofOne.moments, ticksUpTo(1000));
        QCOMPARE(ofMany.moments, ofOne.moments);
        QCOMPARE(once.nowMs(), 1000);
        QVERIFY(ofOne.isWhole && ofMany.isWhole);
    }

    void aStepBetweenTheTicksEndsWhereItShould() {
        Clock clock;
        const Moments told(&clock);
        clock.step(30);
        QCOMPARE(clock.nowMs(), 30);
        clock.step(5);
        clock.step(25);
        QCOMPARE(told.moments, (QVector<qint64>{20, 30, 35, 40, 60}));
        QVERIFY(told.isWhole);
    }

    void aStepOfNothingIsNone_data() {
        QTest::addColumn<qint64>("ms");
        QTest::newRow("zero") << qint64(0);
        QTest::newRow("backwards") << qint64(-40);
    }

    void aStepOfNothingIsNone() {
        QFETCH(qint64, ms);
        Clock clock;
        const Moments told(&clock);
        clock.step(ms);
        QCOMPARE(clock.nowMs(), 0);
        QVERIFY(told.moments.isEmpty());
    }

    void aListenerMayAddToTheStepBeingMade() {
        Clock clock;
        const Moments told(&clock);
        qint64 nowMsWithin = -1;
        connect(&clock, &Clock::advanced, &clock, [&](qint64 nowMs) {
            if (nowMs != 20)
                return;
            clock.step(30);
            nowMsWithin = clock.nowMs();
        });
        clock.step(40);
        QCOMPARE(nowMsWithin, 20);
        QCOMPARE(told.moments, (QVector<qint64>{20, 40, 60, 70}));
    }

    void afterAListenerThrewItGoesOn() {
        Clock clock;
        const Moments told(&clock);
        const QMetaObject::Connection throwing = connect(&clock, &Clock::advanced, &clock, [](qint64 nowMs) {
            if (nowMs == 40)
                throw std::runtime_error("jammed");
        });
        QVERIFY_EXCEPTION_THROWN(clock.step(60), std::runtime_error);
        QCOMPARE(clock.nowMs(), 40);
        clock.step(20);
        QCOMPARE(told.moments, ticksUpTo(80));
        disconnect(throwing);
    }

    void runningByItselfItStopsAtTheTicks() {
        Clock clock;
        const Moments told(&clock);
        clock.runByItself(true);
        QVERIFY(clock.runsByItself());
        QTRY_VERIFY(clock.nowMs() >= 80);
        clock.runByItself(false);
        QVERIFY(!clock.runsByItself());
        QCOMPARE(told.moments, ticksUpTo(clock.nowMs()));
    }

    void itMakesUpForABlockedThread() {
        Clock clock;
        const Moments told(&clock);
        QElapsedTimer wall;
        clock.runByItself(true);
        wall.start();
        QThread::msleep(150);
        QCOMPARE(clock.nowMs(), 0);
        QTRY_VERIFY(clock.nowMs() >= 140);
        QVERIFY(clock.nowMs() <= wall.elapsed() + Clock::tickMs);
        QCOMPARE(told.moments, ticksUpTo(clock.nowMs()));
    }

    void partsOfATickAddUp() {
        Clock clock;
        QElapsedTimer wall;
        clock.runByItself(true);
        wall.start();
        for (int i = 0; i < 4; ++i) {
            QThread::msleep(35);
            const qint64 passedMs = wall.elapsed();
            QCoreApplication::processEvents();
            QVERIFY2(clock.nowMs() > passedMs - Clock::tickMs - 1, qPrintable(QString::number(passedMs)));
        }
    }

    void whenItStandsWallTimeIsNoMatter() {
        Clock clock;
        clock.runByItself(true);
        clock.runByItself(false);
        QThread::msleep(60);
        QTest::qWait(30);
        QCOMPARE(clock.nowMs(), 0);
        QElapsedTimer wall;
        wall.start();
        clock.runByItself(true);
        QTRY_VERIFY(clock.nowMs() > 0);
        QVERIFY(clock.nowMs() <= wall.elapsed());
    }

    void runningItCanBeSteppedToo() {
        Clock clock;
        clock.runByItself(true);
        clock.step(10010);
        QCOMPARE(clock.nowMs(), 10010);
        QTRY_VERIFY(clock.nowMs() > 10010);
        QCOMPARE(clock.nowMs() % Clock::tickMs, 0);
    }
};

QTEST_GUILESS_MAIN(TestClock)
#include "tst_clock.moc"
