#include "pendanttest/fakelink.h"
#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include "controller/io/registers.h"
#include "controller/io/signaltable.h"
#include "controller/robot/robot.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "kite/interfacemanager.h"
#include "state/statelink.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using kite::kiteInterface;

namespace {

// A pendant before the robot of the default cell, whose clock stands.
struct Bench {
    explicit Bench(bool connected = true) {
        clearTree();
        robot.loadDefaultCell();
        if (connected)
            robot.connectLinks();
        robot.forgetTraffic();
    }
    ~Bench() {
        pendant.close();
        clearTree();
    }

    static void clearTree() {
        m("orca")->clear(nullptr, true, true);
        m("helm")->clear(nullptr, true, true);
        helm::ManagerHelper::instance()
            ->controllerManager()
            ->cmdItemMobj("response", "system.controller.get_params")
            ->clear(nullptr, true, true);
    }
    controller::SignalTable* signalTable() { return robot.controller()->ioSignals(); }

    pendanttest::Robot robot;
    pendanttest::Pendant pendant;
};

brisk::ModuleObject* signalValue(const QString& name) {
    return m("orca.robot.io.signal_value")->c(name);
}

} // namespace

class TestStateMirror : public QObject {
    Q_OBJECT

private slots:
    void theSignalsAreInTheTree();
    void aSignalOfWhichAPluginHearsIsTheOneThatChanged();
    void aDeliveryWithoutNewsIsSilent();
    void aForcedInputShowsInItsDetail();
    void theRegistersAreInTheTree();
    void oneRegisterThatIsSetLeavesTheOthers();
    void toolsAndWorkObjectsAreListedByScope();
    void speedsAndZonesOfTheSystemComeBeforeThoseOfTheProject();
    void theHostIsKnown();
    void theDrivesAreOnOrOff();
    void theModeIsTold();
    void theRobotsStateIsTold();
    void thePositionFollowsTheRobot();
    void theParametersAreAskedForWhenTheLinkComesUp();
    void withTheBusDownTheLastValuesStay();
    void whatChangedMeanwhileIsThereWhenTheBusIsBack();
    void aTaskOfAPluginFindsTheStateInTheTree();
    void whatAPluginWritesGoesNowhere();
    void aPartOfTheTreeThatIsRemovedComesBackWithTheNextNews();
    void aControllerThatKnowsNothingOfItLeavesTheTreeAlone();
    void aValueOfAnotherShapeLeavesTheTreeAlone_data();
    void aValueOfAnotherShapeLeavesTheTreeAlone();
    void aPendantThatGoesWatchesNoMore();
    void aMirrorThatIsMadeLateReadsAtOnce();
    void anAnswerThatDoesNotComeIsAskedForAgain_data();
    void anAnswerThatDoesNotComeIsAskedForAgain();
    void anAnswerThatComesLateIsAskedForAgain();
    void withTheBusDownNothingIsAskedForAgain();
};

void TestStateMirror::theSignalsAreInTheTree() {
    const Bench bench;
    QCOMPARE(kiteInterface()->getIOByType(1),
             (QStringList{"part_present", "door_closed", "start_button", "pressure_ok"}));
    QCOMPARE(kiteInterface()->getIOByType("DO"), (QStringList{"gripper", "lamp", "conveyor_run"}));
    QCOMPARE(kiteInterface()->getIOByType("GI"), QStringList{"part_code"});
    QCOMPARE(kiteInterface()->getIOByType("GO"), QStringList{"job_number"});
    QCOMPARE(kiteInterface()->getIOByType("AI"), (QStringList{"grip_force", "distance"}));
    QCOMPARE(kiteInterface()->getIOByType(6), QStringList{"belt_speed"});
    const QHash<QString, QVariant> io = kiteInterface()->getIOHash();
    QCOMPARE(io.size(), 12);
    QCOMPARE(io.value("door_closed"), QVariant(true));
    QCOMPARE(io.value("job_number"), QVariant(3));
    QCOMPARE(io.value("distance"), QVariant(42.5));
}

