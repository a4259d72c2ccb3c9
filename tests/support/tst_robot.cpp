#include "pendanttest/robot.h"

#include "brisk/relay.h"
#include "helm/controllermanager.h"
#include "helm/managerhelper.h"
#include "helm/messagelist.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QMap>
#include <QTest>
#include <QTimer>

#include <functional>

using brisk::standin::TrafficEntry;
using controller::Fault;
using pendanttest::Robot;

namespace {

/// What was announced on the watched node of `key` while this lives.
class Heard : public QObject {
public:
    explicit Heard(const QString& key) {
        connect(relay()->watchNode(key), &brisk::ModuleObject::changed, this,
                [this](const QVariant& value) { values << value; });
    }

    QVariantList values;
};

QStringList inShort(const QList<TrafficEntry>& traffic) {
    QStringList lines;
    for (const TrafficEntry& entry : traffic)
        lines << entry.channel + ' ' + entry.kind + ' ' + entry.key;
    return lines;
}

} // namespace

// The controller that tests have behind both links.
class TestRobot : public QObject {
    Q_OBJECT

private slots:
    void theLinksAreDownAtFirst() {
        Robot robot;
        QCOMPARE(relay()->mobj()->c("connected")->getBool(true), false);
        QVERIFY(!controllers()->controllerConnected());
        robot.connectLinks();
        QCOMPARE(relay()->mobj()->c("connected")->getBool(false), true);
        QVERIFY(controllers()->controllerConnected());
    }

    void afterwardsTheLinksAreDownAgain() {
        {
            Robot robot;
            robot.connectLinks();
        }
        QCOMPARE(relay()->mobj()->c("connected")->getBool(true), false);
        QVERIFY(!controllers()->controllerConnected());
    }

    void eachLinkGoesUpAndDownByItself() {
        Robot robot;
        robot.controllerLink(true);
        QVERIFY(controllers()->controllerConnected());
        QVERIFY(!relay()->mobj()->c("connected")->getBool());
        robot.bus(true);
        QVERIFY(relay()->mobj()->c("connected")->getBool());
        robot.controllerLink(false);
        QVERIFY(!controllers()->controllerConnected());
        QVERIFY(relay()->mobj()->c("connected")->getBool());
    }

    void theBusAnswersFromTheTables() {
        Robot robot;
        robot.controller()->bus()->define("io.do", QJsonObject{{"lamp", false}});
        robot.connectLinks();
        relay()->set(nullptr, "io.do", "lamp", true);
        QCOMPARE(relay()->get(nullptr, "io.do")->c("lamp")->getBool(), true);
        QCOMPARE(relay()->get(nullptr, "io.do", "lamp")->getBool(), true);
    }

    void theControllerAnswersRequests() {
        Robot robot;
        robot.controller()->requests()->onRequest("cell.state", [](const controller::Content&) {
            return brisk::standin::contentOf(QVariant(QJsonObject{{"state", 3}}));
        });
        robot.connectLinks();
        brisk::ModuleObject* answer = controllers()->execRequest("cell", "state", QJsonValue(), true, 50);
        QVERIFY(answer);
        QCOMPARE(answer->r("state") ? answer->r("state")->getInt() : -1, 3);
    }

    void settlingBringsTheAnswerThatNobodyWaitsFor() {
        Robot robot;
        robot.controller()->requests()->onRequest(
            "cell.load", [](const controller::Content&) { return brisk::standin::contentOf(QVariant(7)); });
        robot.connectLinks();
        QVERIFY(controllers()->request("cell", "load", QJsonValue(), 1000));
        QVERIFY(controllers()->cmdItemMobj("response", "cell.load")->isEmpty());
        robot.settle();
        QCOMPARE(controllers()->cmdItemMobj("response", "cell.load")->getInt(), 7);
    }

