#include "brisk/relay.h"
#include "pendanttest/fakelink.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using brisk::ModuleObject;
using brisk::standin::contentOf;
using brisk::standin::Message;
using brisk::standin::Verb;
using pendanttest::FakeLink;

class RelayCalls : public QObject {
    Q_OBJECT

private slots:
    void thereIsOneBus();
    void connectedIsThereAndFalse();
    void connectedFollowsTheLink();
    void whoeverHearsOfConnectedFindsTheBusUp();
    void withTheLinkDownEveryAnswerIsAnEmptyNode();
    void withTheLinkDownNothingIsSent();
    void everyCallIsAMessage();
    void whatWantsAnAnswerGetsIt();
    void aNodeIsSentInTheOrderOfItsChildren();
    void aReplyNodeIsUsedAgainByItsCommand();
    void aUsedReplyNodeComesBackEmpty();
    void keysThatLookAlikeHaveNodesOfTheirOwn();
    void aReplyMayBeDeletedByWhoListensToIt();
    void aNullNodeIsNotSent();
    void aNodeThatWasSentMayDie();
    void withoutAnAnswerTheReplyIsEmpty();
    void aFarSideThatAnswersNothingGivesNull();
    void manyCommandsOfOneNameUseOneNode();
};

void RelayCalls::thereIsOneBus() {
    QVERIFY(relay());
    QCOMPARE(relay(), relay());
}

void RelayCalls::connectedIsThereAndFalse() {
    const Relay fresh;
    ModuleObject* connected = fresh.mobj()->c("connected");
    QVERIFY(connected);
    QCOMPARE(connected->value(), QVariant(false));
    QCOMPARE(fresh.mobj()->r("connected"), connected);
}

void RelayCalls::connectedFollowsTheLink() {
    ModuleObject* connected = relay()->mobj()->c("connected");
    QSignalSpy changed(connected, &ModuleObject::changed);
    {
        FakeLink link;
        QCOMPARE(connected->value(), QVariant(true));
        link.setUp(false);
        QCOMPARE(connected->value(), QVariant(false));
        link.setUp(true);
        const Relay late;
        QCOMPARE(late.mobj()->c("connected")->value(), QVariant(true));
    }
    QCOMPARE(connected->value(), QVariant(false));
    QCOMPARE(changed.size(), 4);
}

void RelayCalls::whoeverHearsOfConnectedFindsTheBusUp() {
    FakeLink link;
    link.setUp(false);
    link.answerWith(contentOf(QVariant(5)));
    QJsonValue seen;
    const auto connection =
        connect(relay()->mobj()->c("connected"), &ModuleObject::changed, this, [&](const QVariant& value) {
            if (value.toBool())
                seen = relay()->get(nullptr, "io")->exportToJson(true);
        });
    link.setUp(true);
    disconnect(connection);
    QCOMPARE(seen, QJsonValue(5));
}

void RelayCalls::withTheLinkDownEveryAnswerIsAnEmptyNode() {
    ModuleObject request("request");
    {
        FakeLink link;
        link.answerWith(contentOf(QVariant(QJsonArray{1, 2})));
        for (const char* key : {"a", "c"}) {
            relay()->get(nullptr, key);
            relay()->get(nullptr, key, "b");
            relay()->execCommand(nullptr, key);
        }
        relay()->execPluginCommand(nullptr, "ServiceAPI.plugin_0", "ServiceAPI.plugin", QJsonArray{1});
    }
    for (ModuleObject* reply :
         {relay()->get(nullptr, "a"), relay()->get(nullptr, "a", "b"), relay()->execCommand(nullptr, "c"),
          relay()->execCommand(nullptr, "c", 1), relay()->execCommand(nullptr, "c", &request),
          relay()->execCommand(nullptr, "c", static_cast<ModuleObject*>(nullptr)),
          relay()->execPluginCommand(nullptr, "ServiceAPI.plugin_0", "ServiceAPI.plugin", QJsonArray{1})}) {
        QVERIFY(reply);
        QVERIFY(reply->isEmpty());
        QVERIFY(reply->exportToJson(true).isNull());
    }
}

