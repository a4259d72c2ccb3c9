#include "robotbench.h"

#include "view/taughtpoint.h"

#include "controller/robot/kinematics.h"

#include <QJsonArray>
#include <QLabel>
#include <QPushButton>
#include <QTouchDevice>
#include <QWheelEvent>

using pendant::view::Marker;

namespace {

bool isSame(const pendant::view::Camera& one, const pendant::view::Camera& other) {
    return one.azimuthDeg() == other.azimuthDeg() && one.elevationDeg() == other.elevationDeg() &&
           one.distanceMm() == other.distanceMm() && length(one.target() - other.target()) == 0;
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mousePress(widget, Qt::LeftButton, modifiers, from);
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, modifiers, to);
}

void turnWheel(QWidget* widget, const QPoint& at, int clicks) {
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, clicks * 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace

// The page that draws the robot.
class TestViewPage : public QObject {
    Q_OBJECT

private slots:
    void withoutTheLinksItSaysWhatToDo();
    void itComesAliveWithTheLinks();
    void aControllerThatTellsNoShapeIsSaid();
    void theRobotStandsAsTheControllerTells();
    void theValuesAreShown();
    void aMotionIsFollowedAndComesToRest();
    void aHiddenPageDrawsAndAsksForNothing();
    void theToolIsThatOfTheTree();
    void thePointsOfTheProjectAreMarked();
    void anotherPointIsMarkedWhenItIsTaught();
    void aTapOnAPointSaysWhereItIs_data();
    void aTapOnAPointSaysWhereItIs();
    void aTapBesideEveryPointSelectsNone();
    void aDragTurnsAndWithShiftShifts();
    void theWheelComesNearer();
    void aDoubleClickShowsAll();
    void twoFingersZoom();
    void theKeysLookFromTheSides();
    void whatWasTurnedStaysWhenThePageComesAgain();
    void anotherRobotIsDrawnWhenTheControllerHasOne();
    void manyPointsAreLeftOut();
    void nothingIsCut_data();
    void nothingIsCut();
};

void TestViewPage::withoutTheLinksItSaysWhatToDo() {
    RobotBench bench;
    bench.robot.bus(false);
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("F12"));
    QVERIFY(!bench.view()->isVisible());
    QVERIFY(!bench.frame.find("robotFit")->isEnabled());
}

void TestViewPage::itComesAliveWithTheLinks() {
    RobotBench bench;
    bench.robot.controllerLink(false);
    QVERIFY(!bench.view()->isVisible());
    bench.robot.controllerLink(true);
    QVERIFY(bench.view()->isVisible());
    QVERIFY(!bench.empty()->isVisible());
    QVERIFY(bench.frame.find("robotFit")->isEnabled());
}

void TestViewPage::aControllerThatTellsNoShapeIsSaid() {
    RobotBench bench;
    bench.leave();
    bench.robot.controller()->bus()->defineComputed("robot.arm",
                                                    [] { return brisk::standin::contentOf(QVariant(QJsonObject())); });
    bench.show();
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("robot.arm"));
}

void TestViewPage::theRobotStandsAsTheControllerTells() {
    RobotBench bench;
    bench.stand({10, -20, 30, 40, 50, 60, 0});
    QCOMPARE(bench.view()->goal().joints, (QVector<double>{10, -20, 30, 40, 50, 60}));
    const controller::Robot* robot = bench.robot.controller()->robot();
    const KDL::Vector tip = robot->kinematics().pose(robot->posture(), "gripper", "world").p;
    const pendant::view::ArmChain chain(bench.view()->arm(), bench.view()->goal());
    QVERIFY(length(chain.tip("gripper").at - pendant::view::Vector{tip.x(), tip.y(), tip.z()}) < 1e-6);
}

void TestViewPage::theValuesAreShown() {
    RobotBench bench;
    bench.stand({10, -20.26, -0.01, 0, 90, 0, 0});
    const pendant::ArmView::Values values = bench.view()->values();
    QCOMPARE(values.size(), 6);
    QCOMPARE(values.at(0), qMakePair(QString("A1"), QString("10.0°")));
    QCOMPARE(values.at(1).second, QString("-20.3°"));
    QCOMPARE(values.at(2).second, QString("0.0°"));
}

void TestViewPage::aMotionIsFollowedAndComesToRest() {
    RobotBench bench;
    QVERIFY(!bench.view()->isBusy());
    bench.robot.jog({controller::JogCommand::Joint, 0, 100}, 300);
    bench.robot.step(1000);
    QVERIFY(bench.view()->goal().joints.first() > 1);
    bench.view()->setStance({{0, 10, 0, 0, 90, 0}, {}});
    QVERIFY(bench.view()->isBusy());
    QTRY_VERIFY(!bench.view()->isBusy());
}

