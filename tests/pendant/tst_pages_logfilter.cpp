#include "logbench.h"

#include "pages/logfilterbar.h"

#include <QPushButton>
#include <QSignalSpy>

class TestLogFilter : public QObject {
    Q_OBJECT

private slots:
    void levelsAreFiltered_data();
    void levelsAreFiltered();
    void aModuleIsChosenFromThoseThatWereShown();
    void aTextIsFoundWithWhatBelongsToIt();
    void whatIsWrittenIsFilteredToo();
    void nothingThatMatchesIsTold();
    void aLongSearchShowsHowFarItIsAndIsStopped();
    void aSearchStandsStillWhileThePageIsHidden();
    void aTimeIsGoneToAmongWhatIsFound();
    void aTimeAfterAllThatIsFoundIsTold();
    void aTimeIsGoneToWhileTheSearchRuns();
    void whoHasGoneOnIsNotTakenBack();
    void theModulesOfAnotherLogTakeThePlaceOfAsManyBefore();
    void newModulesLeaveWhatIsTypedAndTheCursorAlone();
    void logsAndDaysAreChosen();
    void withoutAChoiceTheLogWithTheNewestDayIsShown();
    void oneFileOfADayIsChosen();
};

void TestLogFilter::levelsAreFiltered_data() {
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("last");
    QTest::newRow("errors") << "Errors" << 50 << "line 490";
    QTest::newRow("service") << "Service" << 150 << "line 498";
    QTest::newRow("information") << "Information" << 300 << "line 499";
    QTest::newRow("without service") << "Without service" << 350 << "line 499";
}

void TestLogFilter::levelsAreFiltered() {
    QFETCH(QString, choice);
    const LogBench bench;
    bench.choose("logLevel", choice);
    bench.finishSearch();
    QTEST(bench.page()->search().hits().count(), "count");
    QTEST(bench.lowest(), "last");
    QVERIFY(bench.view()->isFollowing());
    bench.choose("logLevel", "All levels");
    QCOMPARE(bench.lowest(), QString("line 499"));
    QVERIFY(!bench.page()->search().isActive());
}

void TestLogFilter::aModuleIsChosenFromThoseThatWereShown() {
    const LogBench bench;
    // They are known when they have been drawn.
    bench.view()->viewport()->repaint();
    bench.press(Qt::Key_PageUp);
    bench.choose("logModule", "feeder");
    bench.finishSearch();
    QCOMPARE(bench.page()->search().hits().count(), 250);
    bench.type("logModule", "");
    auto* edit = bench.frame.find<QComboBox>("logModule")->lineEdit();
    edit->selectAll();
    QTest::keyClicks(edit, "WEL");
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_COMPARE(bench.lowest(), QString("line 499"));
    bench.finishSearch();
    QCOMPARE(bench.page()->search().hits().count(), 250);
}

void TestLogFilter::aTextIsFoundWithWhatBelongsToIt() {
    const LogBench bench({{today, manyLines(20) + "  at seam 4\n" + manyLines(20, 20)}});
    bench.type("logText", "SEAM");
    bench.finishSearch();
    QTRY_COMPARE(bench.shown(), QStringList({"line 19", "  at seam 4"}));
    QCOMPARE(bench.state(), QString("1 found"));
    auto* edit = bench.frame.find<QLineEdit>("logText");
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(bench.lowest(), QString("line 39"));
    QCOMPARE(bench.state(), QString("Live"));
}

void TestLogFilter::whatIsWrittenIsFilteredToo() {
    const LogBench bench;
    bench.choose("logLevel", "Errors");
    bench.finishSearch();
    LogBench::append(today, manyLines(15, 500));
    QTRY_COMPARE(bench.lowest(), QString("line 510"));
    LogBench::write("kite_20250314_1.log", manyLines(10, 520));
    QTRY_COMPARE(bench.lowest(), QString("line 520"));
}

void TestLogFilter::nothingThatMatchesIsTold() {
    const LogBench bench;
    bench.type("logText", "not there");
    QTRY_VERIFY(bench.empty()->isVisible());
    bench.finishSearch();
    QTRY_COMPARE(bench.state(), QString("0 found"));
    QStringList words;
    for (const QLabel* label : bench.empty()->findChildren<QLabel*>())
        words << label->text();
    QVERIFY(words.contains("Nothing matches the filter"));
    // And is there as soon as it is written.
    LogBench::append(today, LogFixture::info("it was not there"));
    QTRY_COMPARE(bench.shown(), QStringList("it was not there"));
}

