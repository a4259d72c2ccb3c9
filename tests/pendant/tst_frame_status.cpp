#include "framefixture.h"

#include "brisk/relay.h"
#include "frame/statusitem.h"
#include "state/statelink.h"

#include <QLabel>

using pendant::StatusItem;

class TestStatus : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m("helm.r")->clear(nullptr, true, true);
        m("orca.toolpage")->clear(nullptr, true, true);
        relay()->mobj()->c("connected", true)->setValue(nullptr, false);
    }
    void linksAreDownWithWordAndIcon();
    void theBusComesUpLive();
    void aValueIsShownAsTheTreeHasIt_data();
    void aValueIsShownAsTheTreeHasIt();
    void withoutTheBusItIsUnknownHowTheRobotIs();
    void untilTheStateIsToldItIsUnknownHowTheRobotIs();
    void anErrorOfTheRobotHasAColourAndAWord();
    void everyItemIsWholeAtTheSizesOfPendants_data();
    void everyItemIsWholeAtTheSizesOfPendants();
    void itemsOfPluginsTakeTheIconsFirstAndThenTheState();
    void aValueThatIsRemovedAndMadeAgainIsFollowedStill();
    void aPluginsItemStandsBeforeTheStretch();
    void aPluginsItemLooksAtHome();
    void aLongValueIsCutAndStandsWholeInTheToolTip();

private:
    static StatusItem* item(const Frame& frame, const QString& name) {
        return frame.find<StatusItem>("status:" + name);
    }
    static QString robot(const Frame& frame) {
        return item(frame, "power")->text() + ' ' + item(frame, "mode")->text() + ' ' + item(frame, "state")->text();
    }
};

void TestStatus::linksAreDownWithWordAndIcon() {
    Frame frame;
    for (const char* name : {"bus", "controller"}) {
        QCOMPARE(item(frame, name)->text(), QString("Offline"));
        QCOMPARE(item(frame, name)->state(), StatusItem::State::Error);
        QVERIFY(!item(frame, name)->findChild<QLabel*>("statusIcon")->property("pixmap").value<QPixmap>().isNull());
    }
    QCOMPARE(item(frame, "bus")->accessibleName(), QString("Bus: Offline"));
}

void TestStatus::theBusComesUpLive() {
    Frame frame;
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    QCOMPARE(item(frame, "bus")->text(), QString("Online"));
    QCOMPARE(item(frame, "bus")->state(), StatusItem::State::Good);
    relay()->mobj()->c("connected")->setValue(nullptr, false);
    QCOMPARE(item(frame, "bus")->text(), QString("Offline"));
}

void TestStatus::aValueIsShownAsTheTreeHasIt_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("drives on") << "power"
                               << "helm.r.power"
                               << "on"
                               << "Unknown"
                               << "On";
    QTest::newRow("drives off") << "power"
                                << "helm.r.power"
                                << "off"
                                << "Unknown"
                                << "Off";
    QTest::newRow("drives else") << "power"
                                 << "helm.r.power"
                                 << "ON"
                                 << "Unknown"
                                 << "ON";
    QTest::newRow("manual mode") << "mode"
                                 << "helm.r.mode"
                                 << "manual"
                                 << "Unknown"
                                 << "Manual";
    QTest::newRow("automatic mode") << "mode"
                                    << "helm.r.mode"
                                    << "auto"
                                    << "Unknown"
                                    << "Automatic";
    QTest::newRow("another mode") << "mode"
                                  << "helm.r.mode"
                                  << "T2"
                                  << "Unknown"
                                  << "T2";
    QTest::newRow("robot stands") << "state"
                                  << "helm.r.state"
                                  << "idle"
                                  << "Unknown"
                                  << "Standing";
    QTest::newRow("robot moves") << "state"
                                 << "helm.r.state"
                                 << "moving"
                                 << "Unknown"
                                 << "Moving";
    QTest::newRow("robot brakes") << "state"
                                  << "helm.r.state"
                                  << "stopping"
                                  << "Unknown"
                                  << "Stopping";
    QTest::newRow("robot without drives") << "state"
                                          << "helm.r.state"
                                          << "off"
                                          << "Unknown"
                                          << "Standing";
    QTest::newRow("another state") << "state"
                                   << "helm.r.state"
                                   << "warming up"
                                   << "Unknown"
                                   << "warming up";
    QTest::newRow("tool") << "tool"
                          << "orca.toolpage.tool"
                          << "g_tool_a"
                          << "tool0"
                          << "g_tool_a";
    QTest::newRow("work object") << "workobject"
                                 << "orca.toolpage.wobj"
                                 << "g_wobj_a"
                                 << "wobj0"
                                 << "g_wobj_a";
}