void TestViewPage::aHiddenPageDrawsAndAsksForNothing() {
    RobotBench bench;
    bench.leave();
    Frame::settle();
    bench.robot.forgetTraffic();
    bench.stand({40, 0, 0, 0, 90, 0, 0});
    QVERIFY(!bench.view()->isBusy());
    QCOMPARE(bench.view()->goal().joints.first(), 0.0);
    for (const brisk::standin::TrafficEntry& entry : bench.robot.traffic())
        QVERIFY(entry.kind != "get");
    bench.show();
    QCOMPARE(bench.view()->goal().joints.first(), 40.0);
    QVERIFY(!bench.view()->isBusy());
}

void TestViewPage::theToolIsThatOfTheTree() {
    RobotBench bench;
    const auto at = [&](const QString& name) {
        for (const Marker& marker : bench.view()->markers()) {
            if (marker.point.name == name)
                return marker.at;
        }
        return pendant::view::Vector();
    };
    const pendant::view::Vector home = at("home");
    m("orca.toolpage.tool")->setValue(nullptr, "flange");
    QVERIFY(std::abs(length(at("home") - home) - 180) < 1e-6);
}

void TestViewPage::thePointsOfTheProjectAreMarked() {
    RobotBench bench;
    QStringList names;
    for (const Marker& marker : bench.view()->markers())
        names << marker.point.name;
    QCOMPARE(names, (QStringList{"home", "park", "above_part", "part", "conveyor"}));
    // The robot stands at "home".
    const pendant::view::ArmChain chain(bench.view()->arm(), bench.view()->goal());
    QVERIFY(length(bench.view()->markers().first().at - chain.tip("gripper").at) < 1e-6);
}

void TestViewPage::anotherPointIsMarkedWhenItIsTaught() {
    RobotBench bench;
    const int before = bench.view()->markers().size();
    bench.stand({30, 0, 10, 0, 60, 0, 0});
    QVERIFY(kite::kiteInterface()->addCurrentPoint("here", false, "gripper", "table"));
    Frame::settle();
    QCOMPARE(bench.view()->markers().size(), before + 1);
    const pendant::view::ArmChain chain(bench.view()->arm(), bench.view()->goal());
    QVERIFY(length(bench.view()->markers().last().at - chain.tip("gripper").at) < 1e-3);
}

void TestViewPage::aTapOnAPointSaysWhereItIs_data() {
    QTest::addColumn<int>("point");
    QTest::addColumn<QString>("text");
    QTest::newRow("joint") << 1 << "Joints 90.0  -45.0  60.0  0.0  75.0  0.0 °";
    QTest::newRow("Cartesian") << 2 << "X 250.0  Y 200.0  Z 149.9 mm in table";
}

void TestViewPage::aTapOnAPointSaysWhereItIs() {
    QFETCH(int, point);
    RobotBench bench;
    const Marker marker = bench.view()->markers().at(point);
    QTest::mouseClick(bench.view(), Qt::LeftButton, {}, bench.view()->camera().pixel(marker.at).toPoint());
    QCOMPARE(bench.view()->selected(), marker.point.node);
    QTEST(bench.view()->selectedText(), "text");
}

void TestViewPage::aTapBesideEveryPointSelectsNone() {
    RobotBench bench;
    const QPoint at = bench.view()->camera().pixel(bench.view()->markers().first().at).toPoint();
    QTest::mouseClick(bench.view(), Qt::LeftButton, {}, at);
    QVERIFY(!bench.view()->selected().isEmpty());
    QTest::mouseClick(bench.view(), Qt::LeftButton, {}, {bench.view()->width() - 3, bench.view()->height() - 3});
    QVERIFY(bench.view()->selected().isEmpty());
}

void TestViewPage::aDragTurnsAndWithShiftShifts() {
    RobotBench bench;
    const pendant::view::Camera before = bench.view()->camera();
    drag(bench.view(), {200, 200}, {260, 220});
    QVERIFY(bench.view()->camera().azimuthDeg() != before.azimuthDeg());
    const pendant::view::Camera turned = bench.view()->camera();
    drag(bench.view(), {200, 200}, {260, 220}, Qt::ShiftModifier);
    QCOMPARE(bench.view()->camera().azimuthDeg(), turned.azimuthDeg());
    QVERIFY(length(bench.view()->camera().target() - turned.target()) > 10);
}

void TestViewPage::theWheelComesNearer() {
    RobotBench bench;
    const double distanceMm = bench.view()->camera().distanceMm();
    turnWheel(bench.view(), {300, 200}, 2);
    QVERIFY(bench.view()->camera().distanceMm() < distanceMm * 0.8);
    turnWheel(bench.view(), {300, 200}, -2);
    QVERIFY(std::abs(bench.view()->camera().distanceMm() - distanceMm) < 1e-6);
}

