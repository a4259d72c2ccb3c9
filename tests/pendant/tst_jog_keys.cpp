#include "jogfixture.h"

#include <QDialog>
#include <QMouseEvent>

#include <functional>

Q_DECLARE_METATYPE(std::function<void(JogBench&)>)

namespace {

// With the button held, which QTest's own move does not say.
void slide(QWidget* key, const QPoint& to) {
    QMouseEvent event(QEvent::MouseMove, to, key->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(key, &event);
}

} // namespace

// The keys that move the robot while they are held.
class TestJogKeys : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { m("orca.toolpage")->clear(nullptr, true, true); }

    void aKeyMovesTheRobotWhileItIsHeld();
    void theKeysOfARowMoveBothWays();
    void theSpeedIsTheChosenOne_data();
    void theSpeedIsTheChosenOne();
    void cartesianKeysMoveTheTool();
    void aHeldKeyIsToldAgainAndAgain();
    void everyWayOfLettingGoStops_data();
    void everyWayOfLettingGoStops();
    void slidingBackDoesNotMoveAgain();
    void aLinkThatGoesDownEndsItForGood();
    void aPageThatGoesStops();
    void aLimitIsSaid();
    void theKeyboardMovesNothing();
};

void TestJogKeys::aKeyMovesTheRobotWhileItIsHeld() {
    JogBench bench;
    bench.press("A1:plus");
    QCOMPARE(bench.commands(), QStringList{"robot.jog joint 0 25"});
    bench.robot.step(200);
    QVERIFY(bench.isMoving());
    QVERIFY(bench.state().contains("moving"));
    const double angle = bench.value("A1").toDouble();
    QVERIFY(angle > 0.5);
    bench.release("A1:plus");
    QVERIFY(!bench.isMoving());
    bench.robot.settle();
    QVERIFY(bench.state().contains("still"));
    bench.robot.step(1000);
    QCOMPARE(bench.value("A1").toDouble(), angle);
}

void TestJogKeys::theKeysOfARowMoveBothWays() {
    JogBench bench;
    bench.press("A2:minus");
    bench.robot.step(200);
    bench.release("A2:minus");
    QVERIFY(bench.value("A2").toDouble() < -0.5);
    QCOMPARE(bench.value("A1"), QString("0.000"));
    QCOMPARE(bench.commands(), (QStringList{"robot.jog joint 1 -25", "robot.jog.stop"}));
}

void TestJogKeys::theSpeedIsTheChosenOne_data() {
    QTest::addColumn<int>("percent");
    for (const int percent : {1, 5, 25, 100})
        QTest::addRow("%d", percent) << percent;
}

void TestJogKeys::theSpeedIsTheChosenOne() {
    QFETCH(int, percent);
    JogBench bench;
    Frame::click(bench.frame.find(QString("jogSpeed:%1").arg(percent)));
    bench.press("A3:plus");
    bench.release("A3:plus");
    QCOMPARE(bench.commands().first(), QString("robot.jog joint 2 %1").arg(percent));
}

void TestJogKeys::cartesianKeysMoveTheTool() {
    JogBench bench;
    Frame::click(bench.frame.find("jogCartesian"));
    const double before = bench.value("Z").toDouble();
    bench.press("Z:minus");
    QCOMPARE(bench.commands(), QStringList{"robot.jog cart 2 -25"});
    bench.robot.step(200);
    bench.release("Z:minus");
    QVERIFY(bench.value("Z").toDouble() < before - 1);
}

void TestJogKeys::aHeldKeyIsToldAgainAndAgain() {
    JogBench bench;
    bench.press("A1:plus");
    QTRY_VERIFY_WITH_TIMEOUT(bench.commands().size() >= 3, 5000);
    bench.release("A1:plus");
    const QStringList commands = bench.commands();
    QCOMPARE(commands.count("robot.jog joint 0 25"), commands.size() - 1);
    QCOMPARE(commands.last(), QString("robot.jog.stop"));
    QTest::qWait(450);
    QCOMPARE(bench.commands(), commands);
}

