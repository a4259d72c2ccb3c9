#include "jogfixture.h"

#include "pages/limitbar.h"

#include "kite/interfacemanager.h"

#include <QComboBox>

// The page that shows where the robot stands.
class TestJogPage : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { m("orca.toolpage")->clear(nullptr, true, true); }

    void withoutTheLinksItSaysWhatToDo();
    void itComesAliveWithTheLinks();
    void aControllerWithoutARobotIsSaid();
    void eachJointHasARowWithItsLimits();
    void theValuesFollowTheRobot();
    void theToolIsShownInTheWorkObject();
    void aTaughtPointHasTheValuesOfThePage();
    void externalAxesHaveAPartOfTheirOwn();
    void aValueThatRoundsToNothingHasNoSign();
    void toolsAndWorkObjectsAreChosenHere();
    void theChoiceFollowsTheTree();
    void aToolThatTheControllerDoesNotKnowIsTakenBack();
    void theStateIsInWords_data();
    void theStateIsInWords();
    void aHiddenPageAsksForNothing();
    void nothingIsCutBesideTheSideBar_data();
    void nothingIsCutBesideTheSideBar();
};

void TestJogPage::withoutTheLinksItSaysWhatToDo() {
    JogBench bench;
    bench.robot.bus(false);
    const QWidget* page = bench.frame.window->center()->page(pendant::pagekeys::jog());
    const QWidget* empty = page->findChild<QWidget*>("emptyState");
    QVERIFY(empty->isVisible());
    QVERIFY(empty->findChildren<QLabel*>().at(1)->text().contains("F12"));
    QVERIFY(!page->findChild<QLabel*>("jogState")->isVisible());
    QVERIFY(!bench.frame.find("jogCartesian")->isEnabled());
}

void TestJogPage::itComesAliveWithTheLinks() {
    JogBench bench;
    bench.robot.controllerLink(false);
    QVERIFY(!bench.frame.find<QLabel>("jogState")->isVisible());
    bench.robot.controllerLink(true);
    QVERIFY(bench.frame.find<QLabel>("jogState")->isVisible());
    QCOMPARE(bench.value("A5"), QString("90.000"));
    QVERIFY(bench.frame.find("jogCartesian")->isEnabled());
}

void TestJogPage::aControllerWithoutARobotIsSaid() {
    JogBench bench;
    bench.robot.controller()->bus()->defineComputed("robot.axes",
                                                    [] { return brisk::standin::contentOf(QVariant(QJsonArray())); });
    bench.frame.window->showPage(pendant::pagekeys::start());
    bench.frame.window->showPage(pendant::pagekeys::jog());
    const QWidget* page = bench.frame.window->center()->page(pendant::pagekeys::jog());
    QVERIFY(page->findChild<QWidget*>("emptyState")->isVisible());
    QVERIFY(page->findChild<QWidget*>("emptyState")->findChildren<QLabel*>().at(1)->text().contains("robot"));
}

void TestJogPage::eachJointHasARowWithItsLimits() {
    JogBench bench;
    const QVector<controller::Axis> axes = bench.robot.controller()->robot()->model().axes();
    QCOMPARE(axes.size(), 6);
    for (const controller::Axis& axis : axes) {
        const QWidget* row = bench.frame.find("jog:" + axis.name);
        QVERIFY(row->isVisible());
        const double place = (axis.start - axis.minimum) / (axis.maximum - axis.minimum);
        QCOMPARE(row->findChild<pendant::LimitBar*>()->place(), place);
        for (const QString& key : {QString("minus"), QString("plus")})
            QVERIFY(bench.key(axis.name + ':' + key)->height() >= 56 &&
                    bench.key(axis.name + ':' + key)->width() >= 56);
    }
    QVERIFY(!bench.frame.find("jogExternals")->isVisible());
}

void TestJogPage::theValuesFollowTheRobot() {
    JogBench bench;
    controller::Posture posture;
    posture.joints = {10.5, -20.25, 30.125, 0, 45, -0.0005, 0};
    bench.robot.controller()->robot()->setPosture(posture);
    bench.robot.step(100);
    QCOMPARE(bench.value("A1"), QString("10.500"));
    QCOMPARE(bench.value("A2"), QString("-20.250"));
    QCOMPARE(bench.value("A3"), QString("30.125"));
}