void TestViewPage::aDoubleClickShowsAll() {
    RobotBench bench;
    const pendant::view::Camera before = bench.view()->camera();
    turnWheel(bench.view(), {300, 200}, 5);
    QVERIFY(!isSame(bench.view()->camera(), before));
    QTest::mouseDClick(bench.view(), Qt::LeftButton, {}, {20, 300});
    QVERIFY(isSame(bench.view()->camera(), before));
}

void TestViewPage::twoFingersZoom() {
    RobotBench bench;
    QTouchDevice* device = QTest::createTouchDevice();
    const double distanceMm = bench.view()->camera().distanceMm();
    pendant::ArmView* view = bench.view();
    QTest::touchEvent(view, device).press(0, {250, 200}, view).press(1, {350, 200}, view);
    QTest::touchEvent(view, device).move(0, {200, 200}, view).move(1, {400, 200}, view);
    QTest::touchEvent(view, device).release(0, {200, 200}, view).release(1, {400, 200}, view);
    QVERIFY(std::abs(view->camera().distanceMm() - distanceMm / 2) < 1e-6);
}

void TestViewPage::theKeysLookFromTheSides() {
    RobotBench bench;
    Frame::click(bench.frame.find("robotFront"));
    QCOMPARE(bench.view()->camera().azimuthDeg(), 0.0);
    Frame::click(bench.frame.find("robotSide"));
    QCOMPARE(bench.view()->camera().azimuthDeg(), -90.0);
    Frame::click(bench.frame.find("robotTop"));
    QVERIFY(bench.view()->camera().elevationDeg() > 85);
    const pendant::view::Camera before = bench.view()->camera();
    turnWheel(bench.view(), {300, 200}, 3);
    Frame::click(bench.frame.find("robotFit"));
    QVERIFY(isSame(bench.view()->camera(), before));
}

void TestViewPage::whatWasTurnedStaysWhenThePageComesAgain() {
    RobotBench bench;
    drag(bench.view(), {200, 200}, {260, 220});
    turnWheel(bench.view(), {300, 200}, 2);
    const pendant::view::Camera turned = bench.view()->camera();
    bench.leave();
    bench.stand({40, 0, 0, 0, 90, 0, 0});
    bench.show();
    QVERIFY(isSame(bench.view()->camera(), turned));
}

void TestViewPage::anotherRobotIsDrawnWhenTheControllerHasOne() {
    RobotBench bench;
    controller::RobotModel model = controller::standardModel();
    model.joints.insert(2, {"A2a", -170, 170, 150, 0, false});
    model.externals = {{{"E1", 0, 4000, 800, 1200, true}, {}, 0}};
    bench.robot.controller()->robot()->setModel(model);
    bench.robot.controllerLink(false);
    bench.robot.controllerLink(true);
    QCOMPARE(bench.view()->arm().links.size(), 7);
    QCOMPARE(bench.view()->arm().externals.first().maximum, 4000.0);
    QCOMPARE(bench.view()->values().last(), qMakePair(QString("E1"), QString("1200.0 mm")));
    QCOMPARE(bench.view()->goal().externals, QVector<double>{1200});
}

void TestViewPage::manyPointsAreLeftOut() {
    RobotBench bench;
    bench.leave();
    QJsonArray points;
    for (int i = 0; i < pendant::RobotPage::pointsAtMost + 50; ++i)
        points << QJsonObject{{"name", QString("p%1").arg(i)}, {"property", "joint"}};
    m("orca.project.point._list")->importFromJson(nullptr, points, true, true, true);
    bench.show();
    Frame::settle();
    QCOMPARE(bench.view()->markers().size(), pendant::RobotPage::pointsAtMost);
}

void TestViewPage::nothingIsCut_data() {
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("German") << "de";
    QTest::newRow("Chinese") << "zh_CN";
}

void TestViewPage::nothingIsCut() {
    QFETCH(QString, language);
    auto* application = static_cast<pendant::Application*>(qApp);
    QVERIFY(application->setLanguage(language));
    RobotBench bench;
    bench.frame.window->resize(1024, 600);
    Frame::settle();
    QVERIFY(bench.frame.window->width() <= 1024);
    for (const QWidget* widget : bench.page()->findChildren<QWidget*>()) {
        const bool hasText = qobject_cast<const QLabel*>(widget) || qobject_cast<const QPushButton*>(widget);
        if (hasText && widget->isVisible())
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(widget->objectName()));
    }
    application->setLanguage("en");
}

PENDANT_TEST_MAIN(TestViewPage)
#include "tst_view_page.moc"
