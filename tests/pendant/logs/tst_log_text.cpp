#include "logfixture.h"
#include "logs/logentries.h"

#include <QRandomGenerator>

#include <sys/fsuid.h>
#include <sys/stat.h>

using pendant::LogPlace;
using pendant::LogText;

class TestLogText : public QObject {
    Q_OBJECT

private slots:
    void nothingHasNoRows();
    void rowsAreTheLinesOfAllFilesInOrder();
    void bothWaysMeetTheSameRows_data();
    void bothWaysMeetTheSameRows();
    void everyByteIsInTheRowThatIsMetOnTheWay();
    void aLineThatIsHalfWrittenGrows();
    void aFileThatComesAfterTheLastIsReadOn();
    void placesStayWhenTheOldestFileGoes();
    void whatIsNoLongerTheSameFileBeginsAnew_data();
    void whatIsNoLongerTheSameFileBeginsAnew();
    void anOlderFileThatChangesIsFoundOut();
    void aFileThatMayNotBeReadIsNamedAndTheOthersAreShown();
    void aPipeInPlaceOfAFileDoesNotBlock();
    void ofManyFilesOnlyWhatIsShownIsRead();
    void aFileWithoutAnyLineBreakIsReadInPieces();
    void aFractionLeadsToAboutThatPlace();
    void anEntryIsFoundFromAnyOfItsRows();
};

void TestLogText::nothingHasNoRows() {
    LogText text;
    QCOMPARE(text.refresh(), LogText::Unchanged);
    QVERIFY(text.first() == text.end());
    QVERIFY(!text.previous(text.end()).isValid());
    QVERIFY(text.next(text.end()) == text.end());
    QCOMPARE(text.row(text.end()), QByteArray());
    QCOMPARE(text.fractionBefore(text.end()), 0.0);
    QVERIFY(text.rowAtFraction(0.5) == text.end());
}

void TestLogText::rowsAreTheLinesOfAllFilesInOrder() {
    const LogFixture logs;
    logs.write("kite_20250313.log", "a\nb\r\n");
    logs.write("kite_20250314.log", "");
    logs.write("kite_20250314_1.log", "c\n\nwithout break");
    logs.write("kite_20250314_2.log", "d\n");
    LogText text;
    QCOMPARE(text.setFiles(logs.files()), LogText::Grown);
    const QList<QByteArray> lines{"a", "b", "c", "", "without break", "d"};
    QCOMPARE(rowsForwards(text, text), lines);
    QCOMPARE(rowsBackwards(text, text), lines);
    QCOMPARE(text.size(), qint64(5 + 16 + 2));
}

void TestLogText::bothWaysMeetTheSameRows_data() {
    QTest::addColumn<int>("longest");
    QTest::newRow("short lines") << 200;
    QTest::newRow("lines of a block") << LogText::blockSize;
    QTest::newRow("lines of many blocks") << 5 * LogText::blockSize;
}

void TestLogText::bothWaysMeetTheSameRows() {
    QFETCH(int, longest);
    QRandomGenerator random(7);
    QByteArray bytes;
    while (bytes.size() < 12 * LogText::blockSize)
        bytes += QByteArray(random.bounded(longest), 'x') + '\n';
    const LogFixture logs;
    logs.write("kite_20250314.log", bytes);
    LogText text;
    text.setFiles(logs.files());
    const QList<QByteArray> rows = rowsForwards(text, text);
    QCOMPARE(rowsBackwards(text, text), rows);
    int covered = 0;
    for (const QByteArray& row : rows) {
        QVERIFY(row.size() <= 2 * LogText::blockSize);
        covered += row.size();
    }
    QCOMPARE(covered, bytes.count('x'));
}

void TestLogText::everyByteIsInTheRowThatIsMetOnTheWay() {
    QByteArray bytes("short\n");
    bytes += QByteArray(3 * LogText::blockSize, 'x') + "\n\nend\n";
    const LogFixture logs;
    logs.write("kite_20250314.log", bytes);
    LogText text;
    text.setFiles(logs.files());
    for (LogPlace row = text.first(); row < text.end(); row = text.next(row)) {
        const LogPlace next = text.next(row);
        for (const qint64 offset : {row.offset, (row.offset + next.offset) / 2, next.offset - 1})
            QVERIFY(text.rowAt({row.file, offset}) == row);
    }
}