void TestJogPage::theToolIsShownInTheWorkObject() {
    JogBench bench;
    Frame::click(bench.frame.find("jogCartesian"));
    const QJsonObject frame = bench.robot.controller()
                                  ->bus()
                                  ->value("robot.position")
                                  ->r("cartesian.pose.frame")
                                  ->exportToJson(true)
                                  .toObject();
    const QJsonObject place = frame.value("pos").toObject();
    const QJsonObject angles = frame.value("ori").toObject().value("euler").toObject();
    for (const QString& axis : {QString("X"), QString("Y"), QString("Z")})
        QCOMPARE(bench.value(axis).toDouble(), qRound(place.value(axis.toLower()).toDouble() * 1000) / 1000.0);
    for (const QString& axis : {QString("A"), QString("B"), QString("C")})
        QCOMPARE(bench.value(axis).toDouble(), qRound(angles.value(axis.toLower()).toDouble() * 1000) / 1000.0);
    QVERIFY(place.value("x").toDouble() < -0.001 || place.value("x").toDouble() > 0.001);
}

void TestJogPage::aTaughtPointHasTheValuesOfThePage() {
    JogBench bench;
    const QStringList cartesian{"X", "Y", "Z", "A", "B", "C"};
    for (const char* key : {"A1:plus", "A2:minus", "A4:plus"}) {
        bench.press(key);
        bench.robot.step(333);
        bench.release(key);
    }
    bench.robot.step(100);
    QVERIFY(kite::kiteInterface()->addCurrentPoint("joint", true, "gripper", "table"));
    QVERIFY(kite::kiteInterface()->addCurrentPoint("pose", false, "gripper", "table"));
    const QJsonArray joints = kite::kiteInterface()
                                  ->getPointObjDataByName("joint")
                                  .value("value")
                                  .toObject()
                                  .value("[0][0][0]")
                                  .toObject()
                                  .value("inner_pos")
                                  .toArray();
    for (int i = 0; i < 6; ++i)
        QCOMPARE(bench.value(QString("A%1").arg(i + 1)), QString::number(joints.at(i).toDouble(), 'f', 3));
    QVERIFY(bench.value("A1").toDouble() > 1 && bench.value("A2").toDouble() < -1);
    Frame::click(bench.frame.find("jogCartesian"));
    const QVector<double> pose = kite::kiteInterface()->getPointDataByName("pose");
    for (int i = 0; i < 6; ++i)
        QCOMPARE(bench.value(cartesian.at(i)).toDouble(), QString::number(pose.at(i), 'f', 3).toDouble());
    m("orca.project")->clear(nullptr, true, true);
}

void TestJogPage::externalAxesHaveAPartOfTheirOwn() {
    JogBench bench;
    controller::RobotModel model = controller::standardModel();
    model.externals = {{{"E1", 0, 4000, 800, 1200, true}, {}, 0}};
    bench.robot.controller()->robot()->setModel(model);
    bench.robot.controllerLink(false);
    bench.robot.controllerLink(true);
    QVERIFY(!bench.frame.find("jog:E1"));
    Frame::click(bench.frame.find("jogExternals"));
    QVERIFY(!bench.frame.find("jog:A1"));
    QCOMPARE(bench.value("E1"), QString("1200.000"));
    bench.robot.forgetTraffic();
    bench.press("E1:plus");
    QCOMPARE(bench.commands().first(), QString("robot.jog joint 6 25"));
    bench.release("E1:plus");
}

void TestJogPage::aValueThatRoundsToNothingHasNoSign() {
    JogBench bench;
    controller::Posture posture;
    posture.joints = {-0.0004, -0.0006, 0, 0, 0, 0, 0};
    bench.robot.controller()->robot()->setPosture(posture);
    bench.robot.step(100);
    QCOMPARE(bench.value("A1"), QString("0.000"));
    QCOMPARE(bench.value("A2"), QString("-0.001"));
}

