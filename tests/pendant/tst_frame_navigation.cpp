#include "framefixture.h"

#include "briskx/navigation.h"
#include "frame/navigation.h"
#include "frame/navigationentry.h"
#include "frame/pagekeys.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

class TestNavigation : public QObject {
    Q_OBJECT

private slots:
    void thePendantsOwnPagesComeFirst();
    void saysWhatWouldBeHereWhileThereIsNoPlugin();
    void showsAnEntryAsSoonAsThePluginRegistersIt();
    void dropsAnEntryThatGoesFromTheTree();
    void followsATitleThatChanges();
    void pressingAnEntryShowsItsPageAndMarksIt();
    void marksThePageThatSomeoneElseShowed();
    void pressingTheCurrentEntryLeavesItMarked();
    void tellsOfAnEntryWhosePageDoesNotExist();
    void cutsALongTitleAndKeepsItWholeForReaders();
    void anAmpersandIsNoShortcut();
    void bringsTheCurrentOfManyEntriesIntoView();
    void everyEntryIsLargeEnoughForAGlove();

private:
    static brisk::ModuleObject* addEntry(const QString& title, const QString& nav) {
        brisk::ModuleObject* entry = ot::gyre::registerPage(nullptr, title, "robot.pack", "", -1);
        entry->set(nullptr, "nav", nav);
        return entry;
    }
};

void TestNavigation::thePendantsOwnPagesComeFirst() {
    Frame frame;
    addEntry("Weld", "kite.weld");
    Frame::settle();
    QStringList navs;
    for (const pendant::NavigationEntry* entry : frame.window->navigation()->entries())
        navs << entry->nav();
    namespace keys = pendant::pagekeys;
    QCOMPARE(navs, QStringList({keys::start(), keys::jog(), keys::robot(), keys::projects(), keys::program(),
                                keys::variables(), keys::points(), keys::io(), keys::messages(), keys::log(),
                                keys::settings(), "kite.weld"}));
}

void TestNavigation::saysWhatWouldBeHereWhileThereIsNoPlugin() {
    Frame frame;
    QVERIFY(frame.find<QLabel>("navEmpty:robot.pack")->isVisible());
    addEntry("Weld", "kite.weld");
    Frame::settle();
    QVERIFY(!frame.find<QLabel>("navEmpty:robot.pack"));
}

void TestNavigation::showsAnEntryAsSoonAsThePluginRegistersIt() {
    Frame frame;
    QVERIFY(!frame.find("nav:kite.weld"));
    addEntry("Weld", "kite.weld");
    Frame::settle();
    auto* entry = frame.find<pendant::NavigationEntry>("nav:kite.weld");
    QVERIFY(entry && entry->isVisible());
    QCOMPARE(entry->title(), QString("Weld"));
}

void TestNavigation::dropsAnEntryThatGoesFromTheTree() {
    Frame frame;
    brisk::ModuleObject* entry = addEntry("Weld", "kite.weld");
    Frame::settle();
    entry->pmobj()->removeChild(entry);
    Frame::settle();
    QVERIFY(!frame.find("nav:kite.weld"));
}

void TestNavigation::followsATitleThatChanges() {
    Frame frame;
    brisk::ModuleObject* entry = addEntry("Weld", "kite.weld");
    Frame::settle();
    entry->set(nullptr, "title", "Arc welding");
    Frame::settle();
    QCOMPARE(frame.find<pendant::NavigationEntry>("nav:kite.weld")->title(), QString("Arc welding"));
}

void TestNavigation::pressingAnEntryShowsItsPageAndMarksIt() {
    Frame frame;
    auto* page = new QWidget;
    frame.window->center()->addPage(nullptr, "kite.weld", page);
    addEntry("Weld", "kite.weld");
    Frame::settle();
    auto* entry = frame.find<pendant::NavigationEntry>("nav:kite.weld");
    QVERIFY(!entry->isChecked());
    // It stands below what the window shows.
    entry->click();
    QCOMPARE(frame.window->center()->current(), QString("kite.weld"));
    QVERIFY(page->isVisible());
    QVERIFY(entry->isChecked());
    QVERIFY(!frame.find<QPushButton>("nav:" + pendant::pagekeys::start())->isChecked());
}

