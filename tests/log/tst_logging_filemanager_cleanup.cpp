#include "clock.h"
#include "logfolder.h"
#include "unprivileged.h"

#include "kite/logfilemanager.h"
#include "pendanttest/logwatch.h"

#include <QTest>

#include <memory>

using kite::PluginLogFileManager;

namespace {

const qint64 mebibyte = 1024 * 1024;
const qint64 most = 209715200;

} // namespace

// What is deleted once more than 200 MiB are counted. The sum is set by the size of a file that is not there.
class TestFileManagerCleanup : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log = std::make_unique<pendanttest::LogWatch>();
        m_folder = std::make_unique<LogFolder>();
        m_manager = std::make_unique<PluginLogFileManager>(nullptr);
    }
    void cleanup() {
        m_manager.reset();
        m_folder.reset();
        m_log.reset();
    }

    void theOldestGoFirstUntilItIsNotTooMuch() {
        QVERIFY(m_folder->make("b.log", 30, 400));
        QVERIFY(m_folder->make("c.log", 30, 300));
        QVERIFY(m_folder->make("a.log", 30, 200));
        QVERIFY(m_folder->make("d.log", 30, 100));
        count(most + 60);
        QCOMPARE(m_folder->names(), QStringList({"a.log", "d.log"}));
    }

    void oneMoreThanEnoughIsNotDeleted() {
        QVERIFY(m_folder->make("b.log", 30, 400));
        QVERIFY(m_folder->make("c.log", 30, 300));
        count(most + 30);
        QCOMPARE(m_folder->names(), QStringList("c.log"));
    }

    void whatWasDeletedIsNotCountedAnyMore() {
        QVERIFY(m_folder->make("a.log", 100, 400));
        QVERIFY(m_folder->make("b.log", 100, 300));
        count(most + 1);
        QCOMPARE(m_folder->names(), QStringList("b.log"));
        count(most + 100);
        QCOMPARE(m_folder->names(), QStringList("b.log"));
        count(most + 101);
        QCOMPARE(m_folder->names(), QStringList());
    }

    void theFilesOfEveryLogBelowTheFolderGo() {
        QVERIFY(m_folder->make("below/deep/weld_20250101.log", 1, 500));
        QVERIFY(m_folder->make("below/any.log", 1, 400));
        QVERIFY(m_folder->make("kite_20250314.log", 1, 300));
        count(most + 2);
        QCOMPARE(m_folder->names("below/deep"), QStringList());
        QCOMPARE(m_folder->names("below"), QStringList());
        QCOMPARE(m_folder->names(), QStringList("kite_20250314.log"));
        QVERIFY(QDir(m_folder->path("below/deep")).exists());
    }

    void filesAboveTheFolderStay() {
        QVERIFY(m_folder->make("above.log", 1, 500));
        QVERIFY(m_folder->make("log/a.log", 1, 100));
        m_manager->updateFileSize(m_folder->path("log/kite_20250314.log"), most + 2);
        QCOMPARE(m_folder->names(), QStringList("above.log"));
        QCOMPARE(m_folder->names("log"), QStringList());
    }

    void otherFilesStay() {
        QVERIFY(m_folder->make("a.txt", 1, 500));
        QVERIFY(m_folder->make("a.log.gz", 1, 500));
        QVERIFY(m_folder->make("log", 1, 500));
        QVERIFY(QDir().mkpath(m_folder->path("folder.log")));
        count(most + 1000);
        QCOMPARE(m_folder->names(), QStringList({"a.log.gz", "a.txt", "log"}));
        QVERIFY(QDir(m_folder->path("folder.log")).exists());
    }

    void aLogOfAnotherExtensionDeletesTheSameFiles() {
        QVERIFY(m_folder->make("kite_20250101.txt", 1, 500));
        QVERIFY(m_folder->make("a.log", 1, 100));
        m_manager->updateFileSize(m_folder->path("kite_20250314.txt"), most + 1);
        QCOMPARE(m_folder->names(), QStringList("kite_20250101.txt"));
    }

    void theFileThatIsWrittenMayGoToo() {
        QVERIFY(m_folder->make("kite_20250314.log", 10, 500));
        QVERIFY(m_folder->make("a.log", 10, 100));
        count(most + 1);
        QCOMPARE(m_folder->names(), QStringList("a.log"));
    }

    void eachDeletedFileIsReported() {
        QVERIFY(m_folder->make("a_20250101.log", 3 * mebibyte, 400));
        QVERIFY(m_folder->make("below/b.log", 12, 300));
        count(most + 3 * mebibyte + 1);
        QCOMPARE(m_log->lines(), QStringList({"Cleaned old log file: \"a_20250101.log\" size: 3145728",
                                              "Cleaned old log file: \"b.log\" size: 12"}));
    }

    void theReportIsADebugMessageOfTheDefaultCategory() {
        static QtMsgType type;
        static QByteArray category;
        QVERIFY(m_folder->make("a.log", 1, 400));
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType ofType, const QMessageLogContext& context, const QString&) {
                type = ofType;
                category = context.category;
            });
        count(most + 1);
        qInstallMessageHandler(before);
        QCOMPARE(type, QtDebugMsg);
        QCOMPARE(category, QByteArray("default"));
    }

    void whatCannotBeDeletedIsPassedByInSilence() {
        QVERIFY(m_folder->make("locked/a.log", 50, 400));
        QVERIFY(m_folder->make("b.log", 50, 300));
        QVERIFY(m_folder->make("c.log", 50, 200));
        QVERIFY(setPermissions(m_folder->root(), 0777) && setPermissions(m_folder->path("locked"), 0555));
        Unprivileged unprivileged;
        QVERIFY(unprivileged.isBound());
        count(most + 50);
        unprivileged.giveBack();
        QVERIFY(setPermissions(m_folder->path("locked"), 0755));
        QCOMPARE(m_folder->names("locked"), QStringList("a.log"));
        QCOMPARE(m_folder->names(), QStringList("c.log"));
        QCOMPARE(m_log->lines(), QStringList("Cleaned old log file: \"b.log\" size: 50"));
    }

    void aMissingFolderIsNoTrouble() {
        m_manager->updateFileSize(m_folder->path("gone/kite_20250314.log"), most + 1);
        m_manager->cleanupOldFiles(m_folder->path("gone/kite"));
        QCOMPARE(m_log->lines(), QStringList());
        QVERIFY(!QDir(m_folder->path("gone")).exists());
    }

    void nothingIsDeletedWhileItIsNotTooMuch() {
        QVERIFY(m_folder->make("a.log", 100, 400));
        count(most);
        m_manager->cleanupOldFiles(m_folder->path("kite"));
        QCOMPARE(m_folder->names(), QStringList("a.log"));
    }

    // A day's own file goes when everything is too much: a sum that is greater than the disk cannot be brought down.
    void aSumThatIsGreaterThanTheDiskDeletesEverything() {
        QVERIFY(m_folder->make("a.log", 100, 400));
        QVERIFY(m_folder->make("kite_20250314.log", 100, 0));
        count(most + 1000);
        QCOMPARE(m_folder->names(), QStringList());
    }

    void theNextFileIsBegunAfterTheOldOnesAreGone() {
        const Clock clock(noon(2025, 3, 14));
        QVERIFY(m_folder->make("kite_20250312.log", 100 * mebibyte, 400));
        QVERIFY(m_folder->make("kite_20250313.log", 100 * mebibyte, 300));
        QVERIFY(m_folder->make("kite_20250314.log", 10 * mebibyte, 0));
        QCOMPARE(m_manager->getProperLogFileName(m_folder->path("kite"), "log"), m_folder->path("kite_20250314_1.log"));
        QCOMPARE(m_folder->names(), QStringList({"kite_20250313.log", "kite_20250314.log"}));
    }

    void tenThousandFilesAreSortedAndDeleted() {
        for (int i = 0; i < 10000; ++i)
            QVERIFY(m_folder->make(QString("%1.log").arg(i, 5, 10, QLatin1Char('0')), 1, i));
        count(most + 9990);
        QStringList youngest;
        for (int i = 0; i < 10; ++i)
            youngest << QString("0000%1.log").arg(i);
        QCOMPARE(m_folder->names(), youngest);
    }

private:
    void count(qint64 sum) { m_manager->updateFileSize(m_folder->path("kite_20250314.log"), sum); }

    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<LogFolder> m_folder;
    std::unique_ptr<PluginLogFileManager> m_manager;
};

QTEST_APPLESS_MAIN(TestFileManagerCleanup)
#include "tst_logging_filemanager_cleanup.moc"