void TestStateMirror::aSignalOfWhichAPluginHearsIsTheOneThatChanged() {
    Bench bench;
    QStringList heard;
    const QObject listener;
    for (brisk::ModuleObject* node : m("orca.robot.io")->cmobjs(true))
        connect(node, &brisk::ModuleObject::changed, &listener,
                [node, &heard](const QVariant& value) { heard << node->key() + '=' + value.toString(); });
    bench.signalTable()->write("lamp", true);
    bench.robot.settle();
    QCOMPARE(heard, QStringList{"orca.robot.io.signal_value.lamp=true"});
    QCOMPARE(kiteInterface()->getIOHash().value("lamp"), QVariant(true));
}

void TestStateMirror::aDeliveryWithoutNewsIsSilent() {
    Bench bench;
    bool isTouched = false;
    const QObject listener;
    connect(m("orca"), &brisk::ModuleObject::touched, &listener, [&] { isTouched = true; });
    for (const char* key : {"io.signals", "register.list", "motion.data", "robot.position", "robot.state"})
        bench.robot.controller()->bus()->tell(key);
    bench.robot.settle();
    QVERIFY(!isTouched);
}

void TestStateMirror::aForcedInputShowsInItsDetail() {
    Bench bench;
    QVERIFY(!m("orca.robot.io.signal_detail.door_closed.forced")->getBool(true));
    relay()->command(nullptr, "io.force", QVariant(QJsonObject{{"name", "door_closed"}, {"value", false}}));
    bench.robot.settle();
    QVERIFY(m("orca.robot.io.signal_detail.door_closed.forced")->getBool());
    QCOMPARE(signalValue("door_closed")->value(), QVariant(false));
}

void TestStateMirror::theRegistersAreInTheTree() {
    const Bench bench;
    const QHash<QString, QStringList> registers = kiteInterface()->getRegisterHash();
    QCOMPARE(registers.size(), 4);
    QCOMPARE(registers.value("order"), (QStringList{"A-17", "bracket"}));
    QCOMPARE(registers.value("operator"), QStringList{""});
    QCOMPARE(registers.value("alarms", {"none"}), QStringList());
    QCOMPARE(kiteInterface()->getRegisterValue().toArray().size(), 4);
}

void TestStateMirror::oneRegisterThatIsSetLeavesTheOthers() {
    Bench bench;
    QStringList heard;
    const QObject listener;
    connect(m("orca.robot.register"), &brisk::ModuleObject::touched, &listener,
            [&](const brisk::ModuleObject* node) { heard << node->key(); });
    bench.robot.controller()->registers()->set("good_bad", {"113", "3"});
    bench.robot.settle();
    QCOMPARE(heard, QStringList{"orca.robot.register._list.#1.value.#0"});
    bench.robot.controller()->registers()->set("alarms", {"door"});
    bench.robot.settle();
    QCOMPARE(kiteInterface()->getRegisterHash().value("alarms"), QStringList{"door"});
    QCOMPARE(kiteInterface()->getRegisterHash().value("good_bad"), (QStringList{"113", "3"}));
}

void TestStateMirror::toolsAndWorkObjectsAreListedByScope() {
    const Bench bench;
    QCOMPARE(kiteInterface()->getToolList(), (QStringList{"flange", "tool0", "gripper", "camera"}));
    QCOMPARE(kiteInterface()->getWobjList(), (QStringList{"wobj0", "world", "conveyor", "table"}));
    QCOMPARE(m("orca.project.tool._list")->cmobjCount(), 1);
    QCOMPARE(m("orca.setting.g_tool.g_tools")->cmobjCount(), 1);
    QCOMPARE(m("orca.setting.g_wobj.g_wobjs.#0.name")->getString(), QString("table"));
}

