#include "dashboardplugin.h"

#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include <kite/interfacemanager.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>

#include <memory>

using pendanttest::Pendant;
using pendanttest::Robot;

class TestDashboard : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void beforeTheLinksAreUpNothingIsLive();
    void theRobotIsShownOnceBothLinksAreUp_data();
    void theRobotIsShownOnceBothLinksAreUp();
    void linksThatAreUpAlreadyAreSeen();
    void drivesModeAndStateFollow();
    void signalsStandUnderTheirTypes();
    void signalsFollow();
    void registersStandInThePendantsOrderAndFollow();
    void namesOfAllSourcesAreListedOnce();
    void aLinkThatIsDownIsShownAndTheValuesStay_data();
    void aLinkThatIsDownIsShownAndTheValuesStay();
    void theBusThatGoesDownSecondIsShown();
    void afterALinkWasDownEverythingIsReadAgain();
    void aPageThatIsNotShownIsNotRead();
    void closingThePendantEndsTheSubscriptions();

private:
    void start() {
        m_pendant->add<DashboardPlugin>("dashboard");
        m_pendant->start();
        QVERIFY(m_pendant->open("dashboard"));
    }
    // What somebody at the cell does.
    void pressStartButton() {
        kite::kiteInterface()->commandRelayData("io.force", QJsonObject{{"name", "start_button"}, {"value", true}});
        m_robot->settle();
    }
    void startConnected() {
        m_robot->connectLinks();
        start();
        m_robot->settle();
    }
    template <typename Widget> Widget* find(const char* name) {
        return m_pendant->page("dashboard")->findChild<Widget*>(name);
    }
    QString text(const char* name) { return find<QLabel>(name)->text(); }
    // name=text of the rows below a heading, or of the whole list.
    static QStringList rowsBelow(const QTreeWidgetItem* heading) {
        QStringList rows;
        for (int i = 0; i < heading->childCount(); ++i)
            rows << heading->child(i)->text(0) + "=" + heading->child(i)->text(1);
        return rows;
    }
    QStringList group(const char* list, int index) { return rowsBelow(find<QTreeWidget>(list)->topLevelItem(index)); }
    QStringList headings(const char* list) {
        QStringList texts;
        for (int i = 0; i < find<QTreeWidget>(list)->topLevelItemCount(); ++i)
            texts << find<QTreeWidget>(list)->topLevelItem(i)->text(0);
        return texts;
    }
    QStringList registers() { return rowsBelow(find<QTreeWidget>("registers")->invisibleRootItem()); }

    std::unique_ptr<Pendant> m_pendant;
    std::unique_ptr<Robot> m_robot;
};

void TestDashboard::init() {
    m_pendant.reset(new Pendant);
    m_robot.reset(new Robot);
    m_robot->loadDefaultCell();
}

void TestDashboard::cleanup() {
    m_pendant.reset();
    m_robot.reset();
}

void TestDashboard::beforeTheLinksAreUpNothingIsLive() {
    start();
    QCOMPARE(text("links"), QString("The bus is down. There are no live values yet."));
    QCOMPARE(text("state"), QString("unknown"));
    QCOMPARE(text("drives"), QString("off"));
    QCOMPARE(text("mode"), QString("unknown"));
    QCOMPARE(text("level"), QString("0"));
    QCOMPARE(text("tool"), QString("tool0"));
    QCOMPARE(text("wobj"), QString("wobj0"));
    QCOMPARE(text("id"), QString("none"));
    QCOMPARE(text("model"), QString("not told yet"));
    QCOMPARE(text("outputsOn"), QString("No output is on."));
    QVERIFY(!find<QLabel>("state")->isEnabled());
}

void TestDashboard::theRobotIsShownOnceBothLinksAreUp_data() {
    QTest::addColumn<bool>("busFirst");
    QTest::newRow("bus first") << true;
    QTest::newRow("controller first") << false;
}