void TestNavigation::marksThePageThatSomeoneElseShowed() {
    Frame frame;
    frame.window->center()->switchTo(nullptr, pendant::pagekeys::settings());
    QVERIFY(frame.find<QPushButton>("nav:" + pendant::pagekeys::settings())->isChecked());
    QVERIFY(!frame.find<QPushButton>("nav:" + pendant::pagekeys::start())->isChecked());
}

void TestNavigation::pressingTheCurrentEntryLeavesItMarked() {
    Frame frame;
    auto* start = frame.find<QPushButton>("nav:" + pendant::pagekeys::start());
    QVERIFY(start->isChecked());
    Frame::click(start);
    QVERIFY(start->isChecked());
}

void TestNavigation::tellsOfAnEntryWhosePageDoesNotExist() {
    Frame frame;
    addEntry("Weld", "kite.gone");
    Frame::settle();
    auto* entry = frame.find<QPushButton>("nav:kite.gone");
    entry->click();
    QCOMPARE(frame.window->center()->current(), pendant::pagekeys::start());
    QVERIFY(!entry->isChecked());
    QCOMPARE(Frame::messages().size(), 1);
    QCOMPARE(Frame::messages().last().level, helm::standin::MessageLevel::Warning);
    QVERIFY(Frame::messages().last().text.contains("Weld"));
    QVERIFY(Frame::messages().last().text.contains("kite.gone"));
}

void TestNavigation::cutsALongTitleAndKeepsItWholeForReaders() {
    Frame frame;
    const QString title = "Seam tracking with laser and adaptive weaving for thick plates";
    addEntry(title, "kite.seam");
    Frame::settle();
    auto* entry = frame.find<QPushButton>("nav:kite.seam");
    QVERIFY(entry->text().size() < title.size());
    QCOMPARE(entry->accessibleName(), title);
    QCOMPARE(entry->toolTip(), title);
    QVERIFY(entry->width() <= frame.window->navigation()->width());
    QVERIFY(frame.find<QPushButton>("nav:" + pendant::pagekeys::start())->toolTip().isEmpty());
}

void TestNavigation::anAmpersandIsNoShortcut() {
    Frame frame;
    addEntry("Pick & place", "kite.pick");
    Frame::settle();
    auto* entry = frame.find<QPushButton>("nav:kite.pick");
    QVERIFY(entry->text().contains("Pick && place"));
    QVERIFY(entry->shortcut().isEmpty());
}

void TestNavigation::bringsTheCurrentOfManyEntriesIntoView() {
    Frame frame;
    for (int i = 0; i < 30; ++i) {
        const QString nav = QString("kite.plugin%1").arg(i);
        addEntry(nav, nav);
        frame.window->center()->addPage(nullptr, nav, new QWidget);
    }
    Frame::settle();
    QCOMPARE(frame.window->navigation()->entries().size(), 41);
    frame.window->showPage("kite.plugin29");
    auto* entry = frame.find<QPushButton>("nav:kite.plugin29");
    QVERIFY(!entry->visibleRegion().isEmpty());
    QCOMPARE(entry->visibleRegion().boundingRect().height(), entry->height());
    addEntry("one more", "kite.more");
    Frame::settle();
    QVERIFY(!frame.find<QPushButton>("nav:kite.plugin29")->visibleRegion().isEmpty());
}

void TestNavigation::everyEntryIsLargeEnoughForAGlove() {
    Frame frame;
    for (const pendant::NavigationEntry* entry : frame.window->navigation()->entries())
        QVERIFY2(entry->height() >= 56, qPrintable(entry->title()));
}

PENDANT_TEST_MAIN(TestNavigation)
#include "tst_frame_navigation.moc"