void TestStateMirror::speedsAndZonesOfTheSystemComeBeforeThoseOfTheProject() {
    const Bench bench;
    QCOMPARE(kiteInterface()->getSpeedList(), (QStringList{"slow", "normal", "fast", "grip_speed"}));
    QCOMPARE(kiteInterface()->getZoneList(), (QStringList{"exact", "near", "wide", "grip_zone"}));
}

void TestStateMirror::theHostIsKnown() {
    Bench bench;
    bench.robot.controller()->bus()->define(
        "host.info", QJsonObject{{"version", "3.0.2"}, {"id", "R-17"}, {"type", "six"}, {"level", 4}});
    bench.robot.settle();
    QCOMPARE(kiteInterface()->getRobotID(), QString("R-17"));
    QCOMPARE(kiteInterface()->getRobotType(), QString("six"));
    QCOMPARE(kiteInterface()->getUserOperateLevel(), 4);
    QCOMPARE(m("helm.r.version")->getString(), QString("3.0.2"));
}

void TestStateMirror::theDrivesAreOnOrOff() {
    Bench bench;
    for (const bool on : {false, true, false}) {
        bench.robot.controller()->bus()->define("robot.drives", on);
        bench.robot.settle();
        QCOMPARE(m("helm.r.power")->value(), QVariant(on ? "on" : "off"));
        QCOMPARE(kiteInterface()->getRobotEleStatus(), on);
    }
}

void TestStateMirror::theModeIsTold() {
    Bench bench;
    bench.robot.controller()->bus()->define("robot.mode", "auto");
    bench.robot.settle();
    QCOMPARE(m("helm.r.mode")->getString(), QString("auto"));
}

void TestStateMirror::theRobotsStateIsTold() {
    Bench bench;
    QCOMPARE(kiteInterface()->getRobotPhyStatus(), QString("idle"));
    bench.robot.controller()->robot()->jog({controller::JogCommand::Joint, 0, 50});
    bench.robot.step(100);
    QCOMPARE(kiteInterface()->getRobotPhyStatus(), QString("moving"));
    bench.robot.controller()->robot()->stop();
    bench.robot.step(1000);
    QCOMPARE(kiteInterface()->getRobotPhyStatus(), QString("idle"));
}

void TestStateMirror::thePositionFollowsTheRobot() {
    Bench bench;
    const brisk::ModuleObject* axis = m("orca.robot.position")->r("joint.inner_pos.#0");
    QVERIFY(axis);
    QCOMPARE(axis->getDouble(-1), 0.0);
    QList<double> heard;
    const QObject listener;
    connect(axis, &brisk::ModuleObject::changed, &listener, [&](const QVariant& value) { heard << value.toDouble(); });
    bool isOther = false;
    connect(m("orca.robot.position")->r("joint.inner_pos.#1"), &brisk::ModuleObject::changed, &listener,
            [&] { isOther = true; });
    bench.robot.jog({controller::JogCommand::Joint, 0, 100}, 400);
    bench.robot.step(200);
    QVERIFY(heard.size() >= 4);
    QVERIFY(std::is_sorted(heard.begin(), heard.end()));
    QCOMPARE(heard.last(), bench.robot.controller()->robot()->posture().joints[0]);
    QVERIFY(!isOther);
}

void TestStateMirror::theParametersAreAskedForWhenTheLinkComesUp() {
    Bench bench(false);
    QCOMPARE(kiteInterface()->getRobotModelType(), 0);
    bench.robot.connectLinks();
    QCOMPARE(kiteInterface()->getRobotModelType(), 3);
    bench.robot.forgetTraffic();
    bench.robot.controllerLink(false);
    bench.robot.controllerLink(true);
    int asked = 0;
    for (const brisk::standin::TrafficEntry& entry : bench.robot.traffic())
        asked += entry.kind == "request" && entry.key == "system.controller.get_params" && !entry.linkDown;
    QCOMPARE(asked, 1);
}

