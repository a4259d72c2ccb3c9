#include "pickplacetest.h"

#include <kite/subscription.h>

#include <QRadioButton>
#include <QSpinBox>

#include <cmath>

namespace {

const QString errorKey("move.last_error_with_setting");
const QString startLine(" moveToStart : ");
const QString keyPage("Pick and place");

} // namespace

/// The robot moves by the clock that the test steps.
class TestPickPlaceMoves : public PickPlaceTest {
    Q_OBJECT

private slots:
    void theRobotGetsToThePoint_data();
    void theRobotGetsToThePoint();
    void theRobotGoesThereAndBack();
    void whatIsSent_data();
    void whatIsSent();
    void stoppedOnTheWayItStandsAndStays_data();
    void stoppedOnTheWayItStandsAndStays();
    void whileItMovesTheKeyStaysOnOtherPages();
    void withoutTheBusTheStopSaysSo();
    void withoutTheBusNothingIsStarted();
    void aTargetOutOfReachIsShown();
    void anErrorOnAnotherPageGoesToTheMessageList();
    void drivesThatGoOffOnTheWayAreShown();
    void theNextMoveTakesTheErrorAway();
    void aStopSilencesNoSubscriber();
    void thePluginStaysOnTheErrorsWhenAnotherStops();
    void theFormWithFourArgumentsMovesNothing();
    void aLinkThatIsDownIsShown_data();
    void aLinkThatIsDownIsShown();
    void anErrorFromBeforeTheLinksWereUpIsShown();
    void theEndStopsTheMove();
    void theEndEndsTheSubscriptions();

private:
    using Place = QVector<double>;
    static Place here() {
        const QJsonObject at = manager()->getRelayData("robot.position", "cartesian.pose.frame.pos").toObject();
        return {at["x"].toDouble(), at["y"].toDouble(), at["z"].toDouble()};
    }
    static Place placeOf(const QString& point) { return manager()->getPointDataByName(point).mid(0, 3); }
    static double distance(const Place& one, const Place& other) {
        double squares = 0;
        for (int i = 0; i < 3; ++i)
            squares += (one.at(i) - other.at(i)) * (one.at(i) - other.at(i));
        return std::sqrt(squares);
    }
    // What the plugin put into the message list.
    QStringList told() {
        QStringList texts;
        for (const auto& message : m_pendant->messages()) {
            if (message.source == "pickplace")
                texts << message.text;
        }
        return texts;
    }
    static bool isMoving() { return manager()->getRelayData("robot.state", "moving").toBool(); }
    void go(const char* button) {
        m_pendant->expectError(startLine);
        press(button);
    }
    // With a bound: a robot that never comes to rest fails the test.
    void untilItStands() {
        for (int i = 0; i < 2000 && isMoving(); ++i)
            m_robot->step(10);
        QVERIFY(!isMoving());
    }
    void verifyIsAt(const QString& point) {
        QVERIFY2(distance(here(), placeOf(point)) < 0.01,
                 qPrintable(QString::number(distance(here(), placeOf(point)))));
    }
    void halfWay(const char* button, const QString& point) {
        const double whole = distance(here(), placeOf(point));
        QVERIFY(whole > 50);
        go(button);
        for (int i = 0; i < 2000 && distance(here(), placeOf(point)) > whole / 2; ++i)
            m_robot->step(10);
        QVERIFY(isMoving());
    }
};

void TestPickPlaceMoves::theRobotGetsToThePoint_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("motion");
    QTest::newRow("linear") << "linear"
                            << "moving: linear move";
    QTest::newRow("joints") << "joints"
                            << "moving: joint move";
}

void TestPickPlaceMoves::theRobotGetsToThePoint() {
    QFETCH(QString, way);
    QFETCH(QString, motion);
    page()->findChild<QRadioButton*>(way)->click();
    QVERIFY(distance(here(), placeOf("pick")) > 50);
    go("pickGo");
    QCOMPARE(answer(), QString("“pick” was sent to the robot."));
    m_robot->step(50);
    QCOMPARE(text("state"), motion);
    untilItStands();
    verifyIsAt("pick");
    QCOMPARE(text("state"), QString("idle: arrived"));
    QVERIFY(!page()->findChild<QLabel*>("error")->isVisible());
}

void TestPickPlaceMoves::theRobotGoesThereAndBack() {
    for (const char* place : {"pick", "place", "pick"}) {
        go(qPrintable(QString(place) + "Go"));
        untilItStands();
        verifyIsAt(place);
    }
}

void TestPickPlaceMoves::whatIsSent_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("command");
    QTest::newRow("linear") << "linear"
                            << "move.move_to.l";
    QTest::newRow("joints") << "joints"
                            << "move.move_to.jc";
}

