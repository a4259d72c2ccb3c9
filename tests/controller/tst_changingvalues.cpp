#include "controller/changingvalues.h"

#include "contents.h"

#include <QTest>

#include <memory>

using controller::BusTable;
using controller::ChangingValues;
using controller::Clock;
using controller::Content;

class TestChangingValues : public QObject {
    Q_OBJECT

private slots:
    void aPulseIsOnAtTheEndOfEachPeriod() {
        const ChangingValues::Course course = controller::pulse(1000, 3000);
        QStringList seen;
        for (const qint64 nowMs : {0, 1999, 2000, 2999, 3000, 5000})
            seen << course(nowMs).toString();
        QCOMPARE(seen.join(' '), QString("false false true true false true"));
    }

    void init() {
        clock.reset(new Clock);
        bus.reset(new BusTable);
        changing.reset(new ChangingValues(clock.get(), bus.get()));
        delivered.clear();
        connect(bus.get(), &BusTable::delivered, this,
                [this](const QString& key, const Content& value) { delivered << key + '=' + text(value); });
    }

    void aWaveGoesUpAndDown_data() {
        QTest::addColumn<qint64>("ms");
        QTest::addColumn<double>("value");
        QTest::newRow("start") << qint64(0) << 20.0;
        QTest::newRow("quarter") << qint64(1000) << 25.0;
        QTest::newRow("half") << qint64(2000) << 30.0;
        QTest::newRow("between two values") << qint64(2099) << 30.0;
        QTest::newRow("three quarters") << qint64(3000) << 25.0;
        QTest::newRow("end") << qint64(4000) << 20.0;
        QTest::newRow("much later") << qint64(4000000 + 2000) << 30.0;
        QTest::newRow("two places") << qint64(500) << 21.46;
    }

    void aWaveGoesUpAndDown() {
        QFETCH(qint64, ms);
        QFETCH(double, value);
        QCOMPARE(controller::wave(20, 30, 4000)(ms).toDouble(), value);
    }

    void aWaveBringsATenthOfASecondEach() {
        bus->watch(this, "t", true);
        changing->add("t", controller::wave(0, 100, 4000));
        delivered.clear();
        clock->step(1000);
        QCOMPARE(delivered.size(), 10);
        QCOMPARE(delivered.last(), QString("t=50"));
    }

    void aCounterCounts() {
        bus->watch(this, "n", true);
        changing->add("n", controller::counter(7, 5000));
        QCOMPARE(text(bus->get("n", "")), QString("7"));
        clock->step(4980);
        QCOMPARE(delivered, QStringList("n=7"));
        clock->step(20);
        QCOMPARE(delivered, (QStringList{"n=7", "n=8"}));
        clock->step(10000);
        QCOMPARE(delivered, (QStringList{"n=7", "n=8", "n=9", "n=10"}));
    }

    void aCourseBeginsWhereTheClockStands() {
        clock->step(5000);
        changing->add("n", controller::counter(0, 1000));
        QCOMPARE(text(bus->get("n", "")), QString("5"));
    }

    void itCannotBeSetFromOutside() {
        changing->add("n", controller::counter(0, 1000));
        const QString reason = refusalOf(bus->set("n", "", content("9")));
        QVERIFY2(reason.contains("\"n\" changes by itself"), qPrintable(reason));
        QCOMPARE(text(bus->get("n", "")), QString("0"));
    }

    void whatIsRemovedStandsAndCanBeSet() {
        changing->add("n", controller::counter(0, 1000));
        clock->step(1000);
        changing->remove("n");
        QVERIFY(!changing->contains("n"));
        clock->step(1000);
        QCOMPARE(text(bus->get("n", "")), QString("1"));
        QVERIFY(!bus->set("n", "", content("9")));
        changing->remove("n");
        changing->remove("none");
    }

    void whoIsToldMayRemoveCourses() {
        changing->add("a", controller::counter(0, 1000));
        changing->add("b", controller::counter(0, 1000));
        int written = 0;
        connect(bus.get(), &BusTable::written, changing.get(), [&] {
            ++written;
            changing->remove("a");
            changing->remove("b");
        });
        clock->step(2000);
        QCOMPARE(written, 1);
    }

    void aCourseMayRemoveItself() {
        changing->add("n", [this, kept = QString("once")](qint64 nowMs) {
            if (nowMs >= 20)
                changing->remove("n");
            return QVariant(kept + QString::number(nowMs));
        });
        clock->step(60);
        QVERIFY(!changing->contains("n"));
        QCOMPARE(text(bus->get("n", "")), QString("\"once0\""));
    }

    void aKeyDefinedAnewChangesNoMore_data() {
        QTest::addColumn<bool>("isComputed");
        QTest::newRow("with a value") << false;
        QTest::newRow("computed") << true;
    }

    void aKeyDefinedAnewChangesNoMore() {
        QFETCH(bool, isComputed);
        changing->add("n", controller::counter(0, 1000));
        if (isComputed)
            bus->defineComputed(
                "n", [] { return content("100"); }, [](const QString&, const Content&) { return ""; });
        else
            bus->define("n", 100);
        QVERIFY(!changing->contains("n"));
        QVERIFY(!bus->set("n", "", content("7")));
        clock->step(2000);
        QCOMPARE(text(bus->get("n", "")), QString(isComputed ? "100" : "7"));
    }

    void aCourseMayTakeThePlaceOfAnother() {
        changing->add("n", controller::counter(0, 1000));
        changing->add("n", controller::counter(50, 1000));
        clock->step(1000);
        QCOMPARE(text(bus->get("n", "")), QString("51"));
        QVERIFY(!refusalOf(bus->set("n", "", content("7"))).isEmpty());
    }

    void aCounterStandsAtTheGreatestNumber() {
        const ChangingValues::Course course = controller::counter(2147483646, 1000);
        QCOMPARE(course(1000).toInt(), 2147483647);
        QCOMPARE(course(5000).toInt(), 2147483647);
    }

    void aWaveMayBeOfAnyHeight() {
        const ChangingValues::Course course = controller::wave(-1e308, 1e308, 4000);
        QCOMPARE(course(0).toDouble(), -1e308);
        QCOMPARE(course(2000).toDouble(), 1e308);
        QVERIFY(qIsFinite(course(1500).toDouble()));
    }

private:
    std::unique_ptr<Clock> clock;
    std::unique_ptr<BusTable> bus;
    std::unique_ptr<ChangingValues> changing;
    QStringList delivered;
};

QTEST_GUILESS_MAIN(TestChangingValues)
#include "tst_changingvalues.moc"
