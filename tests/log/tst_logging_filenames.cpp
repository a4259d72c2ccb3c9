#include "log/filenames.h"

#include "kite/logfilemanager.h"

#include <QTest>

class TestFileNames : public QObject {
    Q_OBJECT

private slots:
    void aNameIsBuiltOfPathDayAndIndex_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("ext");
        QTest::addColumn<QString>("name");
        QTest::newRow("the first") << "./log/kite" << 0 << "log"
                                   << "./log/kite_20250314.log";
        QTest::newRow("the third") << "./log/kite" << 2 << "log"
                                   << "./log/kite_20250314_2.log";
        QTest::newRow("a negative index is none of the first") << "kite" << -1 << "log"
                                                               << "kite_20250314_-1.log";
        QTest::newRow("another extension") << "/a/b" << 10 << "txt"
                                           << "/a/b_20250314_10.txt";
        QTest::newRow("what looks like a place is text") << "./%2/%1" << 0 << "%3"
                                                         << "./%2/%1_20250314.%3";
    }
    void aNameIsBuiltOfPathDayAndIndex() {
        QFETCH(QString, path);
        QFETCH(int, index);
        QFETCH(QString, ext);
        kite::PluginLogFileManager manager(nullptr);
        QTEST(manager.buildFileName(path, "20250314", index, ext), "name");
    }

    void aKeyIsTheLogsNameAndTheDay_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("key");
        QTest::newRow("in a folder") << "./log/kite"
                                     << "kite_20250314";
        QTest::newRow("in no folder") << "kite"
                                      << "kite_20250314";
        QTest::newRow("with a separator") << "/my_mod"
                                          << "my_mod_20250314";
        QTest::newRow("with a dot") << "./log/a.b"
                                    << "a.b_20250314";
        QTest::newRow("without a name") << "./log/"
                                        << "_20250314";
    }
    void aKeyIsTheLogsNameAndTheDay() {
        QFETCH(QString, path);
        QTEST(kite::dayKey(path, "20250314"), "key");
    }

    void aFileTellsItsKey_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("key");
        QTest::newRow("the first of a day") << "./log/kite_20250314.log"
                                            << "kite_20250314";
        QTest::newRow("with an index") << "./log/kite_20250314_2.log"
                                       << "kite_20250314";
        QTest::newRow("with anything behind the day") << "kite_20250314_x.log"
                                                      << "kite_20250314";
        QTest::newRow("more dots") << "kite_20250314_2.log.gz"
                                   << "kite_20250314";
        QTest::newRow("dots in the folder") << "./a.b/kite_20250314.log"
                                            << "kite_20250314";
        QTest::newRow("separators in the folder") << "./a_b_c/kite_20250314.log"
                                                  << "kite_20250314";
        QTest::newRow("no extension") << "kite_20250314"
                                      << "kite_20250314";
        QTest::newRow("no name") << "./_20250314.log"
                                 << "_20250314";
        QTest::newRow("a separator in the name, with an index") << "my_mod_20250314_1.log"
                                                                << "my_mod_20250314";
        QTest::newRow("two of them") << "a_b_c_20250314_1.log"
                                     << "a_b_c_20250314";
        QTest::newRow("the day is any eight characters") << "kite_yyyymmdd.log"
                                                         << "kite_yyyymmdd";

        QTest::newRow("a separator in the name") << "./log/my_mod_20250314.log"
                                                 << "";
        QTest::newRow("seven digits") << "./log/kite_2025031.log"
                                      << "";
        QTest::newRow("nine digits") << "./log/kite_202503140.log"
                                     << "";
        QTest::newRow("no day") << "./log/kite.log"
                                << "";
        QTest::newRow("a day alone") << "20250314.log"
                                     << "";
        QTest::newRow("no day before the index") << "kite_1_20250314.log"
                                                 << "";
        QTest::newRow("empty parts") << "kite__20250314.log"
                                     << "";
        QTest::newRow("a dot in the name") << "./log/a.b_20250314.log"
                                           << "";
        QTest::newRow("a hidden file") << ".kite_20250314.log"
                                       << "";
        QTest::newRow("nothing") << ""
                                 << "";
    }
    void aFileTellsItsKey() {
        QFETCH(QString, file);
        QTEST(kite::dayKeyOfFile(file), "key");
    }

    void aFileTellsItsIndex_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("index");
        QTest::newRow("the first of a day") << "kite_20250314.log" << 0;
        QTest::newRow("the second") << "kite_20250314_1.log" << 1;
        QTest::newRow("with zeros") << "kite_20250314_007.log" << 7;
        QTest::newRow("no number") << "kite_20250314_x.log" << 0;
        QTest::newRow("nothing behind the separator") << "kite_20250314_.log" << 0;
        QTest::newRow("a negative one") << "kite_20250314_-3.log" << 0;
        QTest::newRow("zero") << "kite_20250314_0.log" << 0;
        QTest::newRow("the greatest") << "kite_20250314_2147483647.log" << 2147483647;
        QTest::newRow("too great to be read") << "kite_20250314_2147483648.log" << 0;
        QTest::newRow("a separator in the name: the day is taken for it") << "my_mod_20250314.log" << 20250314;
        QTest::newRow("a separator in the name and an index: none") << "my_mod_20250314_5.log" << 0;
        QTest::newRow("two separators in the name: none") << "a_b_c_20250314.log" << 0;
    }
    void aFileTellsItsIndex() {
        QFETCH(QString, file);
        QTEST(kite::indexInFileName(file), "index");
    }
};

QTEST_APPLESS_MAIN(TestFileNames)
#include "tst_logging_filenames.moc"
