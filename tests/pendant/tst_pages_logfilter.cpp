#include "logbench.h"

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
    LogBench::write("a_20250315.log", manyLines(1));
    QTRY_COMPARE(bench.shown().size(), 2);
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
