#include "brisk/guarded.h"
#include "helm/managerhelper.h"
#include "pendanttest/fakelink.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <stdexcept>

using brisk::ModuleObject;
using brisk::standin::Channel;
using brisk::standin::contentOf;
using brisk::standin::GuardedCall;
using brisk::standin::Message;
using brisk::standin::Verb;
using helm::ControllerManager;
using pendanttest::FakeLink;

namespace {

const QString paramsCommand = QStringLiteral("system.controller.get_params");

ControllerManager* manager() {
    return helm::ManagerHelper::instance()->controllerManager();
}

QJsonValue response(const QString& command) {
    return manager()->cmdItemMobj("response", command)->exportToJson(true);
}

} // namespace

class ControllerRequests : public QObject {
    Q_OBJECT

private slots:
    void withTheLinkDownARequestIsRefused();
    void withTheLinkDownAReplyIsEmpty();
    void theLinkIsFollowed();
    void whoeverHearsOfTheLinkFindsItSo();
    void groupAndRequestAreJoinedByADot();
    void theReplyComesBack();
    void withoutWaitingTheReplyIsEmpty();
    void aNodeIsSentAsItIs();
    void aReplyNodeIsUsedAgainAndEmptied();
    void theLastRequestAndResponseAreKept();
    void aResponseThatIsNotWaitedForIsKeptToo();
    void aRequestThatTimedOutLeavesTheResponseAlone();
    void aFarSideThatAnswersNothingGivesNullAndKeepsTheResponse();
    void aRequestWithoutContentIsKeptAsSuch();
    void aReplyMayBeDeletedByItsUser();
    void whatAListenerThrowsIsHandedToTheHandler();
    void whatAListenerToAResponseThrowsIsHandedToTheHandler();
};

void ControllerRequests::withTheLinkDownARequestIsRefused() {
    ModuleObject node("request");
    QVERIFY(!manager()->controllerConnected());
    QVERIFY(!manager()->request("project", "list", QJsonValue(), 100));
    QVERIFY(!manager()->request("project.list", &node, 100));
    QVERIFY(!manager()->request("project.list", nullptr, 100));
}

void ControllerRequests::withTheLinkDownAReplyIsEmpty() {
    {
        FakeLink link(Channel::controller());
        link.answerWith(contentOf(QVariant(QJsonArray{1})));
        manager()->execRequest("project", "list", QJsonValue(), true, 100);
    }
    QVERIFY(manager()->execRequest("project", "list", QJsonValue(), true, 100)->isEmpty());
    QVERIFY(manager()->execRequest("project.list", nullptr, true, 100)->isEmpty());
    QVERIFY(manager()->execRequest("project.list", nullptr, false, 100)->isEmpty());
}

void ControllerRequests::theLinkIsFollowed() {
    QSignalSpy connected(manager(), &ControllerManager::rcConnected);
    QSignalSpy disconnected(manager(), &ControllerManager::rcDisconnected);
    FakeLink link(Channel::controller());
    QCOMPARE(connected.size(), 1);
    link.setUp(false);
    QCOMPARE(disconnected.size(), 1);
    QCOMPARE(disconnected.first().first().toBool(), false);
    link.setUp(true);
    QCOMPARE(connected.size(), 2);
}

void ControllerRequests::whoeverHearsOfTheLinkFindsItSo() {
    QList<bool> found;
    QObject context;
    const auto look = [&] { found << manager()->controllerConnected(); };
    connect(manager(), &ControllerManager::rcConnected, &context, look);
    connect(manager(), &ControllerManager::rcDisconnected, &context, look);
    { const FakeLink link(Channel::controller()); }
    QCOMPARE(found, QList<bool>({true, false}));
}

void ControllerRequests::groupAndRequestAreJoinedByADot() {
    FakeLink link(Channel::controller());
    QVERIFY(manager()->request("project", "vex_program.get_rob_pos", QJsonObject{{"tool", "t1"}}, 100));
    manager()->execRequest("system", "controller.get_params", QJsonValue(), true, 100);
    QCOMPARE(link.sentAs(Verb::Request),
             QStringList({"project.vex_program.get_rob_pos||{\"tool\":\"t1\"}", "system.controller.get_params||null"}));
}

void ControllerRequests::theReplyComesBack() {
    FakeLink link(Channel::controller());
    link.reply = [](const Message& message) { return contentOf(QVariant(QJsonObject{{"of", message.key}})); };
    ModuleObject node("request");
    QCOMPARE(manager()->execRequest("a", "b", 1, true, 100)->exportToJson(true),
             QJsonValue(QJsonObject{{"of", "a.b"}}));
    QCOMPARE(manager()->execRequest("c", &node, true, 100)->exportToJson(true), QJsonValue(QJsonObject{{"of", "c"}}));
}

void ControllerRequests::withoutWaitingTheReplyIsEmpty() {
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(1)));
    QVERIFY(manager()->execRequest("a", "b", 1, false, 100)->isEmpty());
    QCOMPARE(link.sent.size(), 1);
}

