#include "pickplacetest.h"

#include <QRadioButton>
#include <QSpinBox>

/// What stands on the page, teaching and the question for the way: nothing moves by a press.
class TestPickPlace : public PickPlaceTest {
    Q_OBJECT

private slots:
    void theReasonForTheLineStandsOnThePage();
    void aPointOnTheLineIsTaughtWhereTheRobotStands();
    void offTheLineNothingIsTaught();
    void oneMillimetreOffIsStillOnTheLine_data();
    void oneMillimetreOffIsStillOnTheLine();
    void withoutTheControllerNothingIsTaught();
    void withoutAPositionTheOldPointStays();
    void aPointNeedsAName();
    void thePageTellsHowFarTheToolIsOffTheLine();
    void ofEachPlaceThePageTellsWhetherTheRobotCanBeSentThere_data();
    void ofEachPlaceThePageTellsWhetherTheRobotCanBeSentThere();
    void zerosAreNoPlace();
    void aWayThatCanBeGone();
    void aWayThatCannotBeGone();
    void aWayFromAPointToItself();
    void withoutTheBusTheWayIsNotChecked();
    void theSpeedTellsItsUnit();
};

void TestPickPlace::theReasonForTheLineStandsOnThePage() {
    QVERIFY(page()->findChild<QLabel*>("reason")->isVisible());
    QVERIFY(text("reason").startsWith(
        "A move sends x in the place of y: the robot can only be sent to places where x = y"));
    QCOMPARE(answer(), QString("Jog to where x = y and teach both places."));
    QVERIFY(!isBad("answer"));
    QCOMPARE(text("state"), QString("idle"));
    QVERIFY(!page()->findChild<QLabel*>("error")->isVisible());
}

void TestPickPlace::aPointOnTheLineIsTaughtWhereTheRobotStands() {
    m_robot->jog({controller::JogCommand::Joint, 1, 50}, 600);
    call("pick", "new");
    QCOMPARE(text("pickVerdict"), QString("There is no point “new”. Teach it first."));
    press("pickTeach");
    QCOMPARE(answer(), QString("“new” is taught."));
    QCOMPARE(text("pickVerdict"), QString("The robot can be sent there."));
    const QVector<double> pose = manager()->getPointDataByName("new");
    QCOMPARE(pose.size(), 6);
    QVERIFY(pose.at(0) > 500);
    QVERIFY(qAbs(pose.at(0) - pose.at(1)) < 0.001);
    const QJsonObject here = manager()->getRelayData("robot.position", "cartesian.pose.frame.pos").toObject();
    QCOMPARE(pose.at(0), here["x"].toDouble());
    QCOMPARE(pose.at(2), here["z"].toDouble());
    const QString shown =
        QString("x %1  y %1  z %2, gripper in row").arg(pose.at(0), 0, 'f', 1).arg(pose.at(2), 0, 'f', 1);
    QCOMPARE(text("pickPosition"), shown);
}

void TestPickPlace::offTheLineNothingIsTaught() {
    const QVector<double> before = manager()->getPointDataByName("place");
    m_robot->jog({controller::JogCommand::Joint, 0, 50}, 400);
    press("placeTeach");
    QVERIFY2(answer().startsWith("“place” was not taught: in row the tool is at x "), qPrintable(answer()));
    QVERIFY(answer().contains("A move sends x in the place of y"));
    QVERIFY(isBad("answer"));
    QCOMPARE(manager()->getPointDataByName("place"), before);
}

void TestPickPlace::oneMillimetreOffIsStillOnTheLine_data() {
    QTest::addColumn<double>("yMm");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("0.9 less") << 599.1 << true;
    QTest::newRow("1.1 less") << 598.9 << false;
    QTest::newRow("0.9 more") << 600.9 << true;
    QTest::newRow("1.1 more") << 601.1 << false;
}

void TestPickPlace::oneMillimetreOffIsStillOnTheLine() {
    QFETCH(double, yMm);
    QFETCH(bool, isOn);
    manager()->changeCartPoint("pick", {600, yMm, 500, 0, 90, 0});
    m_pendant->leave();
    m_pendant->open("pickplace");
    QCOMPARE(text("pickVerdict") == "The robot can be sent there.", isOn);
}

void TestPickPlace::withoutTheControllerNothingIsTaught() {
    const QVector<double> before = manager()->getPointDataByName("pick");
    m_robot->controllerLink(false);
    press("pickTeach");
    QCOMPARE(answer(), QString("“pick” was not taught: the controller gives no position."));
    QVERIFY(isBad("answer"));
    QCOMPARE(manager()->getPointDataByName("pick"), before);
}