void TestJogKeys::everyWayOfLettingGoStops_data() {
    using Way = std::function<void(JogBench&)>;
    QTest::addColumn<Way>("letGo");
    const auto way = [](const char* name, const Way& letGo) { QTest::newRow(name) << letGo; };
    way("released", [](JogBench& bench) { bench.release("A1:plus"); });
    way("slid off", [](JogBench& bench) { slide(bench.key("A1:plus"), QPoint(-40, 10)); });
    way("page left", [](JogBench& bench) { bench.frame.window->showPage(pendant::pagekeys::start()); });
    way("other part", [](JogBench& bench) { Frame::click(bench.frame.find("jogCartesian")); });
    way("window hidden", [](JogBench& bench) { bench.frame.window->hide(); });
    way("window inactive", [](JogBench&) { QApplication::setActiveWindow(nullptr); });
    way("key disabled", [](JogBench& bench) { bench.key("A1:plus")->setEnabled(false); });
    way("page disabled", [](JogBench& bench) { bench.frame.window->center()->setEnabled(false); });
    way("row hidden", [](JogBench& bench) { bench.frame.find("jog:A1")->hide(); });
    way("dialog before it", [](JogBench& bench) {
        QDialog dialog(bench.frame.window.get());
        dialog.setModal(true);
        dialog.show();
        Frame::settle();
    });
    way("controller link down", [](JogBench& bench) { bench.robot.controllerLink(false); });
}

void TestJogKeys::everyWayOfLettingGoStops() {
    QFETCH(std::function<void(JogBench&)>, letGo);
    JogBench bench;
    bench.press("A1:plus");
    bench.robot.step(100);
    QVERIFY(bench.isMoving());
    letGo(bench);
    QVERIFY(!bench.isMoving());
    QCOMPARE(bench.commands().last(), QString("robot.jog.stop"));
    const int commands = bench.commands().size();
    QTest::qWait(250);
    QCOMPARE(bench.commands().size(), commands);
}

void TestJogKeys::slidingBackDoesNotMoveAgain() {
    JogBench bench;
    bench.press("A1:plus");
    slide(bench.key("A1:plus"), QPoint(-40, 10));
    slide(bench.key("A1:plus"), QPoint(20, 20));
    QVERIFY(!bench.isMoving());
    QVERIFY(!bench.key("A1:plus")->isDown());
    bench.release("A1:plus");
    QCOMPARE(bench.commands(), (QStringList{"robot.jog joint 0 25", "robot.jog.stop"}));
    bench.press("A1:plus");
    QVERIFY(bench.isMoving());
    bench.release("A1:plus");
}

// The stop cannot be sent then: the controller stops when nothing is renewed.
void TestJogKeys::aLinkThatGoesDownEndsItForGood() {
    JogBench bench;
    bench.press("A1:plus");
    bench.robot.step(100);
    bench.robot.bus(false);
    bench.robot.step(600);
    QVERIFY(!bench.isMoving());
    bench.robot.forgetTraffic();
    bench.robot.bus(true);
    QTest::qWait(250);
    QVERIFY(bench.commands().isEmpty());
    QVERIFY(!bench.isMoving());
}

void TestJogKeys::aPageThatGoesStops() {
    JogBench bench;
    bench.press("A1:plus");
    bench.robot.step(100);
    delete bench.frame.window->center()->page(pendant::pagekeys::jog());
    QVERIFY(!bench.isMoving());
    QCOMPARE(bench.commands().last(), QString("robot.jog.stop"));
}

void TestJogKeys::aLimitIsSaid() {
    JogBench bench;
    controller::Posture posture;
    posture.joints = {169, 0, 0, 0, 0, 0, 0};
    bench.robot.controller()->robot()->setPosture(posture);
    bench.press("A1:plus");
    bench.robot.step(450);
    QVERIFY2(bench.state().contains("A1") && bench.state().contains("limit"), qPrintable(bench.state()));
    QCOMPARE(bench.value("A1"), QString("170.000"));
    bench.release("A1:plus");
}

void TestJogKeys::theKeyboardMovesNothing() {
    JogBench bench;
    bench.key("A1:plus")->setFocus();
    QTest::keyPress(bench.frame.window.get(), Qt::Key_Space);
    QVERIFY(!bench.isMoving());
    QTest::keyRelease(bench.frame.window.get(), Qt::Key_Space);
    QVERIFY(bench.commands().isEmpty());
}

PENDANT_TEST_MAIN(TestJogKeys)
#include "tst_jog_keys.moc"
