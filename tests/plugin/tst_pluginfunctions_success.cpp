#include "pluginfunctions.h"

#include "brisk/modulemanager.h"
#include "helm/messagelist.h"

#include <QDir>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

Q_DECLARE_METATYPE(MessageLevel)

// Functions that find the plugin.
class TestSuccess : public FunctionsTest {
    Q_OBJECT

private slots:
    void aCentreWidgetIsShownOnThePluginsPage() {
        auto* page = new QWidget;
        QCOMPARE(kite::CreateCenterWidget("weld", page), 0);
        QVERIFY(pendant().frame.center()->page("kite.weld")->isAncestorOf(page));
    }

    void aCentreWidgetThatIsNoneIsNoError() { QCOMPARE(kite::CreateCenterWidget("weld", nullptr), 0); }

    void thePageIsSwitchedToFullScreenAndBack() {
        auto* page = new QWidget;
        QCOMPARE(kite::CreateCenterWidget("weld", page), 0);
        QWidget* settingPage = pendant().frame.center()->page("kite.weld");
        QCOMPARE(kite::ChangeFullScreen("weld", true), 0);
        QVERIFY(!settingPage->isAncestorOf(page));
        QCOMPARE(kite::ChangeFullScreen("weld", false), 0);
        QVERIFY(settingPage->isAncestorOf(page));
    }

    void aSwitchThatIsRefusedIsNoError() {
        QCOMPARE(kite::ChangeFullScreen("weld", true), 0);
        QCOMPARE(kite::CreateCenterWidget("weld", new QWidget), 0);
        pendant().log.expect("Change Failed!");
        QCOMPARE(kite::ChangeFullScreen("weld", false), 0);
    }

    void aModelWindowIsCountedOnce() {
        QCOMPARE(kite::ChangeModelWindowStatus("weld", true), 0);
        QCOMPARE(kite::ChangeModelWindowStatus("weld", true), 0);
        QCOMPARE(m("helm.msg._")->getInt(0), 1);
        QCOMPARE(kite::ChangeModelWindowStatus("weld", false), 0);
        QCOMPARE(m("helm.msg._")->getInt(0), 0);
    }

    void aStatusItemSaysOneWhenItIsThere() {
        auto* item = new QWidget;
        QCOMPARE(kite::CreateStatusBar("weld", item, 7), 1);
        QCOMPARE(pendant().frame.statusBar()->item("kite.weld.7"), item);
    }

    void aStatusItemThatIsRefusedSaysZero() {
        QCOMPARE(kite::CreateStatusBar("weld", nullptr, 7), 0);
        QCOMPARE(kite::CreateStatusBar("weld", new QWidget, 7), 1);
        QWidget second;
        QCOMPARE(kite::CreateStatusBar("weld", &second, 7), 0);
        QVERIFY(!second.parentWidget());
    }

    void aLineGoesToTheMessageList_data() {
        QTest::addColumn<int>("level");
        QTest::addColumn<MessageLevel>("shown");
        QTest::newRow("information") << 0 << MessageLevel::Information;
        QTest::newRow("warning") << 1 << MessageLevel::Warning;
        QTest::newRow("error") << 2 << MessageLevel::Error;
        QTest::newRow("another") << 3 << MessageLevel::Information;
    }
    void aLineGoesToTheMessageList() {
        QFETCH(int, level);
        QFETCH(MessageLevel, shown);
        QCOMPARE(kite::ThrowLog("weld", static_cast<kite::enThrowLogLevel>(level), "The spool is empty."), 0);
        QCOMPARE(MessageList::instance()->messages().size(), 1);
        const helm::standin::Message message = MessageList::instance()->messages().first();
        QCOMPARE(message.level, shown);
        QCOMPARE(message.source, QString("weld"));
        QCOMPARE(message.text, QString("The spool is empty."));
    }

    void theDataPathIsMadeOfTheName() {
        QString path("before");
        QCOMPARE(kite::GetPluginDataPath(path, "weld"), 0);
        QCOMPARE(path, QString("upgrade/plugins/client/weld/data/"));
        QVERIFY(!QDir(path).exists());
        QVERIFY(!QDir("upgrade").exists());
    }

    void theDataPathMayTakeThePlaceOfTheName() {
        QString both("weld");
        QCOMPARE(kite::GetPluginDataPath(both, both), 0);
        QCOMPARE(both, QString("upgrade/plugins/client/weld/data/"));
    }

    void aPercentSignInANameIsNoPlace() {
        const kite::Kite odd("%1%2", nullptr);
        QString path;
        QCOMPARE(kite::GetPluginDataPath(path, "%1%2"), 0);
        QCOMPARE(path, QString("upgrade/plugins/client/%1%2/data/"));
    }

    void theRightPluginIsFound() {
        kite::Kite glue("glue", nullptr);
        glue.setup();
        QCOMPARE(kite::ThrowLog("glue", kite::ThrowInformation, "a"), 0);
        QCOMPARE(kite::ThrowLog("weld", kite::ThrowInformation, "b"), 0);
        QCOMPARE(MessageList::instance()->messages().at(0).source, QString("glue"));
        QCOMPARE(MessageList::instance()->messages().at(1).source, QString("weld"));
    }
};

QTEST_MAIN(TestSuccess)
#include "tst_pluginfunctions_success.moc"
