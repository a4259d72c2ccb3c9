#include "controller/virtualcontroller.h"

#include "contents.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <stdexcept>

Q_DECLARE_METATYPE(controller::Message)

using controller::Content;
using controller::Message;
using controller::Verb;
using controller::VirtualController;

namespace {

Message message(Verb verb, const QString& key, const QString& subKey = QString(), const Content& sent = nullptr) {
    Message made;
    made.verb = verb;
    made.key = key;
    made.subKey = subKey;
    made.content = sent;
    return made;
}

} // namespace

class TestVirtualController : public QObject {
    Q_OBJECT

private slots:
    void theUptimeCountsTheSecondsOfTheClock() {
        VirtualController controller;
        QStringList delivered;
        connect(&controller, &VirtualController::delivered, this,
                [&](const QString& key, const Content& value) { delivered << key + '=' + text(value); });
        controller.handle(message(Verb::Watch, "controller.uptime"));
        QCOMPARE(text(controller.handle(message(Verb::Get, "controller.uptime"))), QString("0"));
        controller.clock()->step(999);
        QCOMPARE(delivered, QStringList());
        controller.clock()->step(1);
        controller.clock()->step(2500);
        QCOMPARE(delivered, (QStringList{"controller.uptime=1", "controller.uptime=2", "controller.uptime=3"}));
        QCOMPARE(text(controller.handle(message(Verb::Get, "controller.uptime"))), QString("3"));
    }

    void everyVerbReachesItsTable() {
        VirtualController controller;
        controller.bus()->define("io", QJsonObject{{"lamp", false}});
        controller.bus()->onCommand("open", [](const Content&) { return content("1"); });
        controller.requests()->onRequest("open", [](const Content&) { return content("2"); });
        QVERIFY(!controller.handle(message(Verb::Set, "io", "lamp", content("true"))));
        QCOMPARE(text(controller.handle(message(Verb::Get, "io"))), QString("{\"lamp\":true}"));
        QCOMPARE(text(controller.handle(message(Verb::Get, "io", "lamp"))), QString("true"));
        QCOMPARE(text(controller.handle(message(Verb::Command, "open"))), QString("1"));
        QCOMPARE(text(controller.handle(message(Verb::Execute, "open"))), QString("1"));
        QCOMPARE(text(controller.handle(message(Verb::Request, "open"))), QString("2"));
        QCOMPARE(text(controller.handle(message(Verb::Execute, "open", "ServiceAPI.plugin", content("[3]")))),
                 QString("{\"data\":[3]}"));
    }

    void whoAsksIsWhoWatches() {
        VirtualController controller;
        controller.handle(message(Verb::Watch, "controller.uptime"), this);
        QVERIFY(controller.bus()->isWatched("controller.uptime", this));
        QVERIFY(!controller.bus()->isWatched("controller.uptime", nullptr));
        controller.handle(message(Verb::Unwatch, "controller.uptime"), this);
        QVERIFY(!controller.bus()->isWatched("controller.uptime"));
    }

    void everyTableTellsWhatIsUnknown_data() {
        QTest::addColumn<Message>("asked");
        QTest::newRow("get") << message(Verb::Get, "x.y");
        QTest::newRow("set") << message(Verb::Set, "x.y", QString(), content("1"));
        QTest::newRow("command") << message(Verb::Command, "x.y");
        QTest::newRow("execute") << message(Verb::Execute, "x.y");
        QTest::newRow("plugin command") << message(Verb::Execute, "weld", "x.y", content("[1]"));
        QTest::newRow("request") << message(Verb::Request, "x.y");
    }

    void everyTableTellsWhatIsUnknown() {
        QFETCH(Message, asked);
        VirtualController controller;
        QSignalSpy noticed(&controller, &VirtualController::noticed);
        const QString reason = refusalOf(controller.handle(asked));
        QVERIFY2(reason.contains("\"x.y\""), qPrintable(reason));
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toString(), reason);
    }

    void aSentenceIsHandedOutOnce() {
        VirtualController controller;
        QVERIFY(!controller.wasHandedOut("x"));
        QVERIFY(controller.handOutOnce("x"));
        QVERIFY(controller.wasHandedOut("x"));
        QVERIFY(!controller.handOutOnce("x"));
        QVERIFY(controller.handOutOnce("y"));
    }

    void theAskerIsTheInnermost() {
        VirtualController controller;
        QObject inner;
        QList<const QObject*> askers;
        controller.requests()->onRequest("inner", [&](const Content&) {
            askers << controller.asker();
            return nullptr;
        });
        controller.bus()->onCommand("outer", [&](const Content&) {
            controller.handle(message(Verb::Request, "inner"), &inner);
            askers << controller.asker();
            return nullptr;
        });
        controller.handle(message(Verb::Command, "outer"), this);
        QCOMPARE(askers, (QList<const QObject*>{&inner, this}));
        QVERIFY(!controller.asker());
    }

    void aHandlerThatThrowsLeavesNoAsker() {
        VirtualController controller;
        controller.bus()->onCommand("open", [](const Content&) -> Content { throw std::runtime_error("jammed"); });
        QVERIFY_EXCEPTION_THROWN(controller.handle(message(Verb::Command, "open"), this), std::runtime_error);
        QVERIFY(!controller.asker());
    }
};

QTEST_GUILESS_MAIN(TestVirtualController)
#include "tst_virtualcontroller.moc"
