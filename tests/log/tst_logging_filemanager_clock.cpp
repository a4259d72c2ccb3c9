#include "clock.h"
#include "logfolder.h"

#include "kite/logfilemanager.h"

#include <QTest>

#include <ctime>
#include <memory>

using kite::PluginLogFileManager;

namespace {

const qint64 full = 10485760;

// The zone's rules stand in the variable itself, so the machine needs no files of zones.
const QByteArray centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";
const QByteArray changesAtMidnight = "AAA3BBB,M10.3.0/0,M2.3.0/0";
const QByteArray farEast = "FAR-14";
const QByteArray farWest = "FAR12";

QDateTime utc(int year, int month, int day, int hour, int minute = 0, int second = 0, int ms = 0) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second, ms), Qt::UTC);
}

} // namespace

// Which day it is for the log files.
class TestFileManagerClock : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_zoneBefore = qgetenv("TZ");
        m_folder = std::make_unique<LogFolder>();
        m_manager = std::make_unique<PluginLogFileManager>(nullptr);
    }
    void cleanup() {
        m_manager.reset();
        m_folder.reset();
        if (m_zoneBefore.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", m_zoneBefore);
        ::tzset();
    }

    void aNewDayBeginsAtLocalMidnight() {
        qputenv("TZ", centralEurope);
        QCOMPARE(dayAt(utc(2025, 3, 14, 22, 59, 59, 999)), "20250314");
        QCOMPARE(dayAt(utc(2025, 3, 14, 23)), "20250315");
        QCOMPARE(dayAt(utc(2025, 3, 15, 22, 59, 59, 999)), "20250315");
    }

    void theDayIsThatOfSummerTime() {
        qputenv("TZ", centralEurope);
        QCOMPARE(dayAt(utc(2025, 3, 30, 21, 59, 59, 999)), "20250330");
        QCOMPARE(dayAt(utc(2025, 3, 30, 22)), "20250331");
        QCOMPARE(dayAt(utc(2025, 10, 26, 22, 59, 59, 999)), "20251026");
        QCOMPARE(dayAt(utc(2025, 10, 26, 23)), "20251027");
    }

    // Clocks that go back from midnight to eleven: the day before begins once more.
    void theDayThatSummerTimeEndsInGoesOn() {
        qputenv("TZ", changesAtMidnight);
        QCOMPARE(dayAt(utc(2025, 2, 16, 1, 59, 59, 999)), "20250215");
        QCOMPARE(dayAt(utc(2025, 2, 16, 2)), "20250215");
        QCOMPARE(dayAt(utc(2025, 2, 16, 2, 59, 59, 999)), "20250215");
        QCOMPARE(dayAt(utc(2025, 2, 16, 3)), "20250216");
    }

    void theSameMomentHasAnotherDayInAnotherZone() {
        const QDateTime moment = utc(2025, 3, 14, 11, 30);
        qputenv("TZ", farEast);
        QCOMPARE(dayAt(moment), "20250315");
        qputenv("TZ", farWest);
        QCOMPARE(dayAt(moment), "20250313");
        qputenv("TZ", "");
        QCOMPARE(dayAt(moment), "20250314");
    }

    void aClockThatJumpsBackOpensTheOldDayAgain() {
        QVERIFY(m_folder->make("kite_20250314.log", full));
        m_clock.set(noon(2025, 3, 14));
        QCOMPARE(ask(), "kite_20250314_1.log");
        m_clock.set(noon(2025, 3, 15));
        QCOMPARE(ask(), "kite_20250315.log");
        m_clock.set(noon(2025, 3, 14));
        QCOMPARE(ask(), "kite_20250314_1.log");
        m_clock.set(noon(1970, 1, 2));
        QCOMPARE(ask(), "kite_19700102.log");
    }

    void aNewDayStartsWithTheFirstFile() {
        m_clock.set(noon(2025, 3, 14));
        QVERIFY(m_folder->make("kite_20250314_6.log", 5));
        QCOMPARE(ask(), "kite_20250314_6.log");
        m_clock.set(noon(2025, 3, 15));
        QCOMPARE(ask(), "kite_20250315.log");
    }

    void aNewDayGoesOnWithWhatIsThere() {
        m_clock.set(noon(2025, 3, 14));
        QCOMPARE(ask(), "kite_20250314.log");
        QVERIFY(m_folder->make("kite_20250315_2.log", full));
        m_clock.set(noon(2025, 3, 15));
        QCOMPARE(ask(), "kite_20250315_3.log");
    }

    void aClockThatRunsTellsToday() {
        m_clock.run();
        const QDate before = QDate::currentDate();
        const QString name = ask();
        QVERIFY(name == before.toString("'kite_'yyyyMMdd'.log'") ||
                name == QDate::currentDate().toString("'kite_'yyyyMMdd'.log'"));
    }

private:
    QString ask() {
        return m_manager->getProperLogFileName(m_folder->path("kite"), "log").mid(m_folder->root().size() + 1);
    }
    QString dayAt(const QDateTime& moment) {
        m_clock.set(moment);
        return ask().mid(5, 8);
    }

    QByteArray m_zoneBefore;
    Clock m_clock;
    std::unique_ptr<LogFolder> m_folder;
    std::unique_ptr<PluginLogFileManager> m_manager;
};

QTEST_APPLESS_MAIN(TestFileManagerClock)
#include "tst_logging_filemanager_clock.moc"
