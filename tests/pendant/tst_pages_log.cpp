#include "logbench.h"

#include <QDateTimeEdit>
#include <QDesktopServices>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QUrl>
#include <QWheelEvent>

namespace {

class UrlCatcher : public QObject {
    Q_OBJECT

public:
    UrlCatcher() { QDesktopServices::setUrlHandler("file", this, "take"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler("file"); }

    QUrl url;

public slots:
    void take(const QUrl& taken) { url = taken; }
};

} // namespace

class TestLogPage : public QObject {
    Q_OBJECT

private slots:
    void withoutAFolderItSaysWhatWouldBeHere();
    void theFirstLineMakesTheListAppear();
    void theNewestLinesAreShownAndFollowed();
    void aLineWithoutItsBreakIsShownAndGrows();
    void whoScrollsUpStaysThereUntilTheNewestIsAskedFor();
    void keysLeadThroughTheLog();
    void theWheelAndTheBarLeadThroughTheLog();
    void rotationIsFollowed();
    void aFileThatIsStillWrittenToIsTold();
    void aFileThatIsEmptiedIsShownAnew();
    void aFolderInPlaceOfTheFileIsTold();
    void theWholeFolderMayGo();
    void theOldestFileMayGoWhileItIsLookedAt();
    void aPressShowsTheWholeEntryAndAnotherHidesIt();
    void anEntryIsChosenByKeys();
    void aPressedLineStaysInView();
    void aTimeIsGoneTo();
    void aTimeAfterAllLinesIsTold();
    void theFolderIsOpened();
    void aFolderThatNothingOpensIsTold();
    void aFolderThatIsNotThereYetIsTold();
    void whatIsHiddenReadsNothing();
    void ofALargeLogLittleIsRead();
    void everythingSpeaksTheLanguage();
};

void TestLogPage::withoutAFolderItSaysWhatWouldBeHere() {
    const LogBench bench{LogFiles()};
    QVERIFY(!QDir("log").exists());
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(!bench.view()->isVisible());
    QStringList words;
    for (const QLabel* label : bench.empty()->findChildren<QLabel*>())
        words << label->text();
    QVERIFY(words.contains("Nothing logged yet"));
    QVERIFY(words.contains(QDir::current().filePath("log")));
    QCOMPARE(bench.state(), QString());
}

void TestLogPage::theFirstLineMakesTheListAppear() {
    const LogBench bench{LogFiles()};
    LogBench::write(today, manyLines(1));
    QTRY_VERIFY(bench.view()->isVisible());
    QVERIFY(!bench.empty()->isVisible());
    QCOMPARE(bench.shown(), QStringList("line 0"));
}

void TestLogPage::theNewestLinesAreShownAndFollowed() {
    const LogBench bench;
    QVERIFY(bench.view()->isFollowing());
    QCOMPARE(bench.lowest(), QString("line 499"));
    QCOMPARE(bench.state(), QString("Live"));
    QVERIFY(!bench.frame.find("logNewest")->isVisible());
    LogBench::append(today, manyLines(3, 500));
    QTRY_COMPARE(bench.lowest(), QString("line 502"));
    QVERIFY(bench.frame.find<QLabel>("logWhere")->text().startsWith(QDir::current().filePath("log/" + today)));
}

void TestLogPage::aLineWithoutItsBreakIsShownAndGrows() {
    const LogBench bench({{today, manyLines(2).chopped(1)}});
    QCOMPARE(bench.shown(), QStringList({"line 0", "line 1"}));
    LogBench::append(today, "23");
    QTRY_COMPARE(bench.lowest(), QString("line 123"));
    LogBench::append(today, "\nbelongs to it\n");
    QTRY_COMPARE(bench.shown(), QStringList({"line 0", "line 123", "belongs to it"}));
}

void TestLogPage::whoScrollsUpStaysThereUntilTheNewestIsAskedFor() {
    const LogBench bench;
    bench.press(Qt::Key_PageUp);
    QVERIFY(!bench.view()->isFollowing());
    const QStringList before = bench.shown();
    QVERIFY(before.last() != "line 499");
    auto* newest = bench.frame.find<QPushButton>("logNewest");
    QVERIFY(newest->isVisible());
    LogBench::append(today, manyLines(100, 500));
    QTRY_COMPARE(bench.page()->text().size(), QFileInfo("log/" + today).size());
    QCOMPARE(bench.shown(), before);
    Frame::click(newest);
    QCOMPARE(bench.lowest(), QString("line 599"));
    QVERIFY(!newest->isVisible());
    // To scroll down to the end does the same.
    bench.press(Qt::Key_PageUp);
    bench.press(Qt::Key_PageDown);
    QVERIFY(bench.view()->isFollowing());
}

void TestLogPage::keysLeadThroughTheLog() {
    const LogBench bench;
    const int rows = bench.shown().size();
    QVERIFY(rows > 10);
    bench.press(Qt::Key_Home);
    QCOMPARE(bench.highest(), QString("line 0"));
    bench.press(Qt::Key_PageUp);
    QCOMPARE(bench.highest(), QString("line 0"));
    bench.press(Qt::Key_Escape);
    const int page = bench.view()->viewport()->height() / pendant::LogRowPainter::rowHeight - 1;
    bench.press(Qt::Key_PageDown);
    QVERIFY(bench.highest() == QString("line %1").arg(page) || bench.highest() == QString("line %1").arg(page - 1));
    bench.press(Qt::Key_End);
    QCOMPARE(bench.lowest(), QString("line 499"));
    QVERIFY(bench.view()->isFollowing());
}

void TestLogPage::theWheelAndTheBarLeadThroughTheLog() {
    const LogBench bench;
    QScrollBar* bar = bench.view()->verticalScrollBar();
    QCOMPARE(bar->value(), bar->maximum());
    QWheelEvent up(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bench.view()->viewport(), &up);
    QCOMPARE(bench.lowest(), QString("line 496"));
    bar->setSliderDown(true);
    bar->setSliderPosition(bar->maximum() / 2);
    QVERIFY(bench.highest() > "line 230" && bench.highest() < "line 250");
    bar->setSliderPosition(0);
    QCOMPARE(bench.highest(), QString("line 0"));
    bar->setSliderPosition(bar->maximum());
    bar->setSliderDown(false);
    QVERIFY(bench.view()->isFollowing());
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    QVERIFY(!bench.view()->isFollowing());
    QVERIFY(bench.lowest() > "line 470");
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QVERIFY(bench.view()->isFollowing());
}

void TestLogPage::rotationIsFollowed() {
    const LogBench bench;
    LogBench::write("kite_20250314_1.log", manyLines(1, 500));
    QTRY_COMPARE(bench.lowest(), QString("line 500"));
    LogBench::write("kite_20250314_4.log", manyLines(1, 501));
    QTRY_COMPARE(bench.lowest(), QString("line 501"));
    LogBench::write("kite_20250315.log", manyLines(1, 502));
    QTRY_COMPARE(bench.lowest(), QString("line 502"));
    LogBench::append("kite_20250315.log", manyLines(1, 503));
    QTRY_COMPARE(bench.lowest(), QString("line 503"));
    QCOMPARE(bench.shown().mid(bench.shown().size() - 5),
             QStringList({"line 499", "line 500", "line 501", "line 502", "line 503"}));
}

void TestLogPage::aFileThatIsStillWrittenToIsTold() {
    const LogBench bench({{today, manyLines(2)}, {"kite_20250314_1.log", manyLines(1, 10)}});
    QCOMPARE(bench.state(), QString("Live"));
    LogBench::append(today, manyLines(1, 2));
    QTRY_COMPARE(bench.shown(), QStringList({"line 0", "line 1", "line 2", "line 10"}));
    QCOMPARE(bench.state(), "Live; " + today + " is written to as well");
}

void TestLogPage::aFileThatIsEmptiedIsShownAnew() {
    const LogBench bench;
    bench.press(Qt::Key_Home);
    QVERIFY(bench.view()->current().isValid());
    LogBench::write(today, manyLines(1, 7));
    QTRY_COMPARE(bench.shown(), QStringList("line 7"));
    QVERIFY(!bench.view()->current().isValid());
    QVERIFY(!bench.frame.find("logDetail")->isVisible());
}

void TestLogPage::aFolderInPlaceOfTheFileIsTold() {
    const LogBench bench;
    QVERIFY(QFile::remove("log/" + today));
    QVERIFY(QDir().mkdir("log/" + today));
    QTRY_VERIFY(bench.empty()->isVisible());
    QVERIFY(QDir().rmdir("log/" + today));
    LogBench::write(today, manyLines(1));
    QTRY_COMPARE(bench.shown(), QStringList("line 0"));
}

void TestLogPage::theWholeFolderMayGo() {
    const LogBench bench;
    QVERIFY(QDir("log").removeRecursively());
    QTRY_VERIFY(bench.empty()->isVisible());
    QVERIFY(bench.shown().isEmpty());
    LogBench::write(today, manyLines(2));
    QTRY_COMPARE(bench.lowest(), QString("line 1"));
}

void TestLogPage::theOldestFileMayGoWhileItIsLookedAt() {
    const LogBench bench({{"kite_20250312.log", manyLines(50)}, {"kite_20250313.log", manyLines(500, 50)}});
    bench.press(Qt::Key_Home);
    QCOMPARE(bench.highest(), QString("line 0"));
    QVERIFY(QFile::remove("log/kite_20250312.log"));
    QTRY_COMPARE(bench.highest(), QString("line 50"));
    QVERIFY(!bench.view()->isFollowing());
}

void TestLogPage::aPressShowsTheWholeEntryAndAnotherHidesIt() {
    const QByteArray entry = LogFixture::line("E", "09:00:00.000", "<weld>Arc lost") + "  at seam\n";
    const LogBench bench({{today, entry + LogFixture::info("next")}});
    auto* detail = bench.frame.find<QPlainTextEdit>("logDetail");
    QVERIFY(!detail->isVisible());
    bench.pressRow(1);
    QVERIFY(detail->isVisible());
    QCOMPARE(detail->toPlainText(), QString(entry));
    bench.pressRow(2);
    QCOMPARE(detail->toPlainText(), QString(LogFixture::info("next")));
    bench.pressRow(2);
    QVERIFY(!detail->isVisible());
}

void TestLogPage::anEntryIsChosenByKeys() {
    const LogBench bench;
    const auto current = [&] { return pendant::parseLogLine(bench.page()->text().row(bench.view()->current())).text; };
    bench.press(Qt::Key_Up);
    QCOMPARE(current(), QString("line 499"));
    for (int i = 0; i < 50; ++i)
        bench.press(Qt::Key_Up);
    QCOMPARE(current(), QString("line 449"));
    QCOMPARE(bench.highest(), QString("line 449"));
    bench.press(Qt::Key_Down);
    QCOMPARE(current(), QString("line 450"));
    bench.press(Qt::Key_Home);
    bench.press(Qt::Key_Up);
    QCOMPARE(current(), QString("line 0"));
    for (int i = 0; i < 50; ++i)
        bench.press(Qt::Key_Down);
    QCOMPARE(current(), QString("line 50"));
    QVERIFY(bench.view()->shownRows().contains(bench.view()->current()));
    bench.press(Qt::Key_Escape);
    QVERIFY(!bench.view()->current().isValid());
}

void TestLogPage::aPressedLineStaysInView() {
    const LogBench bench;
    // The screen of the tests has 800x600, and a press beside it would be lost on its way.
    bench.frame.window->move(0, 0);
    bench.frame.window->resize(1024, 600);
    Frame::settle();
    const int rows = bench.shown().size();
    for (const int index : {1, rows - 2}) {
        bench.pressRow(index);
        Frame::settle();
        QVERIFY(bench.frame.find("logDetail")->isVisible());
        QVERIFY(bench.view()->shownRows().contains(bench.view()->current()));
        bench.press(Qt::Key_Escape);
        Frame::settle();
    }
}

void TestLogPage::aTimeIsGoneTo() {
    const LogBench bench;
    auto* time = bench.frame.find<QDateTimeEdit>("logTime");
    QVERIFY(!time->isVisible());
    bench.press(Qt::Key_Home);
    Frame::click(bench.frame.find("logGoTo"));
    QVERIFY(time->isVisible());
    QCOMPARE(time->dateTime(), QDateTime(QDate(2025, 3, 14), QTime(9, 0)));
    time->setTime(QTime(9, 3, 20));
    Frame::click(bench.frame.find("logGo"));
    QCOMPARE(bench.highest(), QString("line 200"));
    QVERIFY(bench.view()->current() == bench.view()->top());
    QVERIFY(bench.frame.find<QPlainTextEdit>("logDetail")->toPlainText().contains("line 200"));
    auto* edit = time->findChild<QLineEdit*>();
    time->setTime(QTime(9, 1, 40));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(bench.highest(), QString("line 100"));
    Frame::click(bench.frame.find("logGoTo"));
    QVERIFY(!time->isVisible());
}

void TestLogPage::aTimeAfterAllLinesIsTold() {
    const LogBench bench;
    bench.press(Qt::Key_Home);
    bench.page()->showTime(QDateTime(QDate(2025, 3, 14), QTime(12, 0)));
    QCOMPARE(bench.lowest(), QString("line 499"));
    QCOMPARE(bench.state(), QString("Nothing is that late; these are the newest lines."));
    bench.press(Qt::Key_PageUp);
    bench.press(Qt::Key_End);
    QCOMPARE(bench.state(), QString("Live"));
}

void TestLogPage::theFolderIsOpened() {
    const UrlCatcher catcher;
    const LogBench bench;
    Frame::click(bench.frame.find("logFolder"));
    QCOMPARE(catcher.url, QUrl::fromLocalFile(QDir::current().filePath("log")));
}

void TestLogPage::aFolderThatNothingOpensIsTold() {
    const LogBench bench;
    QVERIFY(!bench.frame.find("logNotice")->isVisible());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("openDocument"));
    Frame::click(bench.frame.find("logFolder"));
    QVERIFY(bench.frame.find("logNotice")->isVisible());
    QCOMPARE(bench.frame.find<QLabel>("logNotice")->text(),
             "Nothing here opens folders. The log files are in " + QDir::current().filePath("log"));
    bench.frame.window->showPage(pendant::pagekeys::start());
    bench.frame.window->showPage(pendant::pagekeys::log());
    QVERIFY(!bench.frame.find("logNotice")->isVisible());
}