void TestLogText::aLineThatIsHalfWrittenGrows() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "a\nhal");
    LogText text;
    text.setFiles(logs.files());
    QCOMPARE(rowsForwards(text, text), QList<QByteArray>({"a", "hal"}));
    logs.append("kite_20250314.log", "f\nb");
    QCOMPARE(rowsForwards(text, text), QList<QByteArray>({"a", "hal"}));
    QCOMPARE(text.refresh(), LogText::Grown);
    QCOMPARE(rowsForwards(text, text), QList<QByteArray>({"a", "half", "b"}));
    QCOMPARE(text.refresh(), LogText::Unchanged);
}

void TestLogText::aFileThatComesAfterTheLastIsReadOn() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "a\n");
    LogText text;
    text.setFiles(logs.files());
    const LogPlace end = text.end();
    logs.write("kite_20250314_7.log", "b\n");
    QCOMPARE(text.setFiles(logs.files()), LogText::Grown);
    QCOMPARE(text.grownBefore(), -1);
    QCOMPARE(rowsForwards(text, text), QList<QByteArray>({"a", "b"}));
    QCOMPARE(text.row(text.rowAt(end)), QByteArray("b"));
    // A late writer still has the old file.
    logs.append("kite_20250314.log", "late\n");
    QCOMPARE(text.refresh(), LogText::Grown);
    QCOMPARE(rowsBackwards(text, text), QList<QByteArray>({"a", "late", "b"}));
    QCOMPARE(text.grownBefore(), text.firstFile());
}

void TestLogText::placesStayWhenTheOldestFileGoes() {
    const LogFixture logs;
    for (const char* name : {"kite_20250312.log", "kite_20250313.log", "kite_20250314.log"})
        logs.write(name, QByteArray(name) + '\n');
    LogText text;
    text.setFiles(logs.files());
    const LogPlace second = text.next(text.first());
    QFile::remove(logs.path("kite_20250312.log"));
    logs.write("kite_20250315.log", "new\n");
    QCOMPARE(text.setFiles(logs.files()), LogText::Grown);
    QVERIFY(text.first() == second);
    QCOMPARE(text.row(second), QByteArray("kite_20250313.log"));
    QVERIFY(!text.previous(second).isValid());
    QVERIFY(text.rowAt({second.file - 1, 3}) == second);
    QCOMPARE(text.fileCount(), 3);
}

void TestLogText::whatIsNoLongerTheSameFileBeginsAnew_data() {
    QTest::addColumn<int>("change");
    QTest::newRow("shorter") << 0;
    QTest::newRow("emptied") << 1;
    QTest::newRow("removed") << 2;
    QTest::newRow("a folder") << 3;
    QTest::newRow("written anew, longer") << 4;
    QTest::newRow("another one that begins alike") << 5;
}

void TestLogText::whatIsNoLongerTheSameFileBeginsAnew() {
    QFETCH(int, change);
    const LogFixture logs;
    const QString name("kite_20250314.log");
    const QByteArray first(100, 'x');
    const QByteArray before = first + "\nsecond\n";
    logs.write(name, before);
    LogText text;
    text.setFiles(logs.files());
    const LogPlace old = text.next(text.first());
    if (change == 0)
        QVERIFY(QFile::resize(logs.path(name), 101));
    if (change == 1)
        logs.write(name, "");
    if (change == 5)
        logs.write("other", before + "third\n");
    if (change > 1)
        QVERIFY(QFile::remove(logs.path(name)));
    if (change == 3)
        QVERIFY(QDir().mkdir(logs.path(name)));
    if (change == 4)
        logs.write(name, "other lines than before\n" + before);
    if (change == 5)
        QVERIFY(QFile::rename(logs.path("other"), logs.path(name)));
    QCOMPARE(text.refresh(), LogText::Anew);
    const QList<QList<QByteArray>> left{
        {first}, {}, {}, {}, {"other lines than before", first, "second"}, {first, "second", "third"}};
    QCOMPARE(rowsForwards(text, text), left.at(change));
    QVERIFY(text.rowAt(old) == text.first());
    QString path;
    QCOMPARE(text.problem(&path).isEmpty(), change != 2 && change != 3);
    QCOMPARE(text.refresh(), LogText::Unchanged);
}

void TestLogText::anOlderFileThatChangesIsFoundOut() {
    const LogFixture logs;
    for (int i = 1; i < 6; ++i)
        logs.write(QString("kite_20250314_%1.log").arg(i), "first\nsecond\n");
    LogText text;
    text.setFiles(logs.files());
    logs.write("kite_20250314_2.log", "x\n");
    LogText::Change change = LogText::Unchanged;
    for (int i = 0; i < 5 && change == LogText::Unchanged; ++i)
        change = text.refresh();
    QCOMPARE(change, LogText::Anew);
    QVERIFY(rowsForwards(text, text).contains("x"));
}