void TestStateMirror::withTheBusDownTheLastValuesStay() {
    Bench bench;
    bench.robot.bus(false);
    bench.robot.controllerLink(false);
    bench.signalTable()->write("lamp", true);
    bench.robot.settle();
    QCOMPARE(kiteInterface()->getIOHash().value("lamp"), QVariant(false));
    QCOMPARE(kiteInterface()->getIOHash().value("door_closed"), QVariant(true));
    QCOMPARE(kiteInterface()->getToolList().size(), 4);
    QCOMPARE(kiteInterface()->getRobotModelType(), 3);
}

void TestStateMirror::whatChangedMeanwhileIsThereWhenTheBusIsBack() {
    Bench bench;
    bench.robot.bus(false);
    bench.signalTable()->write("lamp", true);
    bench.robot.controller()->registers()->set("order", {});
    QStringList heard;
    const QObject listener;
    connect(m("orca.robot.io"), &brisk::ModuleObject::touched, &listener,
            [&](const brisk::ModuleObject* node) { heard << node->key(); });
    bench.robot.bus(true);
    QCOMPARE(heard, QStringList{"orca.robot.io.signal_value.lamp"});
    QCOMPARE(kiteInterface()->getRegisterHash().value("order", {"none"}), QStringList());
    bench.signalTable()->write("lamp", false);
    bench.robot.settle();
    QCOMPARE(kiteInterface()->getIOHash().value("lamp"), QVariant(false));
}

void TestStateMirror::aTaskOfAPluginFindsTheStateInTheTree() {
    Bench bench(false);
    QStringList found;
    const QString task = kiteInterface()->connectNetworkStatus(
        true, "mine", this,
        [&found] { found = kiteInterface()->getIOByType(2) + kiteInterface()->getToolList().mid(0, 1); }, QString());
    bench.robot.controllerLink(true);
    bench.robot.bus(true);
    kiteInterface()->disconnectNetworkStatus(true, task);
    QCOMPARE(found, (QStringList{"gripper", "lamp", "conveyor_run", "flange"}));
}

void TestStateMirror::whatAPluginWritesGoesNowhere() {
    Bench bench;
    signalValue("lamp")->setValue(this, true);
    m("helm.r.power")->setValue(this, "off");
    m("orca.project.tool._list.#0.name")->setValue(this, "other");
    bench.robot.settle();
    for (const brisk::standin::TrafficEntry& entry : bench.robot.traffic())
        QVERIFY2(entry.direction != brisk::standin::TrafficEntry::Direction::Out, qPrintable(entry.key));
    QCOMPARE(bench.signalTable()->value("lamp"), QVariant(false));
}

void TestStateMirror::aPartOfTheTreeThatIsRemovedComesBackWithTheNextNews() {
    Bench bench;
    m("orca.robot")->removeChild(m("orca.robot.io"));
    bench.signalTable()->write("lamp", true);
    bench.robot.settle();
    QCOMPARE(kiteInterface()->getIOHash().size(), 12);
    QCOMPARE(kiteInterface()->getIOByType(5).size(), 2);
}

void TestStateMirror::aControllerThatKnowsNothingOfItLeavesTheTreeAlone() {
    Bench::clearTree();
    pendanttest::FakeLink bus(brisk::standin::Channel::bus());
    bus.reply = [](const brisk::standin::Message&) { return brisk::standin::refusal("unknown"); };
    const pendant::StateMirror mirror;
    bus.setUp(true);
    QTest::qWait(1);
    QVERIFY(!m("orca.robot")->hasCmobj("io"));
    QVERIFY(!m("helm")->hasCmobj("r"));
    QVERIFY(!m("orca")->hasCmobj("project"));
}

void TestStateMirror::aValueOfAnotherShapeLeavesTheTreeAlone_data() {
    QTest::addColumn<QString>("key");
    for (const char* key : {"host.info", "robot.drives", "robot.mode", "robot.state", "robot.position", "io.signals",
                            "register.list", "motion.data"})
        QTest::newRow(key) << key;
}