void TestPickPlaceMoves::whatIsSent() {
    QFETCH(QString, way);
    QFETCH(QString, command);
    page()->findChild<QRadioButton*>(way)->click();
    page()->findChild<QSpinBox*>("speed")->setValue(100);
    m_robot->forgetTraffic();
    go("placeGo");
    QCOMPARE(sent(), QStringList({"execute move.reset", "command " + command, "command move.opr.enough"}));
    for (const auto& entry : m_robot->traffic()) {
        if (entry.key != command || entry.kind != "command")
            continue;
        const QJsonObject sentMove = entry.value.toObject();
        QCOMPARE(sentMove["traj"].toObject()["speed"].toDouble(), 0.1);
        const QJsonArray trans = sentMove["point"].toObject()["trans"].toArray();
        QCOMPARE(trans.at(0), trans.at(1));
        QCOMPARE(trans.at(0).toDouble(), placeOf("place").at(0) / 1000);
        QCOMPARE(sentMove["point"].toObject()["conf"].toArray().size(), 8);
    }
}

void TestPickPlaceMoves::stoppedOnTheWayItStandsAndStays_data() {
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("physical key") << true;
}

void TestPickPlaceMoves::stoppedOnTheWayItStandsAndStays() {
    QFETCH(bool, byKey);
    halfWay("pickGo", "pick");
    QVERIFY(byKey ? m_pendant->holdKey(keyPage, "Stop", true) : m_pendant->press("stop"));
    m_robot->settle();
    QCOMPARE(answer(), QString("The stop was sent."));
    QCOMPARE(text("state"), QString("stopping: linear move"));
    untilItStands();
    QCOMPARE(text("state"), QString("idle"));
    const Place stopped = here();
    QVERIFY(distance(stopped, placeOf("pick")) > 5);
    m_robot->forgetTraffic();
    if (byKey)
        QVERIFY(m_pendant->holdKey(keyPage, "Stop", false));
    m_robot->step(3000);
    QCOMPARE(here(), stopped);
    QCOMPARE(sent(), QStringList());
}

void TestPickPlaceMoves::whileItMovesTheKeyStaysOnOtherPages() {
    halfWay("pickGo", "pick");
    m_pendant->leave();
    QVERIFY(isMoving());
    QVERIFY(m_pendant->holdKey(keyPage, "Stop", true));
    QVERIFY(m_pendant->holdKey(keyPage, "Stop", false));
    m_robot->settle();
    untilItStands();
    m_robot->settle();
    QVERIFY(distance(here(), placeOf("pick")) > 5);
    QVERIFY(!m_pendant->holdKey(keyPage, "Stop", true));
    // Jogging is none of this page's moves.
    manager()->commandRelayData("robot.jog", QJsonObject{{"space", "joint"}, {"axis", 0}, {"percent", 50}});
    m_robot->settle();
    m_robot->step(100);
    QVERIFY(isMoving());
    QVERIFY(!m_pendant->holdKey(keyPage, "Stop", true));
    QVERIFY(m_pendant->open("pickplace"));
    QVERIFY(m_pendant->holdKey(keyPage, "Stop", false));
}

void TestPickPlaceMoves::withoutTheBusTheStopSaysSo() {
    halfWay("pickGo", "pick");
    m_robot->bus(false);
    press("stop");
    QCOMPARE(answer(), QString("The stop could not be sent: the bus is down. Use the emergency stop."));
    QVERIFY(isBad("answer"));
    m_robot->step(20000);
    m_robot->bus(true);
    verifyIsAt("pick");
    QCOMPARE(text("state"), QString("idle: arrived"));
}

void TestPickPlaceMoves::withoutTheBusNothingIsStarted() {
    m_robot->bus(false);
    turnToTheAuthorsTab();
    for (const char* button : {"pickGo", "fourArguments"}) {
        press(button);
        QVERIFY2(answer().endsWith(": the bus is down."), qPrintable(answer()));
        QVERIFY(isBad("answer"));
    }
    m_robot->bus(true);
    m_robot->step(500);
    QVERIFY(!isMoving());
}

void TestPickPlaceMoves::aTargetOutOfReachIsShown() {
    manager()->changeCartPoint("pick", {5000, 5000, 500, 0, 90, 0});
    const Place before = here();
    m_pendant->expectError("The arm does not reach the target of the move.");
    go("pickGo");
    QCOMPARE(text("error"), QString("The arm does not reach the target of the move. (-111)"));
    QVERIFY(page()->findChild<QLabel*>("error")->isVisible());
    QCOMPARE(told(), QStringList());
    QCOMPARE(text("state"), QString("error"));
    m_robot->step(1000);
    QCOMPARE(here(), before);
}

void TestPickPlaceMoves::anErrorOnAnotherPageGoesToTheMessageList() {
    halfWay("pickGo", "pick");
    m_pendant->leave();
    m_pendant->expectError("The move cannot go on: the drives went off.");
    manager()->setRelayData("robot.drives", false);
    m_robot->settle();
    QCOMPARE(told(), QStringList("The move cannot go on: the drives went off. (-105)"));
}

