#include "framefixture.h"

#include "frame/sidebarheader.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

class TestSideBar : public QObject {
    Q_OBJECT

private slots:
    void thereIsNoButtonForASideBarWithoutPages();
    void theButtonOpensAndClosesIt();
    void itTakesRoomAndCoversNothing();
    void itOpensWhenAPluginShowsIt();
    void itIsThereWithin150Ms();
    void tabsTurnToTheirPages();
    void aTabHasTheTitleOfThePageOrTheEndOfItsKey();
    void aTabGoesWithItsPage();
    void openingWhileItClosesLeavesItOpen();

private:
    static QWidget* addPage(const Frame& frame, const QString& key, const QString& title = QString()) {
        auto* page = new QWidget;
        page->setWindowTitle(title);
        frame.window->sideBar()->addPage(nullptr, key, page);
        return page;
    }
};

void TestSideBar::thereIsNoButtonForASideBarWithoutPages() {
    Frame frame;
    QVERIFY(!frame.find("sideBarButton")->isVisible());
    QVERIFY(!frame.window->sideBar()->isVisible());
    QWidget* page = addPage(frame, "kite.weld.a");
    QVERIFY(frame.find("sideBarButton")->isVisible());
    QVERIFY(!frame.window->sideBar()->isVisible());
    delete page;
    QVERIFY(!frame.find("sideBarButton")->isVisible());
}

void TestSideBar::theButtonOpensAndClosesIt() {
    Frame frame;
    addPage(frame, "kite.weld.a");
    auto* button = frame.find<QToolButton>("sideBarButton");
    Frame::click(button);
    QVERIFY(frame.window->sideBar()->isVisible());
    QVERIFY(button->isChecked());
    Frame::click(button);
    QTRY_VERIFY(!frame.window->sideBar()->isVisible());
    QVERIFY(!button->isChecked());
    Frame::click(button);
    QTRY_COMPARE(frame.window->sideBar()->width(), 320);
    Frame::click(frame.find("sideBarClose"));
    QTRY_VERIFY(!frame.window->sideBar()->isVisible());
}

void TestSideBar::itTakesRoomAndCoversNothing() {
    Frame frame;
    addPage(frame, "kite.weld.a");
    const int before = frame.window->center()->width();
    frame.window->sideBar()->show();
    QTRY_COMPARE(frame.window->center()->width(), before - 320);
    QVERIFY(!frame.window->sideBar()->geometry().intersects(frame.window->center()->geometry()));
    QCOMPARE(frame.window->sideBar()->geometry().right() + 1, 1280 - 88);
}

void TestSideBar::itOpensWhenAPluginShowsIt() {
    Frame frame;
    addPage(frame, "kite.weld.a");
    QWidget* page = addPage(frame, "kite.weld.b");
    QVERIFY(frame.window->sideBar()->switchTo(nullptr, "kite.weld.b"));
    frame.window->sideBar()->show();
    QTRY_COMPARE(frame.window->sideBar()->width(), 320);
    QVERIFY(page->isVisible());
    QVERIFY(frame.find<QPushButton>("tab:kite.weld.b")->isChecked());
    QVERIFY(!frame.find<QPushButton>("tab:kite.weld.a")->isChecked());
}

void TestSideBar::itIsThereWithin150Ms() {
    Frame frame;
    addPage(frame, "kite.weld.a");
    const auto* slide = frame.find("sideBarHeader")->findChild<QVariantAnimation*>("slide");
    QVERIFY(slide);
    QVERIFY(slide->duration() <= 150);
}

void TestSideBar::tabsTurnToTheirPages() {
    Frame frame;
    QWidget* a = addPage(frame, "kite.weld.a");
    QWidget* b = addPage(frame, "kite.weld.b");
    frame.window->sideBar()->show();
    QTRY_COMPARE(frame.window->sideBar()->width(), 320);
    Frame::click(frame.find("tab:kite.weld.b"));
    QVERIFY(b->isVisible() && !a->isVisible());
    Frame::click(frame.find("tab:kite.weld.b"));
    QVERIFY(frame.find<QPushButton>("tab:kite.weld.b")->isChecked());
    Frame::click(frame.find("tab:kite.weld.a"));
    QVERIFY(a->isVisible() && !b->isVisible());
}

void TestSideBar::aTabHasTheTitleOfThePageOrTheEndOfItsKey() {
    Frame frame;
    addPage(frame, "kite.weld.a", "Monitor");
    addPage(frame, "kite.weld.notes");
    QCOMPARE(frame.find<QPushButton>("tab:kite.weld.a")->text(), QString("Monitor"));
    QCOMPARE(frame.find<QPushButton>("tab:kite.weld.notes")->text(), QString("notes"));
}

void TestSideBar::aTabGoesWithItsPage() {
    Frame frame;
    addPage(frame, "kite.weld.a");
    delete addPage(frame, "kite.weld.b");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(frame.find("tab:kite.weld.a"));
    QVERIFY(!frame.find("tab:kite.weld.b"));
}

void TestSideBar::openingWhileItClosesLeavesItOpen() {
    Frame frame;
    addPage(frame, "kite.weld.a");
    frame.window->sideBar()->show();
    QTRY_COMPARE(frame.window->sideBar()->width(), 320);
    frame.find<pendant::SideBarHeader>("sideBarHeader")->close();
    QTest::qWait(20);
    Frame::click(frame.find("sideBarButton"));
    QTest::qWait(300);
    QVERIFY(frame.window->sideBar()->isVisible());
    QCOMPARE(frame.window->sideBar()->width(), 320);
}

PENDANT_TEST_MAIN(TestSideBar)
#include "tst_frame_sidebar.moc"
