#include "hostspy.h"

#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "kite/interfacemanager.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

using brisk::ModuleObject;
using kite::InterfaceManager;
using kite::kiteInterface;

/// One call, with its result as text.
using Call = std::function<QString(InterfaceManager&)>;
Q_DECLARE_METATYPE(Call)

namespace {

QString shown(bool value) {
    return value ? "true" : "false";
}
QString shown(const QJsonValue& value) {
    return value.isNull() ? "Null" : value.isBool() ? shown(value.toBool()) : value.toString();
}
QString shown(const QJsonArray& value) {
    return QString("array of %1").arg(value.size());
}

} // namespace

// What the library hands to the host, to the argument, and what it makes of a host that answers with nothing.
class TestHostCalls : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(m_folder.isValid() && QDir::setCurrent(m_folder.path()));
        // Nothing is looked at before this.
        QVERIFY(kiteInterface());
        relay();
        helm::ManagerHelper::instance();
    }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }
    void init() {
        spy() = HostSpy();
        m_busNode.reset(new ModuleObject("relay"));
        m_busNode->set(nullptr, "connected", true);
        spy().busNode = m_busNode.get();
        m_node.reset(new ModuleObject("reply"));
        m_node->setValue(nullptr, "reply");
        spy().node = m_node.get();
    }

    void everyCallReachesTheHostAsItIs_data() {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<QString>("result");
        const auto row = [](const char* name, const Call& call, const QStringList& calls, const char* result) {
            QTest::newRow(name) << call << calls << result;
        };
        row(
            "get", [](InterfaceManager& i) { return shown(i.getRelayData("k")); }, {"get(null; k)"}, "reply");
        row(
            "get a part", [](InterfaceManager& i) { return shown(i.getRelayData("k", "s")); }, {"get(null; k; s)"},
            "reply");
        row(
            "set", [](InterfaceManager& i) { return shown(i.setRelayData("k", 1)); }, {"set(null; k; ; int 1)"},
            "true");
        row(
            "set a part", [](InterfaceManager& i) { return shown(i.setRelayData("k", "s", 1)); },
            {"set(null; k; s; int 1)"}, "true");
        row(
            "command", [](InterfaceManager& i) { return shown(i.commandRelayData("k", 1)); },
            {"command(null; k; int 1)"}, "true");
        row(
            "execute", [](InterfaceManager& i) { return shown(i.execCommandRelayData("k", 1)); },
            {"execCommand(null; k; int 1)"}, "reply");
        row(
            "node", [](InterfaceManager& i) { return shown(i.getNodeData("k")); }, {"m(k; null)"}, "reply");
        row(
            "request", [](InterfaceManager& i) { return shown(i.rcRequest("g", "r", "p", 70)); },
            {"request(g; r; \"p\"; 70)"}, "true");
        row(
            "wait for a request", [](InterfaceManager& i) { return shown(i.rcExecRequest("g", "r", "p", true, 70)); },
            {"execRequest(g; r; \"p\"; true; 70)"}, "reply");
        row(
            "do not wait", [](InterfaceManager& i) { return shown(i.rcExecRequest("g", "r", "p", false, -1)); },
            {"execRequest(g; r; \"p\"; false; -1)"}, "reply");
        row(
            "full request", [](InterfaceManager& i) { return shown(i.rcRequestFullCommand("g.r", "p", 70)); },
            {"request(g.r; request \"p\"; 70)"}, "true");
        row(
            "wait for a full request",
            [](InterfaceManager& i) { return shown(i.rcExecRequestFullCommand("g.r", "p", true, 70)); },
            {"execRequest(g.r; request \"p\"; true; 70)"}, "reply");
        row(
            "take a task back", [](InterfaceManager& i) { return shown(i.disconnectNetworkStatus(true, "id")); },
            {"unRegisterTask(0; id)"}, "true");
        row(
            "take another back", [](InterfaceManager& i) { return shown(i.disconnectNetworkStatus(false, "id")); },
            {"unRegisterTask(1; id)"}, "true");
    }
    void everyCallReachesTheHostAsItIs() {
        QFETCH(Call, call);
        QFETCH(QStringList, calls);
        QFETCH(QString, result);
        QCOMPARE(call(*kiteInterface()), result);
        QCOMPARE(spy().calls, calls);
    }

    void whatTheHostSaysIsPassedOn() {
        spy().says = false;
        QVERIFY(!kiteInterface()->rcRequest("g", "r", "p", 70));
        QVERIFY(!kiteInterface()->rcRequestFullCommand("g.r", "p", 70));
        QVERIFY(!kiteInterface()->disconnectNetworkStatus(true, "id"));
    }

    void aHostWithoutNodesIsTakenAsItIs_data() {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QString>("result");
        const auto row = [](const char* name, const Call& call, const char* result) {
            QTest::newRow(name) << call << result;
        };
        row(
            "get", [](InterfaceManager& i) { return shown(i.getRelayData("k")); }, "Null");
        row(
            "get a part", [](InterfaceManager& i) { return shown(i.getRelayData("k", "s")); }, "Null");
        row(
            "execute", [](InterfaceManager& i) { return shown(i.execCommandRelayData("k", 1)); }, "Null");
        row(
            "node", [](InterfaceManager& i) { return shown(i.getNodeData("k")); }, "Null");
        row(
            "request", [](InterfaceManager& i) { return shown(i.rcExecRequest("g", "r", "p", true, 70)); }, "Null");
        row(
            "full request", [](InterfaceManager& i) { return shown(i.rcExecRequestFullCommand("g.r", "p", true, 70)); },
            "Null");
        row(
            "custom data", [](InterfaceManager& i) { return shown(i.commandCustomData(nullptr, "g", "k")); },
            "array of 0");
        row(
            "subscribe",
            [](InterfaceManager& i) {
                return shown(i.connectRelayData(
                    "p", "k", [](const QVariant&) {}, "c"));
            },
            "false");
    }
    void aHostWithoutNodesIsTakenAsItIs() {
        QFETCH(Call, call);
        QFETCH(QString, result);
        spy().node = nullptr;
        QCOMPARE(call(*kiteInterface()), result);
        QCOMPARE(spy().calls.size(), 1);
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("p"), QStringList());
    }

    void aBusWithoutANodeCountsAsDown() {
        spy().busNode = nullptr;
        QVERIFY(!kiteInterface()->getRobotConnected());
        QCOMPARE(kiteInterface()->getRelayData("k"), QJsonValue());
        QVERIFY(!kiteInterface()->setRelayData("k", 1));
        QVERIFY(!kiteInterface()->commandRelayData("k", 1));
        QCOMPARE(kiteInterface()->execCommandRelayData("k", 1), QJsonValue(false));
        QSignalSpy connected(kiteInterface(), &kite::InterfaceManager::sigNetworkConnect);
        emit helm::ManagerHelper::instance()->controllerManager()->rcConnected();
        QCOMPARE(connected.size(), 0);
        QCOMPARE(spy().calls, QStringList());
    }

    void aSubscriptionIsOneNodeAndOneWatch() {
        int heard = 0;
        const auto callback = [&heard](const QVariant&) { ++heard; };
        QVERIFY(kiteInterface()->connectRelayData("p", "k", callback, "1"));
        QVERIFY(kiteInterface()->connectRelayData("p", "k", callback, "2"));
        QCOMPARE(spy().calls, QStringList({"watchNode(k)", "watch(null; k; true)"}));
        m_node->setValue(nullptr, 1);
        QCOMPARE(heard, 2);

        spy().calls.clear();
        QVERIFY(kiteInterface()->disconnectRelayData("p", "k", "1"));
        QCOMPARE(spy().calls, QStringList());
        QVERIFY(kiteInterface()->disconnectRelayData("p", "k", "2"));
        QCOMPARE(spy().calls, QStringList{"watch(null; k; false)"});
        m_node->setValue(nullptr, 2);
        QCOMPARE(heard, 2);
    }

    void aSubscriptionOutlivesItsNode() {
        QVERIFY(kiteInterface()->connectRelayData(
            "p", "k", [](const QVariant&) {}, "1"));
        m_node.reset();
        QVERIFY(kiteInterface()->disconnectRelayData("p", "k", "1"));
        QCOMPARE(spy().calls.last(), QString("watch(null; k; false)"));
    }

    void aRequestNodeLivesForTheCallOnly() {
        kiteInterface()->rcRequestFullCommand("g.r", QJsonObject{{"a", 1}}, 70);
        kiteInterface()->rcExecRequestFullCommand("g.r", QJsonObject{{"a", 1}}, true, 70);
        QCOMPARE(spy().requests.size(), 2);
        QVERIFY(spy().requests.at(0).isNull());
        QVERIFY(spy().requests.at(1).isNull());
        QVERIFY(!spy().requestHasParent);
    }

    void aReplyThatIsTheRequestIsReadInTime() {
        spy().echoes = true;
        const QJsonValue content = QJsonObject{{"a", QJsonArray{1, 2}}};
        QCOMPARE(kiteInterface()->rcExecRequestFullCommand("g.r", content, true, 70), content);
    }

    void aTaskIsRegisteredWithNothingBeforeIt_data() {
        QTest::addColumn<bool>("flag");
        QTest::addColumn<QString>("call");
        QTest::newRow("coming up") << true << "registerTask(0; object; mine; [])";
        QTest::newRow("going down") << false << "registerTask(1; object; mine; [])";
    }
    void aTaskIsRegisteredWithNothingBeforeIt() {
        QFETCH(bool, flag);
        QFETCH(QString, call);
        QCOMPARE(kiteInterface()->connectNetworkStatus(
                     flag, "name", this, [] {}, "mine"),
                 QString("mine"));
        QCOMPARE(spy().calls, QStringList{call});
        QCOMPARE(spy().taskOwner, this);
    }

    void aTaskCallsItsHandlerAndThenReportsSuccess() {
        QStringList order;
        kiteInterface()->connectNetworkStatus(
            true, "name", nullptr, [&order] { order << "handler"; }, "mine");
        QCOMPARE(order, QStringList());
        for (int times = 0; times < 2; ++times)
            spy().task([&order](bool success, const QVariant& result) {
                order << (success && !result.isValid() ? "done" : "wrong");
            });
        QCOMPARE(order, QStringList({"handler", "done", "handler", "done"}));
        QCOMPARE(spy().calls, QStringList{"registerTask(0; null; mine; [])"});
    }

    void copiesOfATaskShareOneHandler() {
        const auto held = std::make_shared<int>(0);
        kiteInterface()->connectNetworkStatus(
            true, "name", nullptr, [held] { ++*held; }, "mine");
        const long before = held.use_count();
        const auto copy = spy().task;
        QCOMPARE(held.use_count(), before);
        copy([](bool, const QVariant&) {});
        QCOMPARE(*held, 1);
    }

    void anEmptyHandlerThrowsWhenItsTimeComes() {
        bool done = false;
        kiteInterface()->connectNetworkStatus(true, "name", nullptr, nullptr, "mine");
        QVERIFY_EXCEPTION_THROWN(spy().task([&done](bool, const QVariant&) { done = true; }), std::bad_function_call);
        QVERIFY(!done);
    }

    void anEmptyDoneThrowsAfterTheHandler() {
        bool handled = false;
        kiteInterface()->connectNetworkStatus(
            true, "name", nullptr, [&handled] { handled = true; }, "mine");
        QVERIFY_EXCEPTION_THROWN(spy().task(nullptr), std::bad_function_call);
        QVERIFY(handled);
    }

    void aReplyOfACustomCommandStaysTheHosts() {
        m_node->set(nullptr, "data", QVariant());
        m_node->c("data")->setList(nullptr, {1, 2});
        const QPointer<ModuleObject> reply(m_node.get());
        QCOMPARE(kiteInterface()->commandCustomData(this, QJsonArray{1}), QJsonArray({1, 2}));
        QVERIFY(!reply.isNull());
        QCOMPARE(spy().calls.size(), 1);
        QVERIFY2(spy().calls.first().startsWith("execPluginCommand(object; ServiceAPI.plugin_"),
                 qPrintable(spy().calls.first()));
        QVERIFY2(spy().calls.first().endsWith("; ServiceAPI.plugin; QJsonArray )"), qPrintable(spy().calls.first()));
    }

private:
    static HostSpy& spy() { return HostSpy::instance(); }

    QTemporaryDir m_folder;
    std::unique_ptr<ModuleObject> m_busNode;
    std::unique_ptr<ModuleObject> m_node;
};

QTEST_GUILESS_MAIN(TestHostCalls)
#include "tst_interface_hostcalls.moc"
