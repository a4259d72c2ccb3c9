#include "logfixture.h"
#include "logs/logsearch.h"

#include <QSignalSpy>

using pendant::LogFilter;
using pendant::LogPlace;
using pendant::LogSearch;
using pendant::LogText;

namespace {

LogFilter text(const QString& part) {
    LogFilter filter;
    filter.text = part;
    return filter;
}

LogFilter level(int levels) {
    LogFilter filter;
    filter.levels = levels;
    return filter;
}

// Lines of which every tenth is an error with a line that belongs to it.
QByteArray manyLines(int count, const QByteArray& name) {
    QByteArray lines;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = name + ' ' + QByteArray::number(i);
        lines += i % 10 == 0
                     ? LogFixture::line("E", "09:00:00.000", "<weld>Arc lost " + number) + "  at " + number + '\n'
                     : LogFixture::info("Seam " + number);
    }
    return lines;
}

} // namespace

class TestLogSearch : public QObject {
    Q_OBJECT

private slots:
    void entriesAreFoundWithAllTheirLines();
    void entriesOfManyLinesStayWhole();
    void whatIsFoundIsWhatALookAtEveryLineFinds();
    void theNewestIsFoundFirst();
    void whatIsWrittenMeanwhileIsFound();
    void aLineThatIsHalfWrittenIsFoundWhenItIsWhole();
    void aLineThatJoinsTheNewestEntryIsShownWithIt();
    void whatComesInTheNextFileIsFound();
    void whatIsWrittenToAnOlderFileIsFoundInItsPlace();
    void whatGoesWithTheOldestFileIsGone();
    void aStoppedSearchLooksNoFurtherBackButGoesOnWithTheNew();
    void aForgottenSearchLooksAtNothing();
    void theNewestAreKeptWhereThereAreTooMany();
    void nothingToSearchIsSoonDone();
    void aFileWithoutTagsIsSearchedLineByLine();
    void rowsOfHitsLeadFromEndToEndAndBack();

private:
    static void finish(const LogSearch& search) { QTRY_VERIFY(!search.isRunning()); }
};