void TestStatus::aValueIsShownAsTheTreeHasIt() {
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFETCH(QString, value);
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    Frame frame;
    QTEST(item(frame, name)->text(), "before");
    m()->root()->set(nullptr, key, value);
    QTEST(item(frame, name)->text(), "after");
    m()->root()->set(nullptr, key, QVariant());
    QTEST(item(frame, name)->text(), "before");
}

void TestStatus::withoutTheBusItIsUnknownHowTheRobotIs() {
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    Frame frame;
    m()->root()->set(nullptr, "helm.r.power", "on");
    m()->root()->set(nullptr, "helm.r.mode", "auto");
    m()->root()->set(nullptr, "helm.r.state", "error");
    QCOMPARE(robot(frame), QString("On Automatic Error"));
    relay()->mobj()->c("connected")->setValue(nullptr, false);
    QCOMPARE(robot(frame), QString("Unknown Unknown Unknown"));
    for (const char* name : {"power", "mode", "state"})
        QCOMPARE(item(frame, name)->state(), StatusItem::State::Neutral);
    m()->root()->set(nullptr, "helm.r.mode", "manual");
    QCOMPARE(item(frame, "mode")->text(), QString("Unknown"));
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    QCOMPARE(robot(frame), QString("On Manual Error"));
    QCOMPARE(item(frame, "power")->state(), StatusItem::State::Good);
    QCOMPARE(item(frame, "state")->state(), StatusItem::State::Error);
}

void TestStatus::untilTheStateIsToldItIsUnknownHowTheRobotIs() {
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    Frame frame;
    m()->root()->set(nullptr, "helm.r.power", "on");
    pendant::statelink::setAwaited(true);
    QCOMPARE(item(frame, "power")->text(), QString("Unknown"));
    pendant::statelink::setAwaited(false);
    QCOMPARE(item(frame, "power")->text(), QString("On"));
}

void TestStatus::anErrorOfTheRobotHasAColourAndAWord() {
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    Frame frame;
    m()->root()->set(nullptr, "helm.r.state", "error");
    QCOMPARE(item(frame, "state")->text(), QString("Error"));
    QCOMPARE(item(frame, "state")->state(), StatusItem::State::Error);
    m()->root()->set(nullptr, "helm.r.state", "idle");
    QCOMPARE(item(frame, "state")->state(), StatusItem::State::Neutral);
}

void TestStatus::everyItemIsWholeAtTheSizesOfPendants_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("language");
    for (const int width : {1024, 1280}) {
        for (const char* language : {"en", "de", "zh_CN"})
            QTest::addRow("%d %s", width, language) << width << language;
    }
}

void TestStatus::everyItemIsWholeAtTheSizesOfPendants() {
    QFETCH(int, width);
    QFETCH(QString, language);
    auto* application = static_cast<pendant::Application*>(qApp);
    QVERIFY(application->setLanguage(language));
    Frame frame;
    frame.window->resize(width, 800);
    m()->root()->set(nullptr, "helm.r.power", "on");
    m()->root()->set(nullptr, "helm.r.mode", "auto");
    m()->root()->set(nullptr, "helm.r.state", "stopping");
    relay()->mobj()->c("connected")->setValue(nullptr, true);
    Frame::settle();
    QCOMPARE(frame.window->width(), width);
    if (width == 1280)
        QVERIFY(item(frame, "state")->isVisible());
    for (const char* name : {"bus", "controller", "power", "mode", "state", "tool", "workobject"}) {
        const QLabel* value = item(frame, name)->findChild<QLabel*>("statusValue");
        const int wanted = value->isVisible() ? value->fontMetrics().horizontalAdvance(value->text()) : 0;
        QTRY_VERIFY2(value->width() >= wanted,
                     qPrintable(QString("%1 %2 %3").arg(name).arg(value->width()).arg(wanted)));
    }
    QVERIFY(application->setLanguage("en"));
}