void TestPickPlaceMoves::drivesThatGoOffOnTheWayAreShown() {
    halfWay("pickGo", "pick");
    m_pendant->expectError("The move cannot go on: the drives went off.");
    manager()->setRelayData("robot.drives", false);
    m_robot->settle();
    QVERIFY(!isMoving());
    QCOMPARE(text("error"), QString("The move cannot go on: the drives went off. (-105)"));
    QCOMPARE(text("state"), QString("off: drives off"));
    QVERIFY(distance(here(), placeOf("pick")) > 5);
}

void TestPickPlaceMoves::theNextMoveTakesTheErrorAway() {
    drivesThatGoOffOnTheWayAreShown();
    manager()->setRelayData("robot.drives", true);
    m_robot->settle();
    go("pickGo");
    QVERIFY(!page()->findChild<QLabel*>("error")->isVisible());
    untilItStands();
    verifyIsAt("pick");
}

// The watch that a start switches on and a stop switches off is a mark of its own.
void TestPickPlaceMoves::aStopSilencesNoSubscriber() {
    QVector<int> heard;
    const kite::Subscription other(
        "other", errorKey, [&](const QVariant& error) { heard << error.toJsonObject()["code"].toInt(); }, "errors");
    halfWay("pickGo", "pick");
    m_robot->forgetTraffic();
    press("stop");
    untilItStands();
    QCOMPARE(sent(), QStringList("command move.stop"));
    // A move without a pose, from somebody else.
    m_pendant->expectError("no target");
    manager()->commandRelayData("move.move_to.l", QJsonObject());
    m_robot->settle();
    QCOMPARE(heard, QVector<int>({-101}));
    QVERIFY2(text("error").endsWith("(-101)"), qPrintable(text("error")));
}

void TestPickPlaceMoves::thePluginStaysOnTheErrorsWhenAnotherStops() {
    halfWay("pickGo", "pick");
    {
        const kite::Subscription other(
            "other", errorKey, [](const QVariant&) {}, "errors");
        manager()->moveToStop();
    }
    m_robot->settle();
    untilItStands();
    manager()->changeCartPoint("pick", {5000, 5000, 500, 0, 90, 0});
    m_pendant->expectError("The arm does not reach the target of the move.");
    go("pickGo");
    QVERIFY2(text("error").endsWith("(-111)"), qPrintable(text("error")));
}

void TestPickPlaceMoves::theFormWithFourArgumentsMovesNothing() {
    const Place before = here();
    m_robot->forgetTraffic();
    m_pendant->expectError("no target");
    turnToTheAuthorsTab();
    go("fourArguments");
    QCOMPARE(answer(), QString("A speed was sent, and no target."));
    QCOMPARE(sent(), QStringList({"execute move.reset", "command move.move_to.jc", "command move.opr.enough"}));
    QVERIFY2(text("error").endsWith("(-101)"), qPrintable(text("error")));
    m_robot->step(3000);
    QCOMPARE(here(), before);
    call("pick", "nobody");
    m_pendant->expectError("no point find!");
    press("fourArguments");
    QCOMPARE(answer(), QString("There is no point “nobody”. Teach it first."));
}

void TestPickPlaceMoves::aLinkThatIsDownIsShown_data() {
    QTest::addColumn<bool>("bus");
    QTest::newRow("bus") << true;
    QTest::newRow("controller") << false;
}

void TestPickPlaceMoves::aLinkThatIsDownIsShown() {
    QFETCH(bool, bus);
    bus ? m_robot->bus(false) : m_robot->controllerLink(false);
    QCOMPARE(text("state"), QString("A link is down: what the robot does is not known."));
    QVERIFY(isBad("state"));
    m_robot->connectLinks();
    QCOMPARE(text("state"), QString("idle"));
    QVERIFY(!isBad("state"));
}

void TestPickPlaceMoves::anErrorFromBeforeTheLinksWereUpIsShown() {
    cleanup();
    m_pendant.reset(new pendanttest::Pendant);
    m_robot.reset(new pendanttest::Robot);
    m_robot->loadCell(ROW_CELL);
    m_robot->connectLinks();
    m_pendant->expectError("no target");
    manager()->commandRelayData("move.move_to.l", QJsonObject());
    m_robot->settle();
    m_pendant->add<PickPlacePlugin>("pickplace");
    m_pendant->start();
    QVERIFY(m_pendant->open("pickplace"));
    QVERIFY2(text("error").endsWith("(-101)"), qPrintable(text("error")));
}

void TestPickPlaceMoves::theEndStopsTheMove() {
    halfWay("pickGo", "pick");
    const Place target = placeOf("pick");
    m_pendant->close();
    m_robot->settle();
    QCOMPARE(manager()->getRelayData("robot.state", "state").toString(), QString("stopping"));
    untilItStands();
    QVERIFY(distance(here(), target) > 5);
}

void TestPickPlaceMoves::theEndEndsTheSubscriptions() {
    const auto mine = [] { return manager()->getConnectRelayKeyList("pickplace"); };
    QCOMPARE(mine(), QStringList({"errors", "position", "state"}));
    m_pendant->close();
    QCOMPARE(mine(), QStringList());
}

QTEST_MAIN(TestPickPlaceMoves)
#include "tst_pickplace_moves.moc"
