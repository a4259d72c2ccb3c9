#include "framefixture.h"

#include "briskx/navigation.h"
#include "frame/pagekeys.h"
#include "frame/pagetitle.h"
#include "style/stylesheet.h"

#include <QLabel>

class TestPageTitle : public QObject {
    Q_OBJECT

private slots:
    void thePageOfAPluginHasTheTitleOfItsEntry();
    void thePendantsOwnPagesHaveTheirOwn();
    void aPageWithoutAnEntryHasNone();
    void followsATitleThatChanges();
    void aLabelForAValueIsReadFromAfarOnAPluginsPage();

private:
    static brisk::ModuleObject* addPage(Frame& frame) {
        frame.window->center()->addPage(nullptr, "kite.weld", new QWidget);
        brisk::ModuleObject* entry = ot::gyre::registerPage(nullptr, "Weld", "robot.pack", "", -1);
        entry->set(nullptr, "nav", "kite.weld");
        return entry;
    }
    static pendant::PageTitle* title(const Frame& frame) { return frame.window->findChild<pendant::PageTitle*>(); }
};

void TestPageTitle::thePageOfAPluginHasTheTitleOfItsEntry() {
    Frame frame;
    addPage(frame);
    frame.window->showPage("kite.weld");
    QCOMPARE(title(frame)->text(), QString("Weld"));
    QVERIFY(title(frame)->isVisible());
}

void TestPageTitle::thePendantsOwnPagesHaveTheirOwn() {
    Frame frame;
    addPage(frame);
    frame.window->showPage("kite.weld");
    frame.window->showPage(pendant::pagekeys::settings());
    QVERIFY(!title(frame)->isVisible());
}

void TestPageTitle::aPageWithoutAnEntryHasNone() {
    Frame frame;
    frame.window->center()->addPage(nullptr, "kite.weld", new QWidget);
    frame.window->showPage("kite.weld");
    QVERIFY(!title(frame)->isVisible());
}

void TestPageTitle::followsATitleThatChanges() {
    Frame frame;
    brisk::ModuleObject* entry = addPage(frame);
    frame.window->showPage("kite.weld");
    entry->set(nullptr, "title", "Arc");
    Frame::settle();
    QCOMPARE(title(frame)->text(), QString("Arc"));
}

void TestPageTitle::aLabelForAValueIsReadFromAfarOnAPluginsPage() {
    QWidget page;
    page.setStyleSheet(pendant::controlStyleSheet(pendant::Theme::light()));
    QLabel plain("12", &page);
    QLabel value("12", &page);
    value.setProperty("value", true);
    plain.ensurePolished();
    value.ensurePolished();
    QCOMPARE(plain.font().pixelSize(), 16);
    QCOMPARE(value.font().pixelSize(), 28);
}

PENDANT_TEST_MAIN(TestPageTitle)
#include "tst_frame_pagetitle.moc"
