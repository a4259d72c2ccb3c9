#include "clock.h"
#include "logfolder.h"

#include "kite/logfilemanager.h"

#include <QTest>

#include <memory>

using kite::PluginLogFileManager;

namespace {

const qint64 full = 10485760;

} // namespace

// Which file a line goes to, on 14 March 2025. A new manager stands for a restart.
class TestFileManagerNames : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<LogFolder>();
        QVERIFY(m_folder->isValid());
        restart();
    }
    void cleanup() { m_folder.reset(); }

    void thereIsOneInTheProcess() {
        QVERIFY(PluginLogFileManager::instance());
        QCOMPARE(PluginLogFileManager::instance(), PluginLogFileManager::instance());
        QVERIFY(!PluginLogFileManager::instance()->parent());
        QCOMPARE(PluginLogFileManager::staticMetaObject.className(), "kite::PluginLogFileManager");
        QCOMPARE(PluginLogFileManager::staticMetaObject.methodCount(), QObject::staticMetaObject.methodCount());
    }

    void theFirstLineOfADayGoesToAFileOfTheDay() {
        QCOMPARE(ask("kite"), "kite_20250314.log");
        QCOMPARE(m_manager->getProperLogFileName(m_folder->path("weld"), "txt"), m_folder->path("weld_20250314.txt"));
    }

    void aNameHasTheFolderAsThePathHasIt() {
        QCOMPARE(m_manager->getProperLogFileName("./log/kite", "log"), QString("./log/kite_20250314.log"));
        QVERIFY(QDir().rmdir("log"));
        QCOMPARE(m_manager->getProperLogFileName("weld", "log"), QString("weld_20250314.log"));
    }

    void aMissingFolderIsMadeAndNoFile() {
        QCOMPARE(ask("a/b/kite"), "a/b/kite_20250314.log");
        QVERIFY(QDir(m_folder->path("a/b")).exists());
        QCOMPARE(m_folder->names("a/b"), QStringList());
    }

    void aFileIsFullAtTenMebibytes_data() {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("next");
        QTest::newRow("one byte less") << full - 1 << "kite_20250314.log";
        QTest::newRow("exactly") << full << "kite_20250314_1.log";
        QTest::newRow("one byte more") << full + 1 << "kite_20250314_1.log";
    }
    void aFileIsFullAtTenMebibytes() {
        QFETCH(qint64, size);
        QCOMPARE(ask("kite"), "kite_20250314.log");
        QVERIFY(m_folder->make("kite_20250314.log", size));
        QTEST(ask("kite"), "next");
        restart();
        QTEST(ask("kite"), "next");
    }

    void eachFullFileIsFollowedByTheNext() {
        for (const QString name : {"kite_20250314.log", "kite_20250314_1.log", "kite_20250314_2.log"}) {
            QCOMPARE(ask("kite"), name);
            QCOMPARE(ask("kite"), name);
            QVERIFY(m_folder->make(name, full));
        }
        QCOMPARE(ask("kite"), "kite_20250314_3.log");
    }

    void theNextFileIsNotLookedAtBeforeTheNextRequest() {
        QVERIFY(m_folder->make("kite_20250314.log", full));
        QCOMPARE(ask("kite"), "kite_20250314_1.log");
        QVERIFY(m_folder->make("kite_20250314_1.log", full));
        QVERIFY(m_folder->make("kite_20250314_2.log", full));
        QCOMPARE(ask("kite"), "kite_20250314_2.log");
        QCOMPARE(ask("kite"), "kite_20250314_3.log");
    }

    void aRestartGoesOnWithTheGreatestIndex() {
        for (const char* name : {"kite_20250314.log", "kite_20250314_1.log", "kite_20250314_3.log"})
            QVERIFY(m_folder->make(name, 5));
        QCOMPARE(ask("kite"), "kite_20250314_3.log");
    }

    void aRestartLeavesAFullFileAtOnce() {
        for (const char* name : {"kite_20250314.log", "kite_20250314_1.log"})
            QVERIFY(m_folder->make(name, 5));
        QVERIFY(m_folder->make("kite_20250314_3.log", full));
        QCOMPARE(ask("kite"), "kite_20250314_4.log");
    }

    void theIndexIsANumberAndNotAText() {
        QVERIFY(m_folder->make("kite_20250314_9.log", 5));
        QVERIFY(m_folder->make("kite_20250314_10.log", 5));
        QCOMPARE(ask("kite"), "kite_20250314_10.log");
    }

    void theGreatestIndexIsKept() {
        QVERIFY(m_folder->make("kite_20250314_2147483647.log", full));
        QCOMPARE(ask("kite"), "kite_20250314_2147483647.log");
        QCOMPARE(ask("kite"), "kite_20250314_2147483647.log");
    }

    void filesThatAreNotOfTheDaysLogTellNoIndex_data() {
        QTest::addColumn<QString>("other");
        QTest::newRow("another day") << "kite_20250313_7.log";
        QTest::newRow("another log") << "weld_20250314_7.log";
        QTest::newRow("another extension") << "kite_20250314_7.txt";
        QTest::newRow("below") << "below/kite_20250314_7.log";
        QTest::newRow("no number") << "kite_20250314_x.log";
        QTest::newRow("four parts") << "kite_20250314_7_8.log";
        QTest::newRow("a folder") << "kite_20250314_7.log/x";
        QTest::newRow("a longer day") << "kite_202503140.log";
    }
    void filesThatAreNotOfTheDaysLogTellNoIndex() {
        QFETCH(QString, other);
        QVERIFY(m_folder->make(other, full));
        QCOMPARE(ask("kite"), "kite_20250314.log");
    }

    void whatStartsLikeTheDayTellsItsIndex() {
        QVERIFY(m_folder->make("kite_20250314x_7.log", 5));
        QCOMPARE(ask("kite"), "kite_20250314_7.log");
    }

    void aLogWithASeparatorInItsNameTakesTheDateForTheIndex() {
        QVERIFY(m_folder->make("my_mod_20250314.log", full));
        QCOMPARE(ask("my_mod"), "my_mod_20250314_20250314.log");
        QVERIFY(!QFile::exists(m_folder->path("my_mod_20250314_20250314.log")));
        QCOMPARE(ask("my_mod"), "my_mod_20250314_20250314.log");
    }

    void aLogWithASeparatorInItsNameIsRightUntilTheRestart() {
        QCOMPARE(ask("my_mod"), "my_mod_20250314.log");
        QVERIFY(m_folder->make("my_mod_20250314.log", full));
        QCOMPARE(ask("my_mod"), "my_mod_20250314_1.log");
    }

    void aLogWithTwoSeparatorsStartsAtTheFirstFile() {
        QVERIFY(m_folder->make("a_b_c_20250314.log", 5));
        QVERIFY(m_folder->make("a_b_c_20250314_5.log", 5));
        QCOMPARE(ask("a_b_c"), "a_b_c_20250314.log");
    }

    // The next file is not looked for: it is taken, full or not, and found to be full at the request after.
    void aLogWithTwoSeparatorsGoesToTheSecondFileWhenTheFirstIsFull() {
        QVERIFY(m_folder->make("a_b_c_20250314.log", full));
        QVERIFY(m_folder->make("a_b_c_20250314_1.log", full));
        QVERIFY(m_folder->make("a_b_c_20250314_5.log", full));
        QCOMPARE(ask("a_b_c"), "a_b_c_20250314_1.log");
        QCOMPARE(ask("a_b_c"), "a_b_c_20250314_2.log");
    }

    void logsDoNotDisturbEachOther() {
        QVERIFY(m_folder->make("kite_20250314_3.log", 5));
        QCOMPARE(ask("weld"), "weld_20250314.log");
        QCOMPARE(ask("kite"), "kite_20250314_3.log");
        QCOMPARE(ask("weld"), "weld_20250314.log");
    }

    // The key has the name alone, so two logs of one name in two folders count together.
    void logsOfOneNameShareTheirIndex() {
        QVERIFY(m_folder->make("a/kite_20250314.log", full));
        QCOMPARE(ask("a/kite"), "a/kite_20250314_1.log");
        QCOMPARE(ask("b/kite"), "b/kite_20250314_1.log");
    }

    void logsOfOneNameAndTwoExtensionsShareTheirIndexToo() {
        QVERIFY(m_folder->make("kite_20250314.log", full));
        QCOMPARE(ask("kite"), "kite_20250314_1.log");
        QCOMPARE(m_manager->getProperLogFileName(m_folder->path("kite"), "txt"), m_folder->path("kite_20250314_1.txt"));
    }

    void aReportedSizeCountsWhileThereIsNoFile() {
        QCOMPARE(ask("kite"), "kite_20250314.log");
        m_manager->updateFileSize(m_folder->path("kite_20250314.log"), full);
        QCOMPARE(ask("kite"), "kite_20250314_1.log");
        QCOMPARE(ask("kite"), "kite_20250314_1.log");
    }

    void theSizeOnTheDiskIsRight() {
        QCOMPARE(ask("kite"), "kite_20250314.log");
        QVERIFY(m_folder->make("kite_20250314.log", 5));
        m_manager->updateFileSize(m_folder->path("kite_20250314.log"), full);
        QCOMPARE(ask("kite"), "kite_20250314.log");
    }

    void aFileThatWasTakenAwayIsNotStartedAnew() {
        QVERIFY(m_folder->make("kite_20250314.log", full));
        QCOMPARE(ask("kite"), "kite_20250314_1.log");
        QVERIFY(QFile::remove(m_folder->path("kite_20250314.log")));
        QCOMPARE(ask("kite"), "kite_20250314_1.log");
    }

    // What was reported of a file before anybody asked for it is forgotten when the folder is looked through.
    void theFirstRequestForgetsWhatWasReported() {
        m_manager->updateFileSize(m_folder->path("kite_20250314.log"), full);
        QCOMPARE(ask("kite"), "kite_20250314.log");
    }

    void tenThousandFilesTellTheGreatestIndex() {
        for (int i = 1; i < 10000; ++i)
            QVERIFY(m_folder->make(QString("kite_20250314_%1.log").arg(i), 0));
        QCOMPARE(ask("kite"), "kite_20250314_9999.log");
    }

private:
    void restart() { m_manager = std::make_unique<PluginLogFileManager>(nullptr); }

    // Without the folder.
    QString ask(const QString& log) {
        const QString name = m_manager->getProperLogFileName(m_folder->path(log), "log");
        return name.mid(m_folder->root().size() + 1);
    }

    Clock m_clock{noon(2025, 3, 14)};
    std::unique_ptr<LogFolder> m_folder;
    std::unique_ptr<PluginLogFileManager> m_manager;
};

QTEST_APPLESS_MAIN(TestFileManagerNames)
#include "tst_logging_filemanager_names.moc"