void TestLogText::aFileThatMayNotBeReadIsNamedAndTheOthersAreShown() {
    const LogFixture logs;
    logs.write("kite_20250313.log", "a\n");
    logs.write("kite_20250314.log", "secret\n");
    QVERIFY(QFile::setPermissions(logs.path("kite_20250314.log"), {}));
    logs.letOthersIn();
    LogText text;
    // Who is root may read everything.
    const int user = ::setfsuid(65534);
    text.setFiles(logs.files());
    ::setfsuid(static_cast<uid_t>(user));
    QString path;
    QVERIFY(!text.problem(&path).isEmpty());
    QCOMPARE(path, logs.path("kite_20250314.log"));
    QCOMPARE(rowsForwards(text, text), QList<QByteArray>({"a"}));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QCOMPARE(text.refresh(), LogText::Grown);
    QVERIFY(text.problem(&path).isEmpty());
    QCOMPARE(rowsForwards(text, text), QList<QByteArray>({"a", "secret"}));
}

void TestLogText::aPipeInPlaceOfAFileDoesNotBlock() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "a\n");
    LogText text;
    text.setFiles(logs.files());
    QVERIFY(QFile::remove(logs.path("kite_20250314.log")));
    QCOMPARE(::mkfifo(QFile::encodeName(logs.path("kite_20250314.log")).constData(), 0600), 0);
    QCOMPARE(text.refresh(), LogText::Anew);
    QVERIFY(text.first() == text.end());
}

void TestLogText::ofManyFilesOnlyWhatIsShownIsRead() {
    const LogFixture logs;
    QByteArray megabyte;
    while (megabyte.size() < 1048576)
        megabyte += LogFixture::info("Seam done, and the wire is not yet at its end");
    logs.write("kite_20250314.log", megabyte);
    for (int i = 1; i < 10; ++i)
        logs.append("kite_20250314.log", megabyte);
    for (int i = 1; i < 20; ++i)
        logs.link("kite_20250314.log", QString("kite_20250314_%1.log").arg(i));
    const qint64 before = bytesRead();
    QVERIFY(before >= 0);
    LogText text;
    text.setFiles(logs.files());
    QVERIFY(text.size() > 200 * 1048576);
    LogPlace row = text.end();
    for (int i = 0; i < 40; ++i)
        row = text.previous(row);
    for (int i = 0; i < 40; ++i, row = text.next(row))
        QVERIFY(text.row(row).endsWith("its end"));
    QVERIFY(text.row(text.rowAtFraction(0.5)).endsWith("its end"));
    QVERIFY(bytesRead() - before < 1048576);
}

void TestLogText::aFileWithoutAnyLineBreakIsReadInPieces() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "");
    QVERIFY(QFile::resize(logs.path("kite_20250314.log"), 200 * 1048576 + 5));
    LogText text;
    text.setFiles(logs.files());
    const LogPlace last = text.previous(text.end());
    QCOMPARE(text.row(last), QByteArray(5, '\0'));
    QCOMPARE(text.row(text.previous(last)).size(), LogText::blockSize);
    QCOMPARE(text.row(text.first()).size(), LogText::blockSize);
}

void TestLogText::aFractionLeadsToAboutThatPlace() {
    const LogFixture logs;
    QByteArray half;
    for (int i = 0; i < 500; ++i)
        half += "0123456789\n";
    logs.write("kite_20250313.log", half);
    logs.write("kite_20250314.log", half);
    LogText text;
    text.setFiles(logs.files());
    for (const double fraction : {0.0, 0.25, 0.5, 0.75, 0.99})
        QVERIFY(qAbs(text.fractionBefore(text.rowAtFraction(fraction)) - fraction) < 0.002);
    QCOMPARE(text.fractionBefore(text.end()), 1.0);
}

void TestLogText::anEntryIsFoundFromAnyOfItsRows() {
    const LogFixture logs;
    const QByteArray entry = LogFixture::line("E", "09:00:00.000", "Arc lost") + "  at seam\n  by hand\n";
    logs.write("kite_20250314.log", "plain\n" + entry + LogFixture::info("next"));
    LogText text;
    text.setFiles(logs.files());
    LogPlace row = text.first();
    QCOMPARE(pendant::logEntryAt(text, row), QByteArray("plain\n"));
    for (int i = 0; i < 3; ++i) {
        row = text.next(row);
        QCOMPARE(pendant::logEntryAt(text, row), entry);
    }
    QCOMPARE(pendant::logEntryAt(text, text.next(row)), LogFixture::info("next"));
}

QTEST_GUILESS_MAIN(TestLogText)
#include "tst_log_text.moc"