void TestStateMirror::aValueOfAnotherShapeLeavesTheTreeAlone() {
    QFETCH(QString, key);
    Bench bench;
    bool isTouched = false;
    const QObject listener;
    for (const char* root : {"orca", "helm"})
        connect(m(root), &brisk::ModuleObject::touched, &listener, [&] { isTouched = true; });
    bench.robot.controller()->bus()->define(key, 7);
    bench.robot.controller()->bus()->define(key, QJsonObject{{"other", 1}});
    bench.robot.settle();
    QVERIFY(!isTouched);
}

void TestStateMirror::aPendantThatGoesWatchesNoMore() {
    Bench::clearTree();
    pendanttest::Robot robot;
    robot.connectLinks();
    {
        const pendant::StateMirror mirror;
        robot.settle();
        QVERIFY(robot.controller()->bus()->isWatched("io.signals"));
    }
    robot.settle();
    for (const char* key : {"io.signals", "register.list", "motion.data", "robot.position", "robot.state"})
        QVERIFY2(!robot.controller()->bus()->isWatched(key), key);
}

void TestStateMirror::aMirrorThatIsMadeLateReadsAtOnce() {
    Bench::clearTree();
    pendanttest::Robot robot;
    robot.loadDefaultCell();
    robot.connectLinks();
    const pendant::StateMirror mirror;
    QCOMPARE(kiteInterface()->getIOByType(2).size(), 3);
    robot.settle();
    QCOMPARE(kiteInterface()->getRobotModelType(), 3);
    Bench::clearTree();
}

void TestStateMirror::anAnswerThatDoesNotComeIsAskedForAgain_data() {
    QTest::addColumn<int>("fault");
    QTest::newRow("lost") << int(controller::Fault::Lost);
    QTest::newRow("null") << int(controller::Fault::Null);
    QTest::newRow("malformed") << int(controller::Fault::Malformed);
}

void TestStateMirror::anAnswerThatDoesNotComeIsAskedForAgain() {
    QFETCH(int, fault);
    Bench bench;
    QVERIFY(pendant::statelink::isCurrent());
    bench.robot.bus(false);
    QVERIFY(!pendant::statelink::isCurrent());
    bench.signalTable()->write("lamp", true);
    bench.robot.embedded()->bus()->setFault(controller::Fault(fault));
    bench.robot.bus(true);
    QVERIFY(!pendant::statelink::isCurrent());
    QVERIFY(pendant::statelink::isAwaited());
    // What was told before stays, and is known to be old.
    QCOMPARE(kiteInterface()->getIOHash().value("lamp"), QVariant(false));
    bench.robot.embedded()->bus()->setFault(controller::Fault::None);
    QTRY_VERIFY(pendant::statelink::isCurrent());
    QCOMPARE(kiteInterface()->getIOHash().value("lamp"), QVariant(true));
}

void TestStateMirror::anAnswerThatComesLateIsAskedForAgain() {
    Bench bench;
    bench.robot.bus(false);
    bench.signalTable()->write("lamp", true);
    bench.robot.embedded()->bus()->setDelayMs(2500);
    bench.robot.bus(true);
    QVERIFY(pendant::statelink::isAwaited());
    bench.robot.embedded()->bus()->setDelayMs(0);
    QTRY_VERIFY(pendant::statelink::isCurrent());
    QCOMPARE(kiteInterface()->getIOHash().value("lamp"), QVariant(true));
}

void TestStateMirror::withTheBusDownNothingIsAskedForAgain() {
    Bench bench;
    bench.robot.bus(false);
    bench.robot.embedded()->bus()->setFault(controller::Fault::Null);
    bench.robot.bus(true);
    bench.robot.bus(false);
    QVERIFY(!pendant::statelink::isAwaited());
    bench.robot.forgetTraffic();
    // Longer than the pause before it asks again.
    QTest::qWait(1300);
    for (const brisk::standin::TrafficEntry& entry : bench.robot.traffic())
        QVERIFY2(entry.key != "mirror.state", qPrintable(entry.key));
}

QTEST_MAIN(TestStateMirror)
#include "tst_state_mirror.moc"