    void aStepReturnsWhenTheDeliveriesHaveArrived() {
        Robot robot;
        robot.connectLinks();
        relay()->watch(this, "controller.uptime", true);
        const Heard uptime("controller.uptime");
        robot.step(999);
        QCOMPARE(uptime.values, QVariantList());
        robot.step(1);
        QCOMPARE(uptime.values, QVariantList{1});
        robot.step(2000);
        QCOMPARE(uptime.values, (QVariantList{1, 2, 3}));
        relay()->watch(this, "controller.uptime", false);
        robot.step(1000);
        QCOMPARE(uptime.values.size(), 3);
    }

    void watchesSurviveAReconnect() {
        Robot robot;
        relay()->watch(this, "controller.uptime", true);
        robot.connectLinks();
        const Heard uptime("controller.uptime");
        robot.step(1000);
        robot.bus(false);
        robot.step(1000);
        QCOMPARE(uptime.values, QVariantList{1});
        robot.bus(true);
        robot.step(1000);
        QCOMPARE(uptime.values, (QVariantList{1, 3}));
        relay()->watch(this, "controller.uptime", false);
    }

    void theTrafficIsKept() {
        Robot robot;
        robot.connectLinks();
        robot.forgetTraffic();
        relay()->get(nullptr, "controller.uptime");
        QCOMPARE(inShort(robot.traffic()), (QStringList{"bus get controller.uptime", "bus answer controller.uptime"}));
        relay()->get(nullptr, "none");
        robot.settle();
        QCOMPARE(robot.traffic().last().kind, QString("notice"));
        robot.forgetTraffic();
        QCOMPARE(robot.traffic().size(), 0);
    }

    void whatIsUnknownGetsOneLineInTheMessageList_data() {
        QTest::addColumn<QString>("what");
        for (const char* what : {"get", "set", "command", "execute", "plugin command", "request", "posted", "watch"})
            QTest::newRow(what) << what;
    }

