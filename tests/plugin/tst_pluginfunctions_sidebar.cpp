#include "pluginfunctions.h"

class TestSideBar : public FunctionsTest {
    Q_OBJECT

private slots:
    void aPageSaysOneWhenItIsThere_data() {
        QTest::addColumn<QString>("pageId");
        QTest::addColumn<QString>("key");
        QTest::newRow("named") << "left"
                               << "kite.weld.left";
        QTest::newRow("without a name") << ""
                                        << "kite.weld.weld";
    }
    void aPageSaysOneWhenItIsThere() {
        QFETCH(QString, pageId);
        QFETCH(QString, key);
        auto* page = new QWidget;
        QCOMPARE(kite::CreateRightExpandWidgte("weld", page, pageId), 1);
        QCOMPARE(bar()->page(key), page);
    }

    void aPageThatIsRefusedSaysZero() {
        QCOMPARE(kite::CreateRightExpandWidgte("weld", nullptr, "left"), 0);
        QCOMPARE(kite::CreateRightExpandWidgte("weld", new QWidget, "left"), 1);
        QWidget second;
        QCOMPARE(kite::CreateRightExpandWidgte("weld", &second, "left"), 0);
        QVERIFY(!second.parentWidget());
    }

    void switchingOpensTheSideBar() {
        addPages();
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "right"), 0);
        QVERIFY(bar()->isVisible());
        QCOMPARE(bar()->current(), QString("kite.weld.right"));
    }

    void switchingToAPageThatIsNotThereChangesNothing() {
        addPages();
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "right"), 0);
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "nowhere"), 0);
        QVERIFY(bar()->isVisible());
        QCOMPARE(bar()->current(), QString("kite.weld.right"));
    }

    void anEmptyNameClosesTheSideBar_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << QString("");
        QTest::newRow("null") << QString();
    }
    void anEmptyNameClosesTheSideBar() {
        QFETCH(QString, name);
        addPages();
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "left"), 0);
        QCOMPARE(kite::SwitchRightExpandWidgte(name, "right"), 0);
        QVERIFY(!bar()->isVisible());
        QCOMPARE(bar()->current(), QString("kite.weld.left"));
        QCOMPARE(pendant().log.lines(), QStringList());
        // Closing twice is closing.
        QCOMPARE(kite::SwitchRightExpandWidgte(name, ""), 0);
        QVERIFY(!bar()->isVisible());
    }

    void anUnknownNameClosesTheSideBarAndIsALine() {
        addPages();
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "left"), 0);
        pendant().log.expect("<kite interfacemanager>brisk.kite.glue unuseful");
        QCOMPARE(kite::SwitchRightExpandWidgte("glue", "left"), -2);
        QVERIFY(!bar()->isVisible());
        QCOMPARE(pendant().log.lines().size(), 1);
    }

    void itIsClosedBeforeTheLineIsWritten() {
        addPages();
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "left"), 0);
        int linesWhenClosed = -1;
        connect(bar(), &tarp::ExpandSideBar::openChanged, this,
                [&](bool open) { linesWhenClosed = open ? -1 : pendant().log.lines().size(); });
        pendant().log.expect(" unuseful");
        QCOMPARE(kite::SwitchRightExpandWidgte("glue", "left"), -2);
        QCOMPARE(linesWhenClosed, 0);
    }

    void theSideBarIsTold() {
        QWidget* told = nullptr;
        QCOMPARE(kite::GetRightExpandSideBar(&told), 0);
        QCOMPARE(told, bar());
    }

    void noPlaceForTheSideBarIsRefused() { QCOMPARE(kite::GetRightExpandSideBar(nullptr), -1); }

private:
    tarp::ExpandSideBar* bar() { return pendant().frame.sideBar(); }
    void addPages() {
        QCOMPARE(kite::CreateRightExpandWidgte("weld", new QWidget, "left"), 1);
        QCOMPARE(kite::CreateRightExpandWidgte("weld", new QWidget, "right"), 1);
    }
};

QTEST_MAIN(TestSideBar)
#include "tst_pluginfunctions_sidebar.moc"