void TestJogPage::toolsAndWorkObjectsAreChosenHere() {
    JogBench bench;
    auto* tools = bench.frame.find<QComboBox>("jogTool");
    auto* workObjects = bench.frame.find<QComboBox>("jogWorkObject");
    QCOMPARE(tools->currentText(), QString("gripper"));
    QCOMPARE(workObjects->currentText(), QString("table"));
    QVERIFY(tools->findText("camera") >= 0 && workObjects->findText("conveyor") >= 0);
    tools->setCurrentIndex(tools->findText("camera"));
    emit tools->activated(tools->currentIndex());
    emit workObjects->activated(workObjects->findText("table"));
    Frame::settle();
    QCOMPARE(m("orca.toolpage.tool")->getString(), QString("camera"));
    QCOMPARE(bench.robot.controller()->robot()->tool(), QString("camera"));
}

void TestJogPage::theChoiceFollowsTheTree() {
    JogBench bench;
    m("orca.toolpage.wobj")->setValue(nullptr, "conveyor");
    QCOMPARE(bench.frame.find<QComboBox>("jogWorkObject")->currentText(), QString("conveyor"));
    Frame::settle();
    QCOMPARE(bench.robot.controller()->robot()->wobj(), QString("conveyor"));
}

void TestJogPage::aToolThatTheControllerDoesNotKnowIsTakenBack() {
    JogBench bench;
    m("orca.toolpage.tool")->setValue(nullptr, "nothing");
    Frame::settle();
    QCOMPARE(bench.frame.find<QComboBox>("jogTool")->currentText(), QString("gripper"));
}

void TestJogPage::theStateIsInWords_data() {
    QTest::addColumn<bool>("isMoving");
    QTest::addColumn<QString>("stoppedBy");
    QTest::addColumn<QString>("word");
    QTest::newRow("moving") << true << ""
                            << "moving";
    QTest::newRow("still") << false << ""
                           << "still";
    QTest::newRow("limit") << false << "limit A3"
                           << "A3";
    QTest::newRow("out of reach") << false << "out of reach"
                                  << "reach";
    QTest::newRow("singularity") << false << "singularity"
                                 << "singularity";
    QTest::newRow("not renewed") << false << "not renewed"
                                 << "busy";
    QTest::newRow("drives off") << false << "drives off"
                                << "drives went off";
    QTest::newRow("a move is over") << false << "arrived"
                                    << "stands still";
    QTest::newRow("something else") << false << "door open"
                                    << "door open";
}

void TestJogPage::theStateIsInWords() {
    QFETCH(bool, isMoving);
    QFETCH(QString, stoppedBy);
    QFETCH(QString, word);
    JogBench bench;
    bench.robot.controller()->bus()->define("robot.state",
                                            QJsonObject{{"moving", isMoving}, {"stopped_by", stoppedBy}});
    bench.robot.settle();
    QVERIFY2(bench.state().contains(word), qPrintable(bench.state()));
}

void TestJogPage::aHiddenPageAsksForNothing() {
    JogBench bench;
    bench.frame.window->showPage(pendant::pagekeys::start());
    bench.robot.forgetTraffic();
    bench.robot.controller()->robot()->setPosture({});
    bench.robot.step(200);
    bench.robot.controllerLink(false);
    bench.robot.controllerLink(true);
    QVERIFY(bench.robot.traffic().isEmpty());
}

void TestJogPage::nothingIsCutBesideTheSideBar_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "zh_CN"})
        QTest::newRow(language) << language;
}

void TestJogPage::nothingIsCutBesideTheSideBar() {
    QFETCH(QString, language);
    auto* application = static_cast<pendant::Application*>(qApp);
    QVERIFY(application->setLanguage(language));
    JogBench bench;
    controller::RobotModel model = controller::standardModel();
    model.externals = {{{"E1", 0, 4000, 800, 1200, true}, {}, 0}};
    bench.robot.controller()->robot()->setModel(model);
    bench.robot.controllerLink(false);
    bench.robot.controllerLink(true);
    bench.frame.find("sideBar")->show();
    const QWidget* page = bench.frame.window->center()->page(pendant::pagekeys::jog());
    QTRY_VERIFY(page->width() <= 640);
    Frame::settle();
    for (const QPushButton* button : page->findChildren<QPushButton*>())
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
    for (const QComboBox* choice : page->findChildren<QComboBox*>())
        QVERIFY(choice->width() >= 128);
    QVERIFY(application->setLanguage("en"));
}

PENDANT_TEST_MAIN(TestJogPage)
#include "tst_jog_page.moc"
