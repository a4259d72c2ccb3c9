#include "logfixture.h"

#include <sys/stat.h>

using pendant::LogFile;

class TestLogFiles : public QObject {
    Q_OBJECT

private slots:
    void aNameTellsLogDayAndIndex_data();
    void aNameTellsLogDayAndIndex();
    void filesComeInTheOrderOfWriting();
    void everyLogFileBelowTheFolderIsFoundAndNothingElse();
    void withoutAFolderThereAreNone();
};

void TestLogFiles::aNameTellsLogDayAndIndex_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("index");
    const QDate day(2025, 3, 14);
    QTest::newRow("first of the day") << "kite_20250314.log"
                                      << "kite" << day << 0;
    QTest::newRow("rotated") << "kite_20250314_12.log"
                             << "kite" << day << 12;
    QTest::newRow("name with an underscore") << "my_mod_20250314_2.log"
                                             << "my_mod" << day << 2;
    QTest::newRow("index that looks like a day") << "my_mod_20250314_20250314.log"
                                                 << "my_mod" << day << 20250314;
    QTest::newRow("in a subfolder") << "cell/feeder_20250314.log"
                                    << "cell/feeder" << day << 0;
    QTest::newRow("no day") << "boot.log"
                            << "boot" << QDate() << 0;
    QTest::newRow("a number that is no day") << "boot_20259999.log"
                                             << "boot_20259999" << QDate() << 0;
    QTest::newRow("a day alone") << "20250314.log"
                                 << "20250314" << QDate() << 0;
    QTest::newRow("a short number") << "boot_3.log"
                                    << "boot_3" << QDate() << 0;
    QTest::newRow("a dot in the name") << "v1.2_20250314.log"
                                       << "v1.2" << day << 0;
    QTest::newRow("nothing before the ending") << ".log"
                                               << "" << QDate() << 0;
}

void TestLogFiles::aNameTellsLogDayAndIndex() {
    QFETCH(QString, name);
    const LogFile file = pendant::logFileOf("/data/log", "/data/log/" + name);
    QTEST(file.log, "log");
    QTEST(file.day, "day");
    QTEST(file.index, "index");
    QCOMPARE(file.path, "/data/log/" + name);
}

void TestLogFiles::filesComeInTheOrderOfWriting() {
    const LogFixture logs;
    const QStringList order{"a_20250314.log", "kite_20250313.log", "kite_20250314.log", "kite_20250314_2.log",
                            "kite_20250314_10.log"};
    for (const QString& name : {order[4], order[2], order[0], order[3], order[1]})
        logs.write(name, "x\n");
    QStringList found;
    for (const LogFile& file : logs.files())
        found << file.path.mid(logs.folder().size() + 1);
    QCOMPARE(found, order);
}

void TestLogFiles::everyLogFileBelowTheFolderIsFoundAndNothingElse() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "x\n");
    logs.write("deep/er/kite_20250314.log", "x\n");
    logs.write("kite_20250314.txt", "x\n");
    QVERIFY(QDir(logs.folder()).mkdir("folder.log"));
    QCOMPARE(::mkfifo(QFile::encodeName(logs.path("pipe.log")).constData(), 0600), 0);
    QVERIFY(QFile::link(logs.folder(), logs.path("loop")));
    QStringList found;
    for (const LogFile& file : logs.files())
        found << file.path.mid(logs.folder().size() + 1);
    QCOMPARE(found, QStringList({"deep/er/kite_20250314.log", "kite_20250314.log"}));
}

void TestLogFiles::withoutAFolderThereAreNone() {
    const LogFixture logs;
    QVERIFY(pendant::findLogFiles(logs.path("nothing")).isEmpty());
}

QTEST_GUILESS_MAIN(TestLogFiles)
#include "tst_log_files.moc"
