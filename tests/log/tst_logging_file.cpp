#include "clock.h"
#include "logfolder.h"

#include "kite/log.h"
#include "kite/logfilemanager.h"
#include "pendanttest/logwatch.h"

#include <QTest>

#include <memory>

using kite::FLog;
using kite::QFLog;

namespace {

const QString tag = "[I|01/02 03:04:05.006]";
const qint64 full = 10485760;

/// How often this thread has called write() so far; -1 when the system does not tell.
int writesOfThisThread() {
    QFile counters("/proc/thread-self/io");
    if (!counters.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : counters.readAll().split('\n')) {
        if (line.startsWith("syscw: "))
            return line.mid(7).toInt();
    }
    return -1;
}

} // namespace

// Lines in files, each case in a folder of its own, as a log of its own.
class TestFile : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_watch = std::make_unique<pendanttest::LogWatch>();
        m_folder = std::make_unique<LogFolder>();
        m_name = QString("log%1").arg(++m_logs);
        m_clock.set(noon(2025, 3, 14));
    }
    void cleanup() {
        m_folder.reset();
        m_watch.reset();
    }

    void aLineIsTagModuleAndText() {
        FLog(tag, "<weld>", path(), "log") << QString("a") << QString("b");
        QCOMPARE(content(), "[I|01/02 03:04:05.006]<weld>ab\n");
    }

    void anEmptyModuleAddsNothing() {
        FLog(tag, QString(), path(), "log") << QString("a");
        QCOMPARE(content(), "[I|01/02 03:04:05.006]a\n");
    }

    void aLineMayHaveNoText() {
        { const FLog log("t", "m", path(), "log"); }
        QCOMPARE(content(), "tm\n");
    }

    void linesFollowEachOther() {
        FLog("1", "", path(), "log") << QString("a");
        FLog("2", "", path(), "log") << QString("b");
        QCOMPARE(content(), "1a\n2b\n");
    }

    void whatStandsInTheFileStays() {
        QFile before(m_folder->path(file()));
        QVERIFY(before.open(QIODevice::WriteOnly) && before.write("before\n") > 0);
        before.close();
        FLog("t", "", path(), "log");
        QCOMPARE(content(), "before\nt\n");
    }

    void aBlankFollowsEachItemOnceItIsAskedFor() {
        FLog("t", "", path(), "log").space() << QString("a") << 2;
        QCOMPARE(content(), "ta 2 \n");
    }

    void blanksBeginWhereTheyAreAskedFor() {
        (FLog("t", "m", path(), "log") << QString("a")).space() << QString("b") << static_cast<void*>(nullptr);
        QCOMPARE(content(), "tmab 0x0 \n");
    }

    void textOfAnyLanguageIsKept() {
        FLog("t", "", path(), "log") << QStringLiteral("焊 ü");
        QCOMPARE(content(), QByteArray("t焊 ü\n"));
    }

    void theFolderAndAllAboveAreMade() {
        FLog("t", "", m_folder->path("a/b/") + m_name, "log");
        QCOMPARE(m_folder->content("a/b/" + file()), "t\n");
    }

    void theExtensionIsTheCallers() {
        FLog("t", "", path(), "txt");
        QCOMPARE(m_folder->names(), QStringList(m_name + "_20250314.txt"));
    }

    void theFileOfARelativePathStandsInTheWorkingFolder() {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->root()));
        FLog("t", "", "./log/" + m_name, "log");
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(m_folder->content("log/" + file()), "t\n");
    }

    void aFullFileIsFollowedByTheNext() {
        FLog("t", "", path(), "log");
        QVERIFY(m_folder->make(file(), full - 1));
        FLog("u", "", path(), "log"); // fills it
        FLog("v", "", path(), "log");
        QCOMPARE(QFileInfo(m_folder->path(file())).size(), full + 1);
        QCOMPARE(m_folder->content(m_name + "_20250314_1.log"), "v\n");
    }

    void aLineGoesToTheFileOfTheMomentItWasBegun() {
        m_clock.set(QDateTime(QDate(2025, 3, 14), QTime(23, 59, 59, 999)));
        {
            FLog log("t", "", path(), "log");
            m_clock.advance(1);
            FLog("u", "", path(), "log");
        }
        QCOMPARE(content(), "t\n");
        QCOMPARE(m_folder->content(m_name + "_20250315.log"), "u\n");
    }

    void theSizeIsReported() {
        const qint64 most = 209715200;
        auto* manager = kite::PluginLogFileManager::instance();
        QVERIFY(m_folder->make("oldest.log", 500, 1000));
        // All but 100 bytes, counted for a log that is nowhere. What other cases wrote is counted too, some 100 bytes.
        manager->updateFileSize(m_folder->path("other_20250314.log"), most - 2000);
        QVERIFY(QFile::exists(m_folder->path("oldest.log")));
        FLog("t", "", path(), "log") << QString(5000, 'x');
        manager->updateFileSize(m_folder->path("other_20250314.log"), 0);
        QVERIFY(!QFile::exists(m_folder->path("oldest.log")));
        QCOMPARE(m_watch->count("Cleaned old log file: \"oldest.log\" size: 500"), 1);
    }

    void aFileThatDoesNotOpenGetsNothing() {
        QVERIFY(QDir().mkpath(m_folder->path(file())));
        FLog("t", "m", path(), "log").space() << QString("a") << 1 << static_cast<void*>(nullptr);
        QCOMPARE(m_folder->names(), QStringList());
        QCOMPARE(m_watch->lines(), QStringList());
    }

    // A size that were reported would change what the next request goes by.
    void aFileThatDoesNotOpenHasNoSize() {
        FLog("t", "", path(), "log");
        QVERIFY(QFile::remove(m_folder->path(file())));
        kite::PluginLogFileManager::instance()->updateFileSize(m_folder->path(file()), full);
        QVERIFY(QDir().mkpath(m_folder->path(m_name + "_20250314_1.log")));
        FLog("lost", "", path(), "log");
        QVERIFY(QDir().rmdir(m_folder->path(m_name + "_20250314_1.log")));
        FLog("t", "", path(), "log");
        QCOMPARE(m_folder->names(), QStringList(m_name + "_20250314_1.log"));
    }

    void aLineOnConsoleAndInTheFileDiffersInTheColour() {
        QFLog("\x1b[36m", tag, "<weld>", path(), "log") << QString("a") << 1;
        QCOMPARE(m_watch->lines(), QStringList("\x1b[36m[I|01/02 03:04:05.006]<weld>a1\x1b[0m"));
        QCOMPARE(content(), "[I|01/02 03:04:05.006]<weld>a1\n");
    }

    void blanksGoToConsoleAndFile() {
        QFLog("", "t", "", path(), "log").space() << QString("a") << 1;
        QCOMPARE(m_watch->lines(), QStringList("ta 1 \x1b[0m"));
        QCOMPARE(content(), "ta 1 \n");
    }

    void theConsoleHasItsLineAlsoWhenTheFileHasNot() {
        QVERIFY(QDir().mkpath(m_folder->path(file())));
        QFLog("", "t", "", path(), "log") << QString("a");
        QCOMPARE(m_watch->lines(), QStringList("ta\x1b[0m"));
    }

    void theFilesLineIsFinishedBeforeTheConsoles() {
        static QString name;
        static QByteArray inFile;
        name = m_folder->path(file());
        inFile.clear();
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {
                QFile file(name);
                if (file.open(QIODevice::ReadOnly))
                    inFile = file.readAll();
            });
        QFLog("", "t", "", path(), "log") << QString("a");
        qInstallMessageHandler(before);
        QCOMPARE(inFile, QByteArray("ta\n"));
    }

    void aMessageHandlerMayWriteLines() {
        static QString path;
        path = m_folder->path(m_name);
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& line) {
                FLog("handler ", "", path, "log") << line;
            });
        QFLog("", "t", "", path, "log") << QString("a");
        qInstallMessageHandler(before);
        QCOMPARE(content(), "ta\nhandler ta\x1b[0m\n");
    }

    void aMessageHandlerMayWriteOfANameThatNoFileHas() {
        static QString path;
        path = m_folder->path(m_name);
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& line) {
                FLog("handler ", "", path, "log") << line;
            });
        FLog("t", "", m_folder->path("a") + QChar(0) + "/b", "log") << QString("lost");
        FLog("t", "", path, QString("l") + QChar(0) + "og") << QString("lost");
        kite::PluginLogFileManager manager(nullptr);
        manager.updateFileSize(m_folder->path("a") + QChar(0) + "/b_20250314.log", 209715201);
        qInstallMessageHandler(before);
        QCOMPARE(m_folder->names(), QStringList());
        QVERIFY(!QDir(m_folder->path("a")).exists());
    }

    // The file goes between the line's beginning and its end, as the oldest one there is.
    void aFileThatIsCleanedUpWithinALineTakesTheLineWithIt() {
        const qint64 most = 209715200;
        auto* manager = kite::PluginLogFileManager::instance();
        {
            FLog log("t", "", path(), "log");
            manager->updateFileSize(m_folder->path("other_20250314.log"), most + 1000);
            QCOMPARE(m_folder->names(), QStringList());
            manager->updateFileSize(m_folder->path("other_20250314.log"), 0);
            log << QString("lost");
        }
        QCOMPARE(m_folder->names(), QStringList());
        FLog("after", "", path(), "log");
        QCOMPARE(content(), "after\n");
        QCOMPARE(m_watch->lines(), QStringList(QString("Cleaned old log file: \"%1\" size: 0").arg(file())));
    }

    void aLineIsOneWriteUpToSixteenKibiCharacters_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("writes");
        QTest::newRow("short") << QString("x") << 1;
        QTest::newRow("one less") << QString(16383, 'x') << 1;
        QTest::newRow("exactly") << QString(16384, 'x') << 1;
        QTest::newRow("one more") << QString(16385, 'x') << 2;
        QTest::newRow("characters of three bytes") << QString(16384, QChar(0x710a)) << 1;
    }
    void aLineIsOneWriteUpToSixteenKibiCharacters() {
        QFETCH(QString, text);
        const QString half = text.left(text.size() / 2);
        FLog("", "", path(), "log");
        const int before = writesOfThisThread();
        FLog("", "", path(), "log") << half << text.mid(half.size());
        const int after = writesOfThisThread();
        QVERIFY(before >= 0);
        QTEST(after - before, "writes");
        QCOMPARE(content(), '\n' + text.toUtf8() + '\n');
    }

    void longLinesAreWhole_data() {
        QTest::addColumn<int>("length");
        for (const int length : {0, 1, 16382, 16383, 16384, 16385, 100000, 1000000})
            QTest::addRow("%d", length) << length;
    }
    void longLinesAreWhole() {
        QFETCH(int, length);
        FLog("", "", path(), "log") << QString(length, 'x');
        QCOMPARE(content(), QByteArray(length, 'x') + '\n');
    }

private:
    QString path() const { return m_folder->path(m_name); }
    QString file() const { return m_name + "_20250314.log"; }
    QByteArray content() const { return m_folder->content(file()); }

    Clock m_clock;
    int m_logs = 0;
    QString m_name;
    std::unique_ptr<pendanttest::LogWatch> m_watch;
    std::unique_ptr<LogFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestFile)
#include "tst_logging_file.moc"