void RelayCalls::withTheLinkDownNothingIsSent() {
    FakeLink link;
    link.setUp(false);
    ModuleObject node("node");
    relay()->get(nullptr, "io");
    relay()->set(nullptr, "io", "a", 1);
    relay()->set(nullptr, "io", &node);
    relay()->command(nullptr, "io", 1);
    relay()->execCommand(nullptr, "io");
    QCOMPARE(link.sent.size(), 0);
}

void RelayCalls::everyCallIsAMessage() {
    FakeLink link;
    link.answerWith(contentOf(QVariant(1)));
    ModuleObject node("node");
    node.set(nullptr, "a", 1);
    relay()->get(nullptr, "g");
    relay()->get(nullptr, "g", "s");
    relay()->set(nullptr, "k", "", 1);
    relay()->set(nullptr, "k", "s", "x");
    relay()->set(nullptr, "k", &node);
    relay()->command(nullptr, "c");
    relay()->command(nullptr, "c", 2);
    relay()->command(nullptr, "c", &node);
    relay()->execCommand(nullptr, "e");
    relay()->execCommand(nullptr, "e", QJsonArray{1, 2});
    relay()->execCommand(nullptr, "e", &node);
    relay()->execPluginCommand(nullptr, "ServiceAPI.plugin_7", "ServiceAPI.plugin", QJsonArray{1});
    QCOMPARE(link.sentAs(Verb::Get), QStringList({"g||null", "g|s|null"}));
    QCOMPARE(link.sentAs(Verb::Set), QStringList({"k||1", "k|s|\"x\"", "k||{\"a\":1}"}));
    QCOMPARE(link.sentAs(Verb::Command), QStringList({"c||null", "c||2", "c||{\"a\":1}"}));
    QCOMPARE(link.sentAs(Verb::Execute),
             QStringList({"e||null", "e||[1,2]", "e||{\"a\":1}", "ServiceAPI.plugin_7|ServiceAPI.plugin|[1]"}));
    for (const Message& message : link.sent)
        QCOMPARE(message.wantsAnswer, message.verb == Verb::Get || message.verb == Verb::Execute);
}

void RelayCalls::whatWantsAnAnswerGetsIt() {
    FakeLink link;
    link.reply = [](const Message& message) { return contentOf(QVariant(QJsonObject{{message.key, true}})); };
    ModuleObject node("node");
    QCOMPARE(relay()->get(nullptr, "a")->exportToJson(true), QJsonValue(QJsonObject{{"a", true}}));
    QCOMPARE(relay()->get(nullptr, "a", "b")->exportToJson(true), QJsonValue(QJsonObject{{"a", true}}));
    QCOMPARE(relay()->execCommand(nullptr, "e")->exportToJson(true), QJsonValue(QJsonObject{{"e", true}}));
    QCOMPARE(relay()->execCommand(nullptr, "f", &node)->exportToJson(true), QJsonValue(QJsonObject{{"f", true}}));
    QCOMPARE(relay()->execPluginCommand(nullptr, "p", "s", 1)->exportToJson(true),
             QJsonValue(QJsonObject{{"p", true}}));
}

void RelayCalls::aNodeIsSentInTheOrderOfItsChildren() {
    FakeLink link;
    ModuleObject names("names");
    for (int i = 0; i < 12; ++i)
        names.set(nullptr, QString("#%1").arg(i), i);
    relay()->set(nullptr, "monitor.select", &names);
    const auto children = link.sent.first().content->cmobjs();
    for (int i = 0; i < 12; ++i)
        QCOMPARE(children.at(i)->getInt(), i);
}