void TestLogFilter::aLongSearchShowsHowFarItIsAndIsStopped() {
    const LogBench bench({{today, manyLines(60000).repeated(10)}});
    auto* stop = bench.frame.find<QPushButton>("logStop");
    QVERIFY(!stop->isEnabled());
    QSignalSpy progressed(&bench.page()->search(), &pendant::LogSearch::progressed);
    bench.type("logText", "line");
    QVERIFY(progressed.wait());
    QVERIFY2(bench.state().startsWith("Searching: "), qPrintable(bench.state()));
    QVERIFY(stop->isEnabled());
    Frame::click(stop);
    QVERIFY2(bench.state().startsWith("Stopped: "), qPrintable(bench.state()));
    QVERIFY(!stop->isEnabled());
    QCOMPARE(bench.lowest(), QString("line 59999"));
}

void TestLogFilter::aSearchStandsStillWhileThePageIsHidden() {
    const LogBench bench({{today, manyLines(60000).repeated(10)}});
    QSignalSpy progressed(&bench.page()->search(), &pendant::LogSearch::progressed);
    bench.type("logText", "line");
    QVERIFY(progressed.wait());
    bench.frame.window->showPage(pendant::pagekeys::start());
    progressed.clear();
    QTest::qWait(50);
    QVERIFY(progressed.isEmpty());
    QVERIFY(bench.page()->search().isRunning());
    bench.frame.window->showPage(pendant::pagekeys::log());
    QVERIFY(progressed.wait());
    Frame::click(bench.frame.find("logStop"));
}

void TestLogFilter::aTimeIsGoneToAmongWhatIsFound() {
    const LogBench bench;
    bench.choose("logLevel", "Errors");
    bench.finishSearch();
    // Line 123 and the next that is found, 130.
    bench.page()->showTime(QDateTime(QDate(2025, 3, 14), QTime(9, 2, 3)));
    QCOMPARE(bench.highest(), QString("line 130"));
    QVERIFY(bench.view()->current() == bench.view()->top());
}

void TestLogFilter::aTimeAfterAllThatIsFoundIsTold() {
    const LogBench bench;
    bench.choose("logLevel", "Errors");
    bench.finishSearch();
    // Lines 491 to 499 are none.
    bench.page()->showTime(QDateTime(QDate(2025, 3, 14), QTime(9, 8, 15)));
    QCOMPARE(bench.lowest(), QString("line 490"));
    QCOMPARE(bench.state(), QString("Nothing is that late; these are the newest lines."));
    bench.choose("logLevel", "Information");
    bench.finishSearch();
    QTRY_COMPARE(bench.state(), QString("300 found"));
}

void TestLogFilter::aTimeIsGoneToWhileTheSearchRuns() {
    const QByteArray stuffing = "\n  " + QByteArray(400, 'x') + '\n';
    const LogBench bench({{today, manyLines(50000).replace("\n", stuffing)}});
    QSignalSpy progressed(&bench.page()->search(), &pendant::LogSearch::progressed);
    bench.type("logText", "line 7");
    QVERIFY(progressed.wait());
    QVERIFY(bench.page()->search().isRunning());
    bench.page()->showTime(QDateTime(QDate(2025, 3, 14), QTime(9, 0, 1)));
    const pendant::LogPlace first = bench.view()->top();
    QTRY_VERIFY_WITH_TIMEOUT(!bench.page()->search().isRunning(), 30000);
    QVERIFY(bench.view()->top() < first);
    QCOMPARE(bench.highest(), QString("line 7"));
}

void TestLogFilter::whoHasGoneOnIsNotTakenBack() {
    const LogBench bench({{today, manyLines(60000).repeated(10)}});
    QSignalSpy progressed(&bench.page()->search(), &pendant::LogSearch::progressed);
    bench.type("logText", "line 7");
    QVERIFY(progressed.wait());
    bench.page()->showTime(QDateTime(QDate(2025, 3, 14), QTime(9, 0, 1)));
    bench.press(Qt::Key_End);
    QVERIFY(progressed.wait());
    QVERIFY(progressed.wait());
    QVERIFY(bench.view()->isFollowing());
    Frame::click(bench.frame.find("logStop"));
}

