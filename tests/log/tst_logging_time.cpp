#include "kite/logtime.h"

#include <QTest>

#include <ctime>

namespace {

// The zone's rules stand in the variable itself, so the machine needs no files of zones.
const QByteArray centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";

qint64 utc(int year, int month, int day, int hour, int minute = 0, int second = 0, int ms = 0) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second, ms), Qt::UTC).toMSecsSinceEpoch();
}

} // namespace

// The time in a line's tag, at moments that are given.
class TestTime : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_zoneBefore = qgetenv("TZ");
        qputenv("TZ", centralEurope);
    }
    void cleanup() {
        if (m_zoneBefore.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", m_zoneBefore);
        ::tzset();
    }

    void aMomentIsMonthDayAndTimeOfDay() {
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 26, 53, 58)), QString("03/14 09:26:53.058"));
        QCOMPARE(kite::logTime(utc(2025, 11, 4, 12)), QString("11/04 13:00:00.000"));
    }

    void millisecondsHaveThreeDigits_data() {
        QTest::addColumn<int>("ms");
        QTest::addColumn<QString>("digits");
        QTest::newRow("0") << 0 << "000";
        QTest::newRow("7") << 7 << "007";
        QTest::newRow("70") << 70 << "070";
        QTest::newRow("700") << 700 << "700";
        QTest::newRow("999") << 999 << "999";
    }
    void millisecondsHaveThreeDigits() {
        QFETCH(int, ms);
        QTEST(kite::logTime(utc(2025, 3, 14, 8, 0, 0, ms)).mid(15), "digits");
    }

    void theDayChangesAtLocalMidnight() {
        QCOMPARE(kite::logTime(utc(2025, 12, 31, 22, 59, 59, 999)), QString("12/31 23:59:59.999"));
        QCOMPARE(kite::logTime(utc(2025, 12, 31, 23)), QString("01/01 00:00:00.000"));
    }

    void anHourIsLeftOutInSpring() {
        QCOMPARE(kite::logTime(utc(2025, 3, 30, 0, 59, 59, 999)), QString("03/30 01:59:59.999"));
        QCOMPARE(kite::logTime(utc(2025, 3, 30, 1)), QString("03/30 03:00:00.000"));
    }

    void anHourComesTwiceInAutumn() {
        QCOMPARE(kite::logTime(utc(2025, 10, 26, 0, 59, 59, 999)), QString("10/26 02:59:59.999"));
        QCOMPARE(kite::logTime(utc(2025, 10, 26, 1)), QString("10/26 02:00:00.000"));
        QCOMPARE(kite::logTime(utc(2025, 10, 26, 1, 59, 59, 999)), QString("10/26 02:59:59.999"));
        QCOMPARE(kite::logTime(utc(2025, 10, 26, 2)), QString("10/26 03:00:00.000"));
    }

    void aClockMayJump() {
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 0, 1, 5)), QString("03/14 09:00:01.005"));
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 0, 0, 5)), QString("03/14 09:00:00.005"));
        QCOMPARE(kite::logTime(utc(1999, 12, 31, 22)), QString("12/31 23:00:00.000"));
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 0, 1, 5)), QString("03/14 09:00:01.005"));
    }

    void withinASecondOnlyTheFractionChanges() {
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 0, 1, 5)), QString("03/14 09:00:01.005"));
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 0, 1, 999)), QString("03/14 09:00:01.999"));
        QCOMPARE(kite::logTime(utc(2025, 3, 14, 8, 0, 1, 0)), QString("03/14 09:00:01.000"));
    }

    void timesBefore1970AreRightToo() {
        QCOMPARE(kite::logTime(0), QString("01/01 01:00:00.000"));
        QCOMPARE(kite::logTime(-1), QString("01/01 00:59:59.999"));
        QCOMPARE(kite::logTime(-3600000 - 1), QString("12/31 23:59:59.999"));
        QCOMPARE(kite::logTime(-3600000 - 1000), QString("12/31 23:59:59.000"));
    }

    void anotherZoneCountsAtOnce() {
        const qint64 moment = utc(2025, 3, 14, 11, 30);
        QCOMPARE(kite::logTime(moment), QString("03/14 12:30:00.000"));
        qputenv("TZ", "FAR-14");
        QCOMPARE(kite::logTime(moment), QString("03/15 01:30:00.000"));
        qputenv("TZ", "");
        QCOMPARE(kite::logTime(moment), QString("03/14 11:30:00.000"));
        qunsetenv("TZ");
        QCOMPARE(kite::logTime(moment), QDateTime::fromMSecsSinceEpoch(moment).toString("MM/dd hh:mm:ss.zzz"));
        qputenv("TZ", "FAR12");
        QCOMPARE(kite::logTime(moment), QString("03/13 23:30:00.000"));
    }

    void aZoneWithALongNameIsNoTrouble() {
        const qint64 moment = utc(2025, 3, 14, 11, 30);
        const QByteArray name = "<" + QByteArray(70, 'A') + ">";
        qputenv("TZ", name + "-2");
        QCOMPARE(kite::logTime(moment), QString("03/14 13:30:00.000"));
        qputenv("TZ", name + "-3");
        QCOMPARE(kite::logTime(moment), QString("03/14 14:30:00.000"));
    }

    void thisMomentIsTheLocalTime() {
        const QDateTime before = QDateTime::currentDateTime();
        const QString now = kite::logTime();
        QVERIFY(now >= before.toString("MM/dd hh:mm:ss.zzz"));
        QVERIFY(now <= QDateTime::currentDateTime().toString("MM/dd hh:mm:ss.zzz"));
    }

private:
    QByteArray m_zoneBefore;
};

QTEST_APPLESS_MAIN(TestTime)
#include "tst_logging_time.moc"