void TestDashboard::theRobotIsShownOnceBothLinksAreUp() {
    QFETCH(bool, busFirst);
    start();
    busFirst ? m_robot->bus(true) : m_robot->controllerLink(true);
    QVERIFY(!find<QLabel>("state")->isEnabled());
    busFirst ? m_robot->controllerLink(true) : m_robot->bus(true);
    QCOMPARE(text("links"), QString("Connected: the values are live."));
    QVERIFY(find<QLabel>("state")->isEnabled());
    QCOMPARE(text("state"), QString("idle"));
    QCOMPARE(text("drives"), QString("on"));
    QCOMPARE(text("mode"), QString("manual"));
    QCOMPARE(text("level"), QString("1"));
    QCOMPARE(text("tool"), QString("gripper"));
    QCOMPARE(text("wobj"), QString("table"));
    QCOMPARE(text("id"), QString("virtual"));
    QCOMPARE(text("type"), QString("standard"));
    const QString address = kite::kiteInterface()->getRobotIP();
    QCOMPARE(text("address"), address.isEmpty() ? QString("none") : address);
    QTRY_COMPARE(text("model"), QString("3"));
}

void TestDashboard::linksThatAreUpAlreadyAreSeen() {
    startConnected();
    QCOMPARE(text("links"), QString("Connected: the values are live."));
    QCOMPARE(text("state"), QString("idle"));
    QCOMPARE(text("model"), QString("3"));
}

void TestDashboard::drivesModeAndStateFollow() {
    startConnected();
    kite::kiteInterface()->commandRelayData("robot.jog", QJsonObject{{"space", "joint"}, {"axis", 0}, {"percent", 50}});
    m_robot->settle();
    m_robot->step(100);
    QCOMPARE(text("state"), QString("moving"));
    kite::kiteInterface()->commandRelayData("robot.jog.stop", QVariant());
    m_robot->settle();
    QCOMPARE(text("state"), QString("idle"));
    kite::kiteInterface()->setRelayData("robot.mode", "auto");
    m_robot->settle();
    QCOMPARE(text("mode"), QString("auto"));
    kite::kiteInterface()->setRelayData("robot.drives", false);
    m_robot->settle();
    QCOMPARE(text("drives"), QString("off"));
    QCOMPARE(text("state"), QString("off"));
}

void TestDashboard::signalsStandUnderTheirTypes() {
    startConnected();
    QCOMPARE(headings("signals"), QStringList({"Digital inputs (4)", "Digital outputs (3)", "Group inputs (1)",
                                               "Group outputs (1)", "Analogue inputs (2)", "Analogue outputs (1)"}));
    QCOMPARE(group("signals", 0),
             QStringList({"part_present=off", "door_closed=on", "start_button=off", "pressure_ok=on"}));
    QCOMPARE(group("signals", 1), QStringList({"gripper=off", "lamp=off", "conveyor_run=on"}));
    QCOMPARE(group("signals", 2), QStringList("part_code=17"));
    QCOMPARE(group("signals", 3), QStringList("job_number=3"));
    QCOMPARE(group("signals", 4).last(), QString("distance=42.5"));
    QCOMPARE(group("signals", 5), QStringList("belt_speed=2.5"));
    QCOMPARE(text("outputsOn"), QString("Outputs that are on: conveyor_run"));
}

void TestDashboard::signalsFollow() {
    startConnected();
    const QTreeWidgetItem* row = find<QTreeWidget>("signals")->topLevelItem(0)->child(2);
    pressStartButton();
    m_robot->step(100);
    QCOMPARE(group("signals", 0).at(2), QString("start_button=on"));
    QCOMPARE(find<QTreeWidget>("signals")->topLevelItem(0)->child(2), row);
    const QJsonObject lamp{{"name", "lamp"}, {"value", true}};
    kite::kiteInterface()->commandRelayData("io.set", lamp);
    m_robot->step(100);
    QCOMPARE(text("outputsOn"), QString("Outputs that are on: lamp, conveyor_run"));
}