void TestLogPage::aFolderThatIsNotThereYetIsTold() {
    const UrlCatcher catcher;
    const LogBench bench(LogFiles{});
    Frame::click(bench.frame.find("logFolder"));
    QCOMPARE(bench.frame.find<QLabel>("logNotice")->text(),
             QString("There is no folder %1 yet. The first line that is logged makes it.")
                 .arg(QDir::current().filePath("log")));
    QVERIFY(catcher.url.isEmpty());
    LogBench::write(today, manyLines(1));
    Frame::click(bench.frame.find("logFolder"));
    QVERIFY(!bench.frame.find("logNotice")->isVisible());
    QVERIFY(!catcher.url.isEmpty());
}

void TestLogPage::whatIsHiddenReadsNothing() {
    const LogBench bench;
    bench.frame.window->showPage(pendant::pagekeys::start());
    const qint64 before = bench.page()->text().size();
    LogBench::append(today, manyLines(5, 500));
    // Longer than it would take.
    QTest::qWait(200);
    QCOMPARE(bench.page()->text().size(), before);
    bench.frame.window->showPage(pendant::pagekeys::log());
    QTRY_COMPARE(bench.lowest(), QString("line 504"));
}

void TestLogPage::ofALargeLogLittleIsRead() {
    QByteArray lines = manyLines(20000);
    lines = lines.repeated(10485760 / lines.size() + 1);
    const LogBench bench({{today, lines}});
    for (int i = 1; i < 20; ++i)
        QCOMPARE(::link("log/kite_20250314.log", qPrintable(QString("log/kite_20250314_%1.log").arg(i))), 0);
    const qint64 before = bytesRead();
    QTRY_COMPARE(bench.page()->text().fileCount(), 20);
    QVERIFY(bench.page()->text().size() > 200 * 1048576);
    for (int i = 0; i < 20; ++i)
        bench.press(Qt::Key_PageUp);
    bench.press(Qt::Key_Home);
    bench.view()->verticalScrollBar()->setSliderPosition(500000);
    bench.press(Qt::Key_End);
    bench.view()->viewport()->repaint();
    QCOMPARE(bench.lowest(), QString("line 19999"));
    QVERIFY2(bytesRead() - before < 4 * 1048576, qPrintable(QString::number(bytesRead() - before)));
}

void TestLogPage::everythingSpeaksTheLanguage() {
    const LogBench bench;
    auto* application = static_cast<pendant::Application*>(qApp);
    QVERIFY(application->setLanguage("de"));
    Frame::settle();
    QCOMPARE(bench.frame.find<QComboBox>("logDay")->itemText(0), QString("Alle Tage"));
    QCOMPARE(bench.frame.find<QComboBox>("logLevel")->itemText(1), QString("Fehler"));
    QCOMPARE(bench.frame.find<QPushButton>("logFolder")->text(), QString("Ordner"));
    QVERIFY(application->setLanguage("en"));
    Frame::settle();
    QCOMPARE(bench.state(), QString("Live"));
}

PENDANT_TEST_MAIN(TestLogPage)
#include "tst_pages_log.moc"
