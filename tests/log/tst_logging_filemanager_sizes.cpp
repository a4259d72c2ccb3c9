#include "clock.h"
#include "logfolder.h"

#include "kite/logfilemanager.h"
#include "pendanttest/logwatch.h"

#include <QTest>

#include <memory>

using kite::PluginLogFileManager;

namespace {

const qint64 mebibyte = 1024 * 1024;
const qint64 most = 209715200;
const qint64 twoToThe32 = Q_INT64_C(4294967296);

} // namespace

// What the manager counts. It tells nobody; but as soon as it counts more than 200 MiB, the file "oldest.log" goes.
class TestFileManagerSizes : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log = std::make_unique<pendanttest::LogWatch>();
        m_folder = std::make_unique<LogFolder>();
        m_manager = std::make_unique<PluginLogFileManager>(nullptr);
        QVERIFY(m_folder->make("oldest.log", 1, 1000));
    }
    void cleanup() {
        m_manager.reset();
        m_folder.reset();
        m_log.reset();
    }

    void exactlyTwoHundredMebibytesAreNotTooMuch() {
        report("kite_20250314.log", most);
        QVERIFY(!isTooMuch());
        report("kite_20250314.log", most + 1);
        QVERIFY(isTooMuch());
    }

    void whatIsReportedOfAFileReplacesWhatWasReported() {
        report("kite_20250314.log", 150 * mebibyte);
        report("kite_20250314.log", 100 * mebibyte);
        report("weld_20250314.log", 100 * mebibyte);
        QVERIFY(!isTooMuch());
        report("weld_20250314.log", 100 * mebibyte + 1);
        QVERIFY(isTooMuch());
    }

    // After a rotation the last size of the file before is still there, as part of the sum.
    void theFilesOfADayShareOneSize() {
        report("kite_20250314.log", 150 * mebibyte);
        report("kite_20250314_1.log", 100 * mebibyte);
        QVERIFY(!isTooMuch());
    }

    void aRotationStartsFromNothing() {
        QVERIFY(m_folder->make("kite_20250314.log", 10 * mebibyte));
        ask("kite", 14); // 10 MiB are counted, and the file is full
        report("kite_20250314_1.log", 190 * mebibyte);
        QVERIFY(!isTooMuch());
        report("kite_20250314_1.log", 190 * mebibyte + 1);
        QVERIFY(isTooMuch());
    }

    void aNameThatDoesNotFollowThePatternIsIgnored_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"kite_2025031.log", "kite.log", "my_mod_20250314.log", "kite_1_20250314.log"})
            QTest::newRow(name) << name;
    }
    void aNameThatDoesNotFollowThePatternIsIgnored() {
        QFETCH(QString, name);
        report(name, most + 1);
        QVERIFY(!isTooMuch());
        report("kite_20250314.log", most);
        QVERIFY(!isTooMuch());
    }

    void theLaterFilesOfALogWithASeparatorCount() {
        report("my_mod_20250314_1.log", most + 1);
        QVERIFY(isTooMuch());
    }

    void growthIsCountedIn32Bits_data() {
        const qint64 half = twoToThe32 / 2;
        QTest::addColumn<qint64>("before");
        QTest::addColumn<qint64>("now");
        QTest::addColumn<qint64>("sum");
        QTest::newRow("what 32 bits do not hold is lost") << Q_INT64_C(0) << twoToThe32 << Q_INT64_C(0);
        QTest::newRow("all but the rest of it") << Q_INT64_C(0) << twoToThe32 + 7 << Q_INT64_C(7);
        QTest::newRow("half of it counts backwards") << Q_INT64_C(0) << half << -half;
        QTest::newRow("three quarters too") << Q_INT64_C(0) << half + half / 2 << -half / 2;
        QTest::newRow("and back again") << half + half / 2 << Q_INT64_C(0) << Q_INT64_C(0);
        QTest::newRow("between great sizes") << twoToThe32 + 5 << twoToThe32 + 9 << Q_INT64_C(9);
        QTest::newRow("across the edge") << twoToThe32 - 5 << twoToThe32 + 5 << Q_INT64_C(5);
        QTest::newRow("shrinking") << Q_INT64_C(100) << Q_INT64_C(10) << Q_INT64_C(10);
    }
    void growthIsCountedIn32Bits() {
        QFETCH(qint64, before);
        QFETCH(qint64, now);
        QFETCH(qint64, sum);
        report("kite_20250314.log", before);
        report("kite_20250314.log", now);
        addUpTo(most - sum);
        QVERIFY(!isTooMuch());
        report("last_20250314.log", 1);
        QVERIFY(isTooMuch());
    }

    void oneByteLessThanHalfOf32BitsCountsForwards() {
        report("kite_20250314.log", twoToThe32 / 2 - 1);
        QVERIFY(isTooMuch());
    }

    void theFirstRequestCountsAllFilesOfTheLog() {
        QVERIFY(m_folder->make("kite_20250312.log", 70 * mebibyte));
        QVERIFY(m_folder->make("kite_20250313.log", 70 * mebibyte));
        QVERIFY(m_folder->make("kite_20250314.log", 60 * mebibyte - 1));
        ask("kite", 14); // the day's file is full as well, so the next one begins with nothing
        report("kite_20250314_1.log", 1);
        QVERIFY(!isTooMuch());
        report("kite_20250314_1.log", 2);
        QVERIFY(isTooMuch());
    }

    void theFirstRequestCountsNothingElse_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"weld_20250313.log", "kite_20250313.txt", "below/kite_20250313.log"})
            QTest::newRow(name) << name;
    }
    void theFirstRequestCountsNothingElse() {
        QFETCH(QString, name);
        QVERIFY(m_folder->make(name, 100));
        ask("kite", 14);
        report("kite_20250314.log", most);
        QVERIFY(!isTooMuch());
    }

    // "kite*.log" takes in the files of a log whose name begins like that.
    void theFirstRequestCountsLogsThatBeginAlike() {
        QVERIFY(m_folder->make("kitesurfing_20250313.log", 1));
        ask("kite", 14);
        report("kite_20250314.log", most);
        QVERIFY(isTooMuch());
    }

    void theSecondRequestOfADayCountsNothing() {
        QVERIFY(m_folder->make("kite_20250313.log", 150 * mebibyte));
        ask("kite", 14);
        ask("kite", 14);
        report("kite_20250314.log", 50 * mebibyte);
        QVERIFY(!isTooMuch());
    }

    void aNewDayCountsAllFilesOnceMore() {
        QVERIFY(m_folder->make("kite_20250313.log", 100 * mebibyte));
        ask("kite", 14);
        ask("kite", 15);
        report("kite_20250315.log", 0);
        QVERIFY(!isTooMuch());
        report("kite_20250315.log", 1);
        QVERIFY(isTooMuch());
    }

    void aDayThatComesBackCountsNothing() {
        QVERIFY(m_folder->make("kite_20250313.log", 100 * mebibyte));
        ask("kite", 15);
        ask("kite", 14);
        ask("kite", 15);
        report("kite_20250315.log", 0);
        QVERIFY(!isTooMuch());
    }

    void theFirstRequestDeletesNothing() {
        QVERIFY(m_folder->make("kite_20250313.log", most + 1, 500));
        ask("kite", 14);
        QVERIFY(!isTooMuch());
        report("kite_20250314.log", 0);
        QVERIFY(isTooMuch());
    }

    void aFullFileDeletesWhatIsTooMuch() {
        QVERIFY(m_folder->make("kite_20250313.log", 190 * mebibyte + 1, 500));
        QVERIFY(m_folder->make("kite_20250314.log", 10 * mebibyte));
        ask("kite", 14);
        QVERIFY(isTooMuch());
    }

private:
    void report(const char* name, qint64 size) { report(QString(name), size); }
    void report(const QString& name, qint64 size) { m_manager->updateFileSize(m_folder->path(name), size); }
    void ask(const QString& log, int day) {
        m_clock.set(noon(2025, 3, day));
        m_manager->getProperLogFileName(m_folder->path(log), "log");
    }
    bool isTooMuch() const { return !QFile::exists(m_folder->path("oldest.log")); }

    // By files that 32 bits hold.
    void addUpTo(qint64 missing) {
        for (int i = 0; missing > 0; ++i) {
            const qint64 size = qMin(missing, 100 * mebibyte);
            report(QString("part%1_20250314.log").arg(i), size);
            missing -= size;
        }
    }

    Clock m_clock;
    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<LogFolder> m_folder;
    std::unique_ptr<PluginLogFileManager> m_manager;
};

QTEST_APPLESS_MAIN(TestFileManagerSizes)
#include "tst_logging_filemanager_sizes.moc"