void TestLogFilter::theModulesOfAnotherLogTakeThePlaceOfAsManyBefore() {
    pendant::LogFilterBar bar;
    bar.setModules({"weld", "feeder"});
    bar.setModules({"vision", "belt"});
    const auto* list = bar.findChild<QComboBox*>("logModule");
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->itemText(0), QString("vision"));
}

void TestLogFilter::newModulesLeaveWhatIsTypedAndTheCursorAlone() {
    pendant::LogFilterBar bar;
    bar.setModules({"weld"});
    auto* edit = bar.findChild<QComboBox*>("logModule")->lineEdit();
    edit->setText("feed");
    edit->setCursorPosition(1);
    bar.setModules({"weld", "vision"});
    QCOMPARE(edit->text(), QString("feed"));
    QCOMPARE(edit->cursorPosition(), 1);
    edit->setSelection(1, 2);
    bar.setModules({"vision"});
    QCOMPARE(edit->selectedText(), QString("ee"));
}

void TestLogFilter::logsAndDaysAreChosen() {
    const LogBench bench({{"kite_20250313.log", manyLines(5)},
                          {today, manyLines(5, 5)},
                          {"kite_20250314_1.log", manyLines(5, 10)},
                          {"cell/feeder_20250313.log", manyLines(1, 77)}});
    QCOMPARE(bench.shown().size(), 15);
    bench.choose("logDay", "2025-03-14");
    QCOMPARE(bench.shown().size(), 10);
    QCOMPARE(bench.highest(), QString("line 5"));
    bench.choose("logDay", "2025-03-13");
    QCOMPARE(bench.lowest(), QString("line 4"));
    bench.choose("logName", "cell/feeder");
    QCOMPARE(bench.shown(), QStringList("line 77"));
    QCOMPARE(bench.frame.find<QComboBox>("logDay")->currentText(), QString("All days"));
    // What was chosen stays chosen when files come.
    LogBench::write("kite_20250315.log", manyLines(1));
    LogBench::append("cell/feeder_20250313.log", manyLines(1, 78));
    QTRY_COMPARE(bench.shown(), QStringList({"line 77", "line 78"}));
}

void TestLogFilter::withoutAChoiceTheLogWithTheNewestDayIsShown() {
    const LogBench bench({{"a_20250313.log", manyLines(1)},
                          {"b_20250314.log", manyLines(2)},
                          {"kite_20250314.log", manyLines(3)},
                          {"z_20250314.log", manyLines(4)}});
    QCOMPARE(bench.shown().size(), 3);
    // And it stays: somebody may be reading.
    LogBench::write("c_20250315.log", manyLines(1));
    QTRY_COMPARE(bench.frame.find<QComboBox>("logName")->count(), 5);
    LogBench::append("kite_20250314.log", manyLines(2, 3));
    QTRY_COMPARE(bench.shown().size(), 5);
    QVERIFY(QFile::remove("log/kite_20250314.log"));
    QTRY_COMPARE(bench.frame.find<QComboBox>("logName")->currentText(), QString("c"));
}

void TestLogFilter::oneFileOfADayIsChosen() {
    const LogBench bench(
        {{today, manyLines(5)}, {"kite_20250314_1.log", manyLines(5, 5)}, {"kite_20250315.log", manyLines(1, 10)}});
    QStringList days;
    const auto* list = bench.frame.find<QComboBox>("logDay");
    for (int i = 0; i < list->count(); ++i)
        days << list->itemText(i);
    QCOMPARE(days, QStringList({"All days", "2025-03-15", "2025-03-14", "2025-03-14 · 1", "2025-03-14 · 0"}));
    bench.choose("logDay", "2025-03-14 · 0");
    QCOMPARE(bench.shown().size(), 5);
    QCOMPARE(bench.lowest(), QString("line 4"));
}

PENDANT_TEST_MAIN(TestLogFilter)
#include "tst_pages_logfilter.moc"