void TestLogSearch::entriesAreFoundWithAllTheirLines() {
    const LogFixture logs;
    logs.write("kite_20250314.log", manyLines(25, "a"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(level(LogFilter::Error));
    finish(search);
    QVERIFY(search.isComplete());
    QCOMPARE(search.progress(), 1.0);
    QCOMPARE(search.hits().count(), 3);
    const QList<QByteArray> rows = rowsForwards(log, search.hits());
    QCOMPARE(rows.size(), 6);
    QVERIFY(rows.at(2).endsWith("Arc lost a 10"));
    QCOMPARE(rows.at(3), QByteArray("  at a 10"));
}

void TestLogSearch::entriesOfManyLinesStayWhole() {
    const LogFixture logs;
    QByteArray lines;
    for (int i = 0; i < 500; ++i)
        lines += LogFixture::line("E", "09:00:00.000", "<weld>Arc lost") +
                 QByteArray("  at seam 4, point 17\n").repeated(99);
    logs.write("kite_20250314.log", lines);
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(level(LogFilter::Error));
    finish(search);
    QCOMPARE(search.hits().count(), 500);
    QCOMPARE(rowsForwards(log, search.hits()).size(), 50000);
}

void TestLogSearch::whatIsFoundIsWhatALookAtEveryLineFinds() {
    const LogFixture logs;
    for (int i = 1; i < 4; ++i)
        logs.write(QString("kite_20250314_%1.log").arg(i), manyLines(20000, QByteArray::number(i)));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text(" 77"));
    finish(search);
    QList<QByteArray> expected;
    for (const QByteArray& row : rowsForwards(log, log)) {
        if (row.contains(" 77"))
            expected.append(row);
    }
    QVERIFY(expected.size() > 300);
    QCOMPARE(rowsForwards(log, search.hits()), expected);
    QCOMPARE(rowsBackwards(log, search.hits()), expected);
}

void TestLogSearch::theNewestIsFoundFirst() {
    const LogFixture logs;
    logs.write("kite_20250313.log", manyLines(200000, "old"));
    logs.write("kite_20250314.log", manyLines(10, "new"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    QSignalSpy progressed(&search, &LogSearch::progressed);
    search.start(text("lost"));
    QTRY_VERIFY(progressed.count() > 0);
    QVERIFY(search.isRunning());
    QVERIFY(search.progress() > 0 && search.progress() < 1);
    QVERIFY(rowsBackwards(log, search.hits()).contains("  at new 0"));
    QVERIFY(search.hits().count() < 20000);
    finish(search);
    QCOMPARE(search.hits().count(), 20001);
}

void TestLogSearch::whatIsWrittenMeanwhileIsFound() {
    const LogFixture logs;
    logs.write("kite_20250314.log", manyLines(1, "a"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    QSignalSpy progressed(&search, &LogSearch::progressed);
    // More than a stretch at once.
    logs.append("kite_20250314.log", manyLines(30000, "b"));
    log.refresh();
    search.textGrown();
    QTRY_COMPARE(search.hits().count(), 3001);
    QVERIFY(!progressed.isEmpty());
    const QList<QByteArray> rows = rowsForwards(log, search.hits());
    QCOMPARE(rows.size(), 6002);
    QCOMPARE(rows.last(), QByteArray("  at b 29990"));
    QVERIFY(search.isComplete());
}

void TestLogSearch::aLineThatIsHalfWrittenIsFoundWhenItIsWhole() {
    const LogFixture logs;
    logs.write("kite_20250314.log", LogFixture::info("a") + LogFixture::info("Arc lost").chopped(5));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    QCOMPARE(search.hits().count(), 0);
    logs.append("kite_20250314.log", "lost\n");
    log.refresh();
    search.textGrown();
    QTRY_COMPARE(search.hits().count(), 1);
    QVERIFY(rowsForwards(log, search.hits()).first().endsWith("Arc lost"));
}

void TestLogSearch::aLineThatJoinsTheNewestEntryIsShownWithIt() {
    const LogFixture logs;
    logs.write("kite_20250314.log", LogFixture::info("a") + LogFixture::info("Arc lost"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    logs.append("kite_20250314.log", "  at seam\n" + LogFixture::info("b"));
    log.refresh();
    search.textGrown();
    QTRY_COMPARE(rowsForwards(log, search.hits()).size(), 2);
    QCOMPARE(search.hits().count(), 1);
}

void TestLogSearch::whatComesInTheNextFileIsFound() {
    const LogFixture logs;
    logs.write("kite_20250314.log", manyLines(1, "a"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    logs.append("kite_20250314.log", manyLines(1, "b"));
    logs.write("kite_20250314_1.log", "");
    logs.write("kite_20250314_5.log", manyLines(1, "c"));
    log.setFiles(logs.files());
    search.textGrown();
    QTRY_COMPARE(search.hits().count(), 3);
    QCOMPARE(rowsForwards(log, search.hits()).last(), QByteArray("  at c 0"));
}

void TestLogSearch::whatIsWrittenToAnOlderFileIsFoundInItsPlace() {
    const LogFixture logs;
    for (const char* index : {"1", "2", "3"})
        logs.write(QString("kite_20250314_%1.log").arg(index), manyLines(11, index));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    logs.write("kite_20250314_4.log", manyLines(11, "4"));
    log.setFiles(logs.files());
    search.textGrown();
    QTRY_COMPARE(search.hits().count(), 8);
    for (const char* index : {"1", "2", "3"})
        logs.append(QString("kite_20250314_%1.log").arg(index), manyLines(1, index + QByteArray("late")));
    log.setFiles(logs.files());
    search.textGrown();
    QTRY_COMPARE(search.hits().count(), 11);
    QStringList found;
    for (const QByteArray& row : rowsForwards(log, search.hits())) {
        if (row.startsWith("  at "))
            found << row.mid(5);
    }
    QCOMPARE(found, QStringList(
                        {"1 0", "1 10", "1late 0", "2 0", "2 10", "2late 0", "3 0", "3 10", "3late 0", "4 0", "4 10"}));
}

void TestLogSearch::whatGoesWithTheOldestFileIsGone() {
    const LogFixture logs;
    logs.write("kite_20250313.log", manyLines(1, "a"));
    logs.write("kite_20250314.log", manyLines(1, "b"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    QCOMPARE(search.hits().count(), 2);
    QFile::remove(logs.path("kite_20250313.log"));
    log.setFiles(logs.files());
    search.textGrown();
    QCOMPARE(search.hits().count(), 1);
    QCOMPARE(rowsForwards(log, search.hits()).last(), QByteArray("  at b 0"));
}

void TestLogSearch::aStoppedSearchLooksNoFurtherBackButGoesOnWithTheNew() {
    const LogFixture logs;
    logs.write("kite_20250314.log", manyLines(200000, "a"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    QSignalSpy progressed(&search, &LogSearch::progressed);
    search.start(text("lost"));
    QTRY_VERIFY(progressed.count() > 0);
    search.stop();
    QVERIFY(!search.isRunning());
    QVERIFY(!search.isComplete());
    const int before = search.hits().count();
    QVERIFY(before < 20000);
    logs.append("kite_20250314.log", manyLines(1, "b"));
    log.refresh();
    search.textGrown();
    QTRY_COMPARE(search.hits().count(), before + 1);
    QVERIFY(!search.isComplete());
}

void TestLogSearch::aForgottenSearchLooksAtNothing() {
    const LogFixture logs;
    logs.write("kite_20250314.log", manyLines(10, "a"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    search.forget();
    QVERIFY(!search.isActive());
    logs.append("kite_20250314.log", manyLines(10, "b"));
    log.refresh();
    search.textGrown();
    QCoreApplication::processEvents();
    QCOMPARE(search.hits().count(), 0);
    QVERIFY(search.hits().first() == search.hits().end());
    QVERIFY(!search.hits().previous(search.hits().end()).isValid());
}

void TestLogSearch::theNewestAreKeptWhereThereAreTooMany() {
    const LogFixture logs;
    const QByteArray line("[I|03/14 09:00:00.000]x\n");
    logs.write("kite_20250314.log", "[I|03/14 09:00:00.000]x first\n" + line.repeated(250000));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("x"));
    finish(search);
    QVERIFY(search.hits().isFull());
    QVERIFY(!search.isComplete());
    QCOMPARE(search.hits().count(), int(pendant::LogHits::mostHits));
    QVERIFY(!log.row(search.hits().first()).endsWith("first"));
    logs.append("kite_20250314.log", "[I|03/14 09:00:00.000]x last\n");
    log.refresh();
    search.textGrown();
    QTRY_VERIFY(log.row(search.hits().previous(search.hits().end())).endsWith("last"));
    QVERIFY(search.hits().count() <= pendant::LogHits::mostHits);
    QVERIFY(search.hits().count() > pendant::LogHits::mostHits / 2);
}

void TestLogSearch::nothingToSearchIsSoonDone() {
    LogText log;
    LogSearch search(&log);
    search.start(text("x"));
    finish(search);
    QVERIFY(search.isComplete());
    QCOMPARE(search.progress(), 1.0);
}

void TestLogSearch::aFileWithoutTagsIsSearchedLineByLine() {
    const LogFixture logs;
    QByteArray lines;
    for (int i = 0; i < 300000; ++i)
        lines += "line " + QByteArray::number(i) + '\n';
    logs.write("boot.log", lines);
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("line 12345"));
    finish(search);
    QVERIFY(search.isComplete());
    QCOMPARE(search.hits().count(), 11);
    QCOMPARE(rowsForwards(log, search.hits()).first(), QByteArray("line 12345"));
    search.start(level(LogFilter::Error));
    finish(search);
    QCOMPARE(search.hits().count(), 0);
}

void TestLogSearch::rowsOfHitsLeadFromEndToEndAndBack() {
    const LogFixture logs;
    logs.write("kite_20250314.log", manyLines(100, "a"));
    LogText log;
    log.setFiles(logs.files());
    LogSearch search(&log);
    search.start(text("lost"));
    finish(search);
    const pendant::LogRows& hits = search.hits();
    QList<LogPlace> rows;
    for (LogPlace row = hits.first(); row < hits.end(); row = hits.next(row))
        rows.append(row);
    QCOMPARE(rows.size(), 20);
    for (int i = 0; i < rows.size(); ++i) {
        QVERIFY(hits.rowAt(rows.at(i)) == rows.at(i));
        QVERIFY(hits.previous(i + 1 < rows.size() ? rows.at(i + 1) : hits.end()) == rows.at(i));
        QVERIFY(hits.rowAtFraction(hits.fractionBefore(rows.at(i)) + 1e-6) == rows.at(i));
    }
    // From a row that was not found it goes to the neighbours that were.
    const LogPlace between = log.next(rows.at(1));
    QVERIFY(hits.rowAt(between) == rows.at(2));
    QVERIFY(hits.next(between) == rows.at(2));
    QVERIFY(hits.previous(between) == rows.at(1));
}

QTEST_GUILESS_MAIN(TestLogSearch)
#include "tst_log_search.moc"