    void whatIsUnknownGetsOneLineInTheMessageList() {
        QFETCH(QString, what);
        Robot robot;
        robot.connectLinks();
        helm::standin::MessageList::instance()->clear();
        for (int i = 0; i < 3; ++i) {
            ask(what, "cell.none");
            robot.settle();
        }
        const QList<helm::standin::Message> lines = helm::standin::MessageList::instance()->messages();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.first().source, QString("controller"));
        QVERIFY2(lines.first().text.contains("\"cell.none\""), qPrintable(lines.first().text));
        relay()->watch(this, "cell.none", false);
    }

    void anUnknownNameGetsItsLineAlthoughTheLinkGoesDown_data() { whatIsUnknownGetsOneLineInTheMessageList_data(); }

    void anUnknownNameGetsItsLineAlthoughTheLinkGoesDown() {
        QFETCH(QString, what);
        Robot robot;
        robot.connectLinks();
        helm::standin::MessageList::instance()->clear();
        ask(what, "cell.none");
        for (const bool up : {false, true}) {
            robot.embedded()->bus()->setUp(up);
            robot.embedded()->controllerLink()->setUp(up);
        }
        robot.settle();
        QCOMPARE(helm::standin::MessageList::instance()->messages().size(), 1);
        relay()->watch(this, "cell.none", false);
    }

    void aPluginCommandWithoutAnEndpointIsCalledSo_data() {
        QTest::addColumn<QString>("endpoint");
        QTest::newRow("empty") << QString("");
        QTest::newRow("null") << QString();
    }

    void aPluginCommandWithoutAnEndpointIsCalledSo() {
        QFETCH(QString, endpoint);
        Robot robot;
        robot.connectLinks();
        brisk::ModuleObject* answer = relay()->execPluginCommand(nullptr, "weld", endpoint, 1);
        const QString reason = answer->c("error")->getString();
        QVERIFY2(reason.contains("names no endpoint"), qPrintable(reason));
    }

    void nothingArrivesWhileARequestHoldsTheThread() {
        Robot robot;
        robot.connectLinks();
        for (const char* request : {"cell.load", "cell.hold"})
            robot.controller()->requests()->onRequest(
                request, [](const controller::Content&) { return brisk::standin::contentOf(QVariant(7)); });
        QStringList heard;
        QObject context;
        relay()->watch(&context, "controller.uptime", true);
        QTimer::singleShot(0, &context, [&] { heard << "timer"; });
        QMetaObject::invokeMethod(
            &context, [&] { heard << "posted event"; }, Qt::QueuedConnection);
        connect(relay()->watchNode("controller.uptime"), &brisk::ModuleObject::changed, &context,
                [&] { heard << "delivery"; });
        connect(controllers()->cmdItemMobj("response", "cell.load"), &brisk::ModuleObject::changed, &context,
                [&] { heard << "answer"; });
        robot.controller()->clock()->step(1000);
        QVERIFY(controllers()->request("cell", "load", QJsonValue(), 1000));
        robot.embedded()->controllerLink()->setDelayMs(80);
        QElapsedTimer held;
        held.start();
        controllers()->execRequest("cell", "hold", QJsonValue(), true, 500);
        // A little less than the delay: two clocks of whole milliseconds.
        QVERIFY(held.elapsed() >= 70);
        QCOMPARE(heard.join(", "), QString());
        robot.settle();
        heard.sort();
        QCOMPARE(heard, (QStringList{"answer", "delivery", "posted event", "timer"}));
    }

    void theRobotSaysWhereItWasJoggedTo() {
        Robot robot;
        robot.loadDefaultCell();
        robot.connectLinks();
        robot.jog({controller::JogCommand::Cartesian, 2, -100}, 700);
        robot.jog({controller::JogCommand::Joint, 5, 50}, 300);
        const brisk::ModuleObject* frame = relay()->get(nullptr, "robot.frame");
        const QJsonObject asked = frame->exportToJson(true).toObject();
        const QJsonValue told = relay()->get(nullptr, "robot.position")->exportToJson(true);
        brisk::ModuleObject* answer =
            controllers()->execRequest("project", "vex_program.get_rob_pos", asked, true, 1600);
        QVERIFY(answer);
        QCOMPARE(answer->exportToJson(true), told);
        QVERIFY(std::abs(answer->r("cartesian.pose.frame.pos.z")->getDouble() - 400) < 1e-6);
        QVERIFY(std::abs(answer->r("joint.inner_pos.#5")->getDouble() - 10.8) < 1e-6);
    }

    void theReasonWhyJoggingEndedComesOverTheBus() {
        Robot robot;
        robot.connectLinks();
        robot.jog({controller::JogCommand::Cartesian, 2, 100}, 10000);
        QCOMPARE(robot.traffic().last().kind, QString("notice"));
        QVERIFY(robot.traffic().last().value.toString().startsWith("Jogging along Z cannot go on: "));
        robot.forgetTraffic();
        robot.jog({controller::JogCommand::Cartesian, 2, 100}, 1000);
        QCOMPARE(inShort(robot.traffic()).join(';'), QString("bus notice "));
    }

    void answersCanBeSpoilt() {
        Robot robot;
        robot.connectLinks();
        robot.embedded()->bus()->setFault(Fault::Malformed);
        QCOMPARE(relay()->get(nullptr, "controller.uptime")->getString(), QString("?"));
    }

private:
    void ask(const QString& what, const QString& name) {
        const QMap<QString, std::function<void()>> ways{
            {"get", [&] { relay()->get(nullptr, name); }},
            {"set", [&] { relay()->set(nullptr, name, QString(), 1); }},
            {"command", [&] { relay()->command(nullptr, name); }},
            {"execute", [&] { relay()->execCommand(nullptr, name); }},
            {"plugin command", [&] { relay()->execPluginCommand(nullptr, name, "ServiceAPI.none", 1); }},
            {"request", [&] { controllers()->execRequest("cell", "none", QJsonValue(), true, 500); }},
            {"posted", [&] { controllers()->request("cell", "none", QJsonValue(), 500); }},
            {"watch", [&] { relay()->watch(this, name, true); }}};
        ways.value(what)();
    }

    static helm::ControllerManager* controllers() { return helm::ManagerHelper::instance()->controllerManager(); }
};

QTEST_MAIN(TestRobot)
#include "tst_robot.moc"