void ControllerRequests::aNodeIsSentAsItIs() {
    FakeLink link(Channel::controller());
    ModuleObject node("request");
    node.set(nullptr, "b", 1);
    node.set(nullptr, "a", 2);
    manager()->request("x", &node, 100);
    QCOMPARE(link.sent.first().content->cmobjs().first()->name(), QString("b"));
    QCOMPARE(link.sentAs(Verb::Request), QStringList("x||{\"a\":2,\"b\":1}"));
}

void ControllerRequests::aReplyNodeIsUsedAgainAndEmptied() {
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(QJsonArray{1, 2})));
    const ModuleObject* reply = manager()->execRequest("a", "b", 1, true, 100);
    QCOMPARE(manager()->execRequest("a.b", nullptr, true, 100), reply);
    QVERIFY(manager()->execRequest("a", "c", 1, true, 100) != reply);
    link.answers = false;
    QCOMPARE(manager()->execRequest("a", "b", 1, true, 1), reply);
    QCOMPARE(reply->exportToJson(true), QJsonValue());
}

void ControllerRequests::theLastRequestAndResponseAreKept() {
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(QJsonObject{{"robot_template", 3}})));
    manager()->execRequest("system", "controller.get_params", QJsonObject{{"all", true}}, true, 100);
    QCOMPARE(response(paramsCommand), QJsonValue(QJsonObject{{"robot_template", 3}}));
    QCOMPARE(manager()->cmdItemMobj("request", paramsCommand)->exportToJson(true),
             QJsonValue(QJsonObject{{"all", true}}));
}

void ControllerRequests::aResponseThatIsNotWaitedForIsKeptToo() {
    FakeLink link(Channel::controller());
    link.answers = false;
    manager()->request("posted", "one", QJsonValue(), 1000);
    emit link.answered({link.sent.first().id, contentOf(QVariant(9))});
    QCOMPARE(response("posted.one"), QJsonValue());
    QCoreApplication::processEvents();
    QCOMPARE(response("posted.one"), QJsonValue(9));
}

void ControllerRequests::aRequestThatTimedOutLeavesTheResponseAlone() {
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(1)));
    manager()->execRequest("keep", "it", QJsonValue(), true, 100);
    link.answers = false;
    QVERIFY(manager()->execRequest("keep", "it", QJsonValue(), true, 1)->isEmpty());
    QCOMPARE(response("keep.it"), QJsonValue(1));
}

void ControllerRequests::aFarSideThatAnswersNothingGivesNullAndKeepsTheResponse() {
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(1)));
    manager()->execRequest("null", "it", QJsonValue(), true, 100);
    link.answerWith(nullptr);
    QVERIFY(!manager()->execRequest("null", "it", QJsonValue(), true, 100));
    QCOMPARE(response("null.it"), QJsonValue(1));
}

void ControllerRequests::aRequestWithoutContentIsKeptAsSuch() {
    FakeLink link(Channel::controller());
    manager()->request("kept", "it", QJsonObject{{"a", 1}}, 100);
    manager()->request("kept.it", nullptr, 100);
    QCOMPARE(manager()->cmdItemMobj("request", "kept.it")->exportToJson(true), QJsonValue());
    QVERIFY(manager()->cmdItemMobj("request", "kept.it") != manager()->cmdItemMobj("response", "kept.it"));
    QCOMPARE(manager()->cmdItemMobj("state", "kept.it"), manager()->cmdItemMobj("state", "kept.it"));
}

void ControllerRequests::aReplyMayBeDeletedByItsUser() {
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(1)));
    delete manager()->execRequest("deleted", "it", QJsonValue(), true, 100);
    QCOMPARE(manager()->execRequest("deleted", "it", QJsonValue(), true, 100)->getInt(), 1);
}

void ControllerRequests::whatAListenerToAResponseThrowsIsHandedToTheHandler() {
    QStringList names;
    brisk::standin::setThrownHandler([&](GuardedCall call, const QString& name, const std::exception_ptr&) {
        QCOMPARE(call, GuardedCall::Response);
        names << name;
    });
    FakeLink link(Channel::controller());
    link.answerWith(contentOf(QVariant(1)));
    QObject context;
    connect(manager()->cmdItemMobj("response", "loud.one"), &ModuleObject::changed, &context,
            [] { throw std::runtime_error("boom"); });
    QCOMPARE(manager()->execRequest("loud", "one", QJsonValue(), true, 100)->getInt(), 1);
    manager()->request("loud", "one", QJsonValue(), 1000);
    emit link.answered({link.sent.last().id, contentOf(QVariant(2))});
    QCoreApplication::processEvents();
    brisk::standin::setThrownHandler({});
    QCOMPARE(names, QStringList({"loud.one", "loud.one"}));
}

void ControllerRequests::whatAListenerThrowsIsHandedToTheHandler() {
    QStringList names;
    brisk::standin::setThrownHandler([&](GuardedCall call, const QString& name, const std::exception_ptr&) {
        QCOMPARE(call, GuardedCall::LinkChange);
        names << name;
    });
    QObject context;
    connect(manager(), &ControllerManager::rcConnected, &context, [] { throw std::runtime_error("boom"); });
    const FakeLink link(Channel::controller());
    brisk::standin::setThrownHandler({});
    QCOMPARE(names, QStringList("controller"));
}

QTEST_GUILESS_MAIN(ControllerRequests)
#include "tst_controllermanager.moc"
