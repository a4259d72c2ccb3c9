#include "framefixture.h"

#include "brisk/traffic.h"
#include "developer/developerdock.h"
#include "developer/dockswitch.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

using brisk::ModuleObject;
using brisk::standin::Traffic;
using pendant::DeveloperDock;
using pendant::DockSwitch;
using pendant::Theme;

namespace {

/// A root that tells who listens to it.
class Root : public ModuleObject {
public:
    Root() : ModuleObject(QString()) {}
    int listeners() const {
        return receivers(SIGNAL(changed(QVariant, QVariant, QObject*))) +
               receivers(SIGNAL(inserted(brisk::ModuleObject*, int))) + receivers(SIGNAL(removed(QString))) +
               receivers(SIGNAL(cleared(QObject*))) + receivers(SIGNAL(touched(brisk::ModuleObject*, QObject*)));
    }
};

} // namespace

class TestDock : public QObject {
    Q_OBJECT

private slots:
    void init() { QFile::remove("settings.ini"); }
    void cleanup() { static_cast<pendant::Application*>(qApp)->setLanguage("en"); }
    void f12OpensAndClosesIt();
    void theButtonOpensAndClosesIt();
    void theScreenOfThePendantKeepsItsSize();
    void aClosedDockIsConnectedToNothing();
    void itCanLookBeforeItIsOpened();
    void itClosesWithThePendant();
    void itDoesNotKeepTheProgramRunning();
    void itComesBackWhereItStood();
    void itFollowsTheThemeOfThePendant();
    void itChangesItsLanguageWhileItRuns();
    void nothingIsCutInAnyLanguage_data();
    void nothingIsCutInAnyLanguage();
};

void TestDock::f12OpensAndClosesIt() {
    Frame frame;
    DockSwitch dock(frame.window.get());
    frame.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(frame.window.get()));
    QVERIFY(!dock.isOpen());
    QTest::keyClick(frame.window.get(), Qt::Key_F12);
    QVERIFY(dock.isOpen());
    dock.dock()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dock.dock()));
    QTest::keyClick(dock.dock(), Qt::Key_F12);
    QVERIFY(!dock.isOpen());
}

void TestDock::theButtonOpensAndClosesIt() {
    Frame frame;
    DockSwitch dock(frame.window.get());
    auto* button = frame.find<QToolButton>("developerButton");
    QVERIFY(button->isVisible());
    QVERIFY(button->accessibleName().contains("F12"));
    Frame::click(button);
    QVERIFY(dock.isOpen() && button->isChecked());
    Frame::click(button);
    QVERIFY(!dock.isOpen() && !button->isChecked());
    Frame::click(button);
    dock.dock()->close();
    QVERIFY(!button->isChecked());
}

void TestDock::theScreenOfThePendantKeepsItsSize() {
    Frame frame;
    DockSwitch dock(frame.window.get());
    dock.open();
    Frame::settle();
    QCOMPARE(frame.window->size(), QSize(1280, 800));
    QVERIFY(dock.dock()->isWindow());
    QVERIFY(!dock.dock()->parentWidget());
    QVERIFY(!(dock.dock()->windowFlags() & Qt::WindowStaysOnTopHint));
}

void TestDock::aClosedDockIsConnectedToNothing() {
    Root root;
    root.set(nullptr, "a.b", 1);
    DeveloperDock dock(&root, Theme::light());
    QCOMPARE(root.listeners(), 0);
    QVERIFY(!Traffic::instance()->isHeard());
    dock.show();
    QCOMPARE(root.listeners(), 1);
    QVERIFY(Traffic::instance()->isHeard());
    dock.close();
    QCOMPARE(root.listeners(), 0);
    QVERIFY(!Traffic::instance()->isHeard());
    root.set(nullptr, "a.b", 2);
    dock.show();
    QCOMPARE(root.listeners(), 1);
}

void TestDock::itCanLookBeforeItIsOpened() {
    Root root;
    DeveloperDock dock(&root, Theme::light());
    dock.watch();
    QCOMPARE(root.listeners(), 1);
    dock.show();
    QCOMPARE(root.listeners(), 1);
    dock.close();
    QCOMPARE(root.listeners(), 0);
    QVERIFY(!Traffic::instance()->isHeard());
}

void TestDock::itClosesWithThePendant() {
    Frame frame;
    DockSwitch dock(frame.window.get());
    dock.open();
    frame.window->close();
    QVERIFY(!dock.isOpen());
}

void TestDock::itDoesNotKeepTheProgramRunning() {
    Root root;
    DeveloperDock dock(&root, Theme::light());
    dock.show();
    QWidget pendant;
    pendant.show();
    QTimer::singleShot(0, &pendant, &QWidget::close);
    QTimer::singleShot(5000, &pendant, [] { QCoreApplication::exit(1); });
    QCOMPARE(QCoreApplication::exec(), 0);
}

void TestDock::itComesBackWhereItStood() {
    Frame frame;
    const QRect stood(40, 30, 640, 480);
    {
        DockSwitch dock(frame.window.get());
        dock.open();
        dock.dock()->setGeometry(stood);
        dock.close();
    }
    DockSwitch dock(frame.window.get());
    dock.open();
    QCOMPARE(dock.dock()->geometry(), stood);
}

void TestDock::itFollowsTheThemeOfThePendant() {
    Frame frame;
    DockSwitch dock(frame.window.get());
    dock.open();
    const QString light = dock.dock()->styleSheet();
    frame.window->setTheme(Theme::dark());
    QVERIFY(dock.dock()->styleSheet() != light);
    QVERIFY(!dock.dock()->styleSheet().contains('@'));
    QVERIFY(!light.contains('@'));
}

void TestDock::itChangesItsLanguageWhileItRuns() {
    Root root;
    DeveloperDock dock(&root, Theme::light());
    dock.show();
    QCOMPARE(dock.tabTitle(0), QString("Tree"));
    QVERIFY(static_cast<pendant::Application*>(qApp)->setLanguage("de"));
    Frame::settle();
    QCOMPARE(dock.tabTitle(0), QString("Baum"));
    QCOMPARE(dock.findChild<QToolButton*>("trafficClear")->text(), QString("Leeren"));
}

void TestDock::nothingIsCutInAnyLanguage_data() {
    QTest::addColumn<QString>("code");
    for (const char* code : {"en", "de", "zh_CN"})
        QTest::newRow(code) << code;
}

void TestDock::nothingIsCutInAnyLanguage() {
    QFETCH(QString, code);
    QVERIFY(static_cast<pendant::Application*>(qApp)->setLanguage(code));
    Root root;
    DeveloperDock dock(&root, Theme::light());
    dock.show();
    dock.resize(DeveloperDock::leastSize());
    for (int tab = 0; tab < DeveloperDock::tabNames().size(); ++tab) {
        dock.showTab(tab);
        Frame::settle();
        QCOMPARE(dock.size(), DeveloperDock::leastSize());
        for (const QAbstractButton* button : dock.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty())
                QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        }
        for (const QLabel* label : dock.findChildren<QLabel*>()) {
            if (label->isVisible() && label->wordWrap())
                QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
        }
    }
}

PENDANT_TEST_MAIN(TestDock)
#include "tst_developer_dock.moc"