void TestPickPlace::withoutAPositionTheOldPointStays() {
    const QVector<double> before = manager()->getPointDataByName("pick");
    m_robot->embedded()->controllerLink()->setFault(controller::Fault::Null);
    press("pickTeach");
    QCOMPARE(answer(), QString("“pick” was not taught: the controller gives no position."));
    QCOMPARE(manager()->getPointDataByName("pick"), before);
}

void TestPickPlace::aPointNeedsAName() {
    call("pick", " ");
    press("pickTeach");
    QCOMPARE(answer(), QString("Give the point a name first."));
}

void TestPickPlace::thePageTellsHowFarTheToolIsOffTheLine() {
    QVERIFY2(text("distance").endsWith(": on the line x = y."), qPrintable(text("distance")));
    m_robot->jog({controller::JogCommand::Cartesian, 0, 50}, 400);
    m_robot->step(100);
    const QJsonObject here = manager()->getRelayData("robot.position", "cartesian.pose.frame.pos").toObject();
    const double off = here["x"].toDouble() - here["y"].toDouble();
    QVERIFY(off > 5);
    QVERIFY2(text("distance").endsWith(QString(": jog x or y by %1 mm.").arg(off, 0, 'f', 1)),
             qPrintable(text("distance")));
}

void TestPickPlace::ofEachPlaceThePageTellsWhetherTheRobotCanBeSentThere_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("verdict");
    QTest::newRow("on the line") << "place"
                                 << "The robot can be sent there.";
    QTest::newRow("off the line") << "aside"
                                  << "“aside” is at x ";
    QTest::newRow("joints") << "home"
                            << "“home” holds joints: a move would send no target.";
    QTest::newRow("another work object") << "on_table"
                                         << "“on_table” was taught with gripper in table. Select these first.";
    QTest::newRow("another case") << "Place"
                                  << "There is no point “Place”. Teach it first.";
}

void TestPickPlace::ofEachPlaceThePageTellsWhetherTheRobotCanBeSentThere() {
    QFETCH(QString, name);
    QFETCH(QString, verdict);
    call("pick", name);
    QVERIFY2(text("pickVerdict").startsWith(verdict), qPrintable(text("pickVerdict")));
    if (name == "place")
        return;
    m_robot->forgetTraffic();
    press("pickGo");
    QCOMPARE(answer(), text("pickVerdict"));
    QVERIFY(isBad("answer"));
    QCOMPARE(sent(), QStringList());
}

// A target like any other to the controller: the origin of the work object.
void TestPickPlace::zerosAreNoPlace() {
    manager()->changeCartPoint("pick", QVector<double>(6, 0.0));
    m_robot->forgetTraffic();
    press("pickGo");
    QCOMPARE(answer(), QString("“pick” holds zeros: the controller gave no position when it was taught."));
    QCOMPARE(text("pickVerdict"), answer());
    QCOMPARE(sent(), QStringList());
}

void TestPickPlace::aWayThatCanBeGone() {
    press("check");
    QCOMPARE(answer(), QString("The controller has nothing against the way from “pick” to “place”."));
    QVERIFY(!isBad("answer"));
}

void TestPickPlace::aWayThatCannotBeGone() {
    manager()->changeCartPoint("place", {5000, 5000, 500, 0, 90, 0});
    m_robot->settle();
    press("check");
    QCOMPARE(answer(), QString("The robot cannot go straight from “pick” to “place”."));
    QVERIFY(isBad("answer"));
}

void TestPickPlace::aWayFromAPointToItself() {
    call("place", "pick");
    m_robot->forgetTraffic();
    press("check");
    QCOMPARE(answer(), QString("Both names are “pick”: there is no way to go."));
    QVERIFY(!isBad("answer"));
    QCOMPARE(sent(), QStringList());
}

void TestPickPlace::withoutTheBusTheWayIsNotChecked() {
    m_robot->bus(false);
    press("check");
    QCOMPARE(answer(), QString("The way was not checked: the bus is down."));
    QVERIFY(isBad("answer"));
}

void TestPickPlace::theSpeedTellsItsUnit() {
    auto* speed = page()->findChild<QSpinBox*>("speed");
    QCOMPARE(speed->text(), QString("250 mm/s"));
    page()->findChild<QRadioButton*>("joints")->click();
    QCOMPARE(speed->text(), QString("250 ‰ of full speed"));
    page()->findChild<QRadioButton*>("linear")->click();
    QCOMPARE(speed->text(), QString("250 mm/s"));
}

QTEST_MAIN(TestPickPlace)
#include "tst_pickplace.moc"