void RelayCalls::aReplyNodeIsUsedAgainByItsCommand() {
    ModuleObject* reply = relay()->execCommand(nullptr, "move.reset");
    QCOMPARE(relay()->execCommand(nullptr, "move.reset", 1), reply);
    QVERIFY(relay()->execCommand(nullptr, "move.stop") != reply);
    QVERIFY(relay()->get(nullptr, "move.reset") != reply);
    QCOMPARE(relay()->get(nullptr, "monitor.pers", ""), relay()->get(nullptr, "monitor.pers"));
    QVERIFY(relay()->get(nullptr, "monitor", "pers") != relay()->get(nullptr, "monitor", "select"));
}

void RelayCalls::aUsedReplyNodeComesBackEmpty() {
    relay()->execCommand(nullptr, "move.reset")->setList(nullptr, {1, QVariant()});
    relay()->execCommand(nullptr, "move.reset")->setValue(nullptr, 1);
    QVERIFY(relay()->execCommand(nullptr, "move.reset")->exportToJson(true).isNull());
    delete relay()->execCommand(nullptr, "move.reset");
    QVERIFY(relay()->execCommand(nullptr, "move.reset")->isEmpty());
}

void RelayCalls::keysThatLookAlikeHaveNodesOfTheirOwn() {
    FakeLink link;
    link.reply = [](const Message& message) { return contentOf(QVariant(message.key + '|' + message.subKey)); };
    const ModuleObject* part = relay()->get(nullptr, "io.do", "lamp");
    const ModuleObject* whole = relay()->get(nullptr, "io.do.lamp");
    QCOMPARE(part->getString(), QString("io.do|lamp"));
    QCOMPARE(whole->getString(), QString("io.do.lamp|"));
    const ModuleObject* custom = relay()->execPluginCommand(nullptr, "weld", "ServiceAPI.plugin", 1);
    QVERIFY(relay()->execCommand(nullptr, "weld") != custom);
    QCOMPARE(custom->getString(), QString("weld|ServiceAPI.plugin"));
}

void RelayCalls::aReplyMayBeDeletedByWhoListensToIt() {
    FakeLink link;
    link.answerWith(contentOf(QVariant(1)));
    ModuleObject* reply = relay()->execCommand(nullptr, "fragile");
    connect(reply, &ModuleObject::changed, this, [reply] { delete reply; });
    QVERIFY(!relay()->execCommand(nullptr, "fragile"));
    QCOMPARE(relay()->execCommand(nullptr, "fragile")->getInt(), 1);
}

void RelayCalls::aNullNodeIsNotSent() {
    FakeLink link;
    relay()->set(nullptr, "io", static_cast<ModuleObject*>(nullptr));
    QCOMPARE(link.sent.size(), 0);
}

void RelayCalls::aNodeThatWasSentMayDie() {
    FakeLink link;
    {
        ModuleObject node("select");
        node.set(nullptr, "#0", "speed");
        relay()->set(nullptr, "monitor.select", &node);
    }
    QCOMPARE(link.sentAs(Verb::Set), QStringList("monitor.select||[\"speed\"]"));
}

void RelayCalls::withoutAnAnswerTheReplyIsEmpty() {
    FakeLink link;
    link.answerWith(contentOf(QVariant(1)));
    relay()->get(nullptr, "io");
    link.answers = false;
    QVERIFY(relay()->get(nullptr, "io")->isEmpty());
}

void RelayCalls::aFarSideThatAnswersNothingGivesNull() {
    const FakeLink link;
    QVERIFY(!relay()->get(nullptr, "io"));
    QVERIFY(!relay()->execCommand(nullptr, "io"));
    QVERIFY(!relay()->execPluginCommand(nullptr, "p", "s", 1));
}

void RelayCalls::manyCommandsOfOneNameUseOneNode() {
    FakeLink link;
    link.answerWith(contentOf(QVariant(1)));
    const ModuleObject* first = relay()->execCommand(nullptr, "many");
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(relay()->execCommand(nullptr, "many", i), first);
    QCOMPARE(first->getInt(), 1);
}

QTEST_GUILESS_MAIN(RelayCalls)
#include "tst_relay.moc"
