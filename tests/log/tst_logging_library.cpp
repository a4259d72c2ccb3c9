#include "logfolder.h"

#include "kite/kite.h"

#include "pendanttest/logwatch.h"

#include <QTest>

// What a plugin takes from libkite.so.1 itself; the other tests compile the sources once more.
class TestLibrary : public QObject {
    Q_OBJECT

private slots:
    void theStreamsWrite() {
        const LogFolder folder;
        const pendanttest::LogWatch watch;
        const QVariant value(2.5);
        const void* pointer = &value;
        kite::QLog("", "q", "").space() << QString("a") << value << pointer;
        kite::FLog("f", "", folder.path("kite"), "log").space() << QString("a") << value << pointer;
        kite::QFLog("", "b", "", folder.path("kite"), "log").space() << QString("a") << value << pointer;
        const QString rest = QString("a 2.5 0x%1 ").arg(quintptr(pointer), 0, 16);
        QCOMPARE(watch.lines(), QStringList({'q' + rest + "\x1b[0m", 'b' + rest + "\x1b[0m"}));
        QCOMPARE(folder.lines(), QList<QByteArray>({'f' + rest.toLatin1(), 'b' + rest.toLatin1()}));
    }

    void theManagerNamesAndDeletes() {
        const LogFolder folder;
        const pendanttest::LogWatch watch;
        kite::PluginLogFileManager manager(nullptr);
        const QString day = QDate::currentDate().toString("yyyyMMdd");
        const QString name = manager.getProperLogFileName(folder.path("kite"), "log");
        if (day == QDate::currentDate().toString("yyyyMMdd"))
            QCOMPARE(name, manager.buildFileName(folder.path("kite"), day, 0, "log"));
        QVERIFY(folder.make("kite_20250314.log", 1, 100));
        manager.updateFileSize(name, 209715200);
        manager.cleanupOldFiles(name);
        QCOMPARE(folder.names(), QStringList("kite_20250314.log"));
        manager.updateFileSize(name, 209715201);
        QCOMPARE(folder.names(), QStringList());
    }

    void thereIsOneManagerInTheProcess() {
        QVERIFY(kite::PluginLogFileManager::instance());
        QCOMPARE(kite::PluginLogFileManager::instance(), kite::PluginLogFileManager::instance());
    }

    // An object that is made while the process starts goes when it ends, after main() and after the thread's own data.
    void aLineCanBeWrittenWhileTheProcessEnds() { static const EndOfProcess atTheEnd; }

private:
    struct EndOfProcess {
        ~EndOfProcess() {
            const LogFolder folder;
            kite::FLog("", "", folder.path("kite"), "log") << kite::logTime().size();
            if (folder.lines() != QList<QByteArray>({"18"}))
                qFatal("The line was not written.");
        }
    };
};

QTEST_APPLESS_MAIN(TestLibrary)
#include "tst_logging_library.moc"