void TestStatus::itemsOfPluginsTakeTheIconsFirstAndThenTheState() {
    Frame frame;
    Frame::settle();
    const QWidget* icon = item(frame, "mode")->findChild<QLabel*>("statusIcon");
    const QWidget* linkIcon = item(frame, "bus")->findChild<QLabel*>("statusIcon");
    QVERIFY(icon->isVisible());
    auto* label = new QLabel("Arc");
    const int free = frame.find("status:clock")->x() - item(frame, "workobject")->geometry().right();
    label->setFixedWidth(free + 20);
    QVERIFY(frame.window->statusBar()->addBeforeItem(nullptr, "kite.weld.1", "orca.body.statuspage.wgtStrech2", label));
    QTRY_VERIFY(!icon->isVisible());
    QVERIFY(item(frame, "state")->isVisible());
    label->setFixedWidth(free + 200);
    QTRY_VERIFY(!item(frame, "state")->isVisible());
    QVERIFY(linkIcon->isVisible());
    delete label;
    QTRY_VERIFY(icon->isVisible() && item(frame, "state")->isVisible());
}

void TestStatus::aValueThatIsRemovedAndMadeAgainIsFollowedStill() {
    Frame frame;
    m()->root()->set(nullptr, "orca.toolpage.tool", "g_tool_a");
    m("orca.toolpage")->clear(nullptr, true, true);
    QTRY_COMPARE(item(frame, "tool")->text(), QString("tool0"));
    m()->root()->set(nullptr, "orca.toolpage.tool", "g_tool_b");
    QCOMPARE(item(frame, "tool")->text(), QString("g_tool_b"));
}

void TestStatus::aPluginsItemStandsBeforeTheStretch() {
    Frame frame;
    const QString stretch = "orca.body.statuspage.wgtStrech2";
    auto* label = new QLabel("Arc 0 A");
    QVERIFY(frame.window->statusBar()->addBeforeItem(nullptr, "kite.weld.1", stretch, label));
    const QStringList keys = frame.window->statusBar()->keys();
    QCOMPARE(keys.indexOf("kite.weld.1") + 1, keys.indexOf(stretch));
    Frame::settle();
    QVERIFY(label->isVisible());
    QVERIFY(label->x() > item(frame, "workobject")->geometry().right());
    QVERIFY(label->geometry().right() < frame.find("status:clock")->x());
}

void TestStatus::aPluginsItemLooksAtHome() {
    Frame frame;
    auto* label = new QLabel("Arc 0 A");
    frame.window->statusBar()->addBeforeItem(nullptr, "kite.weld.1", "orca.body.statuspage.wgtStrech2", label);
    label->ensurePolished();
    QCOMPARE(label->palette().color(QPalette::WindowText), pendant::Theme::light().color("text"));
    frame.window->setTheme(pendant::Theme::dark());
    label->ensurePolished();
    QCOMPARE(label->palette().color(QPalette::WindowText), pendant::Theme::dark().color("text"));
}

void TestStatus::aLongValueIsCutAndStandsWholeInTheToolTip() {
    Frame frame;
    const QString tool = "g_tool_torch_with_a_very_long_name_that_cannot_fit";
    m()->root()->set(nullptr, "orca.toolpage.tool", tool);
    Frame::settle();
    QCOMPARE(item(frame, "tool")->text(), tool);
    QCOMPARE(frame.window->width(), 1280);
    frame.window->grab();
    QCOMPARE(item(frame, "tool")->findChild<QLabel*>("statusValue")->toolTip(), tool);
}

PENDANT_TEST_MAIN(TestStatus)
#include "tst_frame_status.moc"