void TestDashboard::registersStandInThePendantsOrderAndFollow() {
    startConnected();
    QCOMPARE(registers(), QStringList({"order=A-17, bracket", "good_bad=112, 3", "operator=", "alarms=empty"}));
    const QJsonObject order{{"name", "order"}, {"value", QJsonArray{"A-18", "plate"}}};
    kite::kiteInterface()->commandRelayData("register.set", order);
    m_robot->step(100);
    QCOMPARE(registers().first(), QString("order=A-18, plate"));
}

void TestDashboard::namesOfAllSourcesAreListedOnce() {
    startConnected();
    QCOMPARE(group("names", 0).filter("gripper"), QStringList("gripper=selected"));
    QCOMPARE(group("names", 0).filter("camera"), QStringList("camera="));
    QCOMPARE(group("names", 1).filter("table"), QStringList("table=selected"));
    QCOMPARE(group("names", 2), QStringList({"slow=", "normal=", "fast=", "grip_speed="}));
    QCOMPARE(group("names", 3), QStringList({"exact=", "near=", "wide=", "grip_zone="}));
    QCOMPARE(headings("names").at(3), QString("Zones (4)"));
}

void TestDashboard::aLinkThatIsDownIsShownAndTheValuesStay_data() {
    QTest::addColumn<bool>("bus");
    QTest::addColumn<QString>("banner");
    QTest::newRow("bus") << true << "The bus is down. What stands here is what was there at ";
    QTest::newRow("controller") << false << "The controller link is down. What stands here is what was there at ";
}

void TestDashboard::aLinkThatIsDownIsShownAndTheValuesStay() {
    QFETCH(bool, bus);
    QFETCH(QString, banner);
    startConnected();
    bus ? m_robot->bus(false) : m_robot->controllerLink(false);
    const QRegularExpression whole(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(banner) + "\\d\\d:\\d\\d:\\d\\d\\."));
    QVERIFY2(whole.match(text("links")).hasMatch(), qPrintable(text("links")));
    QCOMPARE(find<QLabel>("links")->property("state").toString(), QString("error"));
    QVERIFY(!find<QLabel>("state")->isEnabled());
    QCOMPARE(text("drives"), QString("on"));
    QCOMPARE(group("signals", 2), QStringList("part_code=17"));
}

void TestDashboard::theBusThatGoesDownSecondIsShown() {
    startConnected();
    m_robot->controllerLink(false);
    QVERIFY(text("links").startsWith("The controller link is down."));
    m_robot->bus(false);
    QTRY_VERIFY(text("links").startsWith("The bus is down."));
}

void TestDashboard::afterALinkWasDownEverythingIsReadAgain() {
    startConnected();
    m_robot->bus(false);
    m_robot->step(5000);
    QCOMPARE(group("signals", 2), QStringList("part_code=17"));
    m_robot->bus(true);
    QCOMPARE(text("links"), QString("Connected: the values are live."));
    QCOMPARE(group("signals", 2), QStringList("part_code=18"));
}

void TestDashboard::aPageThatIsNotShownIsNotRead() {
    startConnected();
    QWidget* page = m_pendant->page("dashboard");
    m_pendant->leave();
    pressStartButton();
    m_robot->step(100);
    const auto* list = page->findChild<QTreeWidget*>("signals");
    QCOMPARE(list->topLevelItem(0)->child(2)->text(1), QString("off"));
    QVERIFY(m_pendant->open("dashboard"));
    QCOMPARE(list->topLevelItem(0)->child(2)->text(1), QString("on"));
}

void TestDashboard::closingThePendantEndsTheSubscriptions() {
    startConnected();
    const auto mine = [] { return kite::kiteInterface()->getConnectRelayKeyList("dashboard"); };
    QCOMPARE(mine(), QStringList({"io-signals", "register-list", "robot-drives", "robot-mode", "robot-state"}));
    m_pendant->close();
    QCOMPARE(mine(), QStringList());
    m_robot->step(5000);
}

QTEST_MAIN(TestDashboard)
#include "tst_dashboard.moc"
