#include "brisk/buslink.h"
#include "brisk/relay.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>

using brisk::ModuleObject;

namespace {

class FakeLink : public brisk::standin::BusLink {
public:
    ModuleObject* get(const QString& key, const QString& subKey) override {
        asked << key + '|' + subKey;
        return answer;
    }

    QStringList asked;
    ModuleObject* answer = nullptr;
};

} // namespace

class LinkDown : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void thereIsOneBus();
    void connectedIsThereAndFalse();
    void everyAnswerIsAnEmptyNode();
    void aReplyNodeIsUsedAgainByItsCommand();
    void aUsedReplyNodeComesBackEmpty();
    void sendingAndWatchingDoNothing();
    void aKeyHasOneWatchNodeForLife();
    void getAsksTheLinkBehindTheBus();
    void aNullAnswerIsHandedOn();
};

void LinkDown::cleanup() {
    brisk::standin::setBusLink(nullptr);
}

void LinkDown::thereIsOneBus() {
    QVERIFY(relay());
    QCOMPARE(relay(), relay());
}

void LinkDown::connectedIsThereAndFalse() {
    const Relay fresh;
    ModuleObject* connected = fresh.mobj()->c("connected");
    QVERIFY(connected);
    QCOMPARE(connected->value(), QVariant(false));
    QCOMPARE(fresh.mobj()->r("connected"), connected);
}

void LinkDown::everyAnswerIsAnEmptyNode() {
    ModuleObject request("request");
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

void LinkDown::aReplyNodeIsUsedAgainByItsCommand() {
    ModuleObject* reply = relay()->execCommand(nullptr, "move.reset");
    QCOMPARE(relay()->execCommand(nullptr, "move.reset", 1), reply);
    QVERIFY(relay()->execCommand(nullptr, "move.stop") != reply);
    QCOMPARE(relay()->get(nullptr, "monitor.pers", ""), relay()->get(nullptr, "monitor.pers"));
    QVERIFY(relay()->get(nullptr, "monitor", "pers") != relay()->get(nullptr, "monitor", "select"));
}

void LinkDown::aUsedReplyNodeComesBackEmpty() {
    relay()->execCommand(nullptr, "move.reset")->setList(nullptr, {1, QVariant()});
    relay()->execCommand(nullptr, "move.reset")->setValue(nullptr, 1);
    QVERIFY(relay()->execCommand(nullptr, "move.reset")->exportToJson(true).isNull());
    delete relay()->execCommand(nullptr, "move.reset");
    QVERIFY(relay()->execCommand(nullptr, "move.reset")->isEmpty());
}

void LinkDown::sendingAndWatchingDoNothing() {
    QSignalSpy changed(relay()->watchNode("io"), &ModuleObject::changed);
    ModuleObject node("node");
    relay()->watch(nullptr, "io", true);
    relay()->set(nullptr, "io", "a", 1);
    relay()->set(nullptr, "io", &node);
    relay()->command(nullptr, "io");
    relay()->command(nullptr, "io", 1);
    relay()->command(nullptr, "io", &node);
    relay()->watch(nullptr, "io", false);
    QCOMPARE(changed.size(), 0);
    QVERIFY(node.isEmpty());
}

void LinkDown::aKeyHasOneWatchNodeForLife() {
    ModuleObject* node = relay()->watchNode("io");
    QVERIFY(node);
    QCOMPARE(relay()->watchNode("io"), node);
    QVERIFY(relay()->watchNode("io.di") != node);
    QVERIFY(relay()->execCommand(nullptr, "io") != node);
}

void LinkDown::getAsksTheLinkBehindTheBus() {
    FakeLink link;
    ModuleObject answer("answer");
    link.answer = &answer;
    brisk::standin::setBusLink(&link);
    QCOMPARE(relay()->get(nullptr, "monitor.pers"), &answer);
    QCOMPARE(relay()->get(nullptr, "a", "b"), &answer);
    QCOMPARE(link.asked, (QStringList{"monitor.pers|", "a|b"}));
    brisk::standin::setBusLink(nullptr);
    QVERIFY(relay()->get(nullptr, "monitor.pers") != &answer);
}

void LinkDown::aNullAnswerIsHandedOn() {
    FakeLink link;
    brisk::standin::setBusLink(&link);
    QVERIFY(!relay()->get(nullptr, "monitor.pers"));
}

QTEST_APPLESS_MAIN(LinkDown)
#include "tst_relay.moc"
