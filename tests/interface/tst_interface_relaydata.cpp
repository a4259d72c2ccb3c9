#include "links.h"

#include "brisk/traffic.h"

#include <QJsonArray>
#include <QJsonObject>

using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;
using kite::InterfaceManager;

/// One call, with its result as a variant.
using Call = std::function<QVariant(InterfaceManager&)>;
Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Verb)

namespace {

Call getting() {
    return [](InterfaceManager& robot) { return robot.getRelayData("robot.speed"); };
}
Call gettingAPart() {
    return [](InterfaceManager& robot) { return robot.getRelayData("robot.speed", "max"); };
}
Call setting() {
    return [](InterfaceManager& robot) { return robot.setRelayData("robot.speed", 250); };
}
Call settingAPart() {
    return [](InterfaceManager& robot) { return robot.setRelayData("robot.speed", "max", 250); };
}
Call commanding() {
    return [](InterfaceManager& robot) { return robot.commandRelayData("robot.move", "home"); };
}
Call executing() {
    return [](InterfaceManager& robot) { return robot.execCommandRelayData("robot.move", "home"); };
}

const QJsonObject answer{{"speed", 1.5}, {"unit", "mm/s"}};

} // namespace

class TestRelayData : public LinksTest {
    Q_OBJECT

private slots:
    void aCallIsOneMessageFromNobody_data() {
        QTest::addColumn<Call>("call");
        QTest::addColumn<Verb>("verb");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QVariant>("result");
        const QVariant json = QVariant(QJsonValue(answer));
        QTest::newRow("get") << getting() << Verb::Get << "robot.speed||null" << json;
        QTest::newRow("get a part") << gettingAPart() << Verb::Get << "robot.speed|max|null" << json;
        QTest::newRow("set") << setting() << Verb::Set << "robot.speed||250" << QVariant(true);
        QTest::newRow("set a part") << settingAPart() << Verb::Set << "robot.speed|max|250" << QVariant(true);
        QTest::newRow("command") << commanding() << Verb::Command << "robot.move||\"home\"" << QVariant(true);
        QTest::newRow("execute") << executing() << Verb::Execute << "robot.move||\"home\"" << json;
    }
    void aCallIsOneMessageFromNobody() {
        QFETCH(Call, call);
        QFETCH(Verb, verb);
        QFETCH(QString, message);
        QFETCH(QVariant, result);
        bus().answerWith(contentOf(QVariant(answer)));
        QObject context;
        QStringList senders;
        connect(Traffic::instance(), &Traffic::recorded, &context, [&senders](const TrafficEntry& entry) {
            if (entry.direction == TrafficEntry::Direction::Out)
                senders << entry.sender;
        });
        QCOMPARE(call(*kiteInterface()), result);
        QCOMPARE(bus().sent.size(), 1);
        QCOMPARE(bus().sentAs(verb), QStringList{message});
        QCOMPARE(senders, QStringList{QString()});
        QCOMPARE(controller().sent.size(), 0);
    }

    void withTheBusDownNothingIsSent_data() {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QVariant>("result");
        QTest::newRow("get") << getting() << QVariant(QJsonValue());
        QTest::newRow("get a part") << gettingAPart() << QVariant(QJsonValue());
        QTest::newRow("set") << setting() << QVariant(false);
        QTest::newRow("set a part") << settingAPart() << QVariant(false);
        QTest::newRow("command") << commanding() << QVariant(false);
        QTest::newRow("execute") << executing() << QVariant(QJsonValue(false));
    }
    void withTheBusDownNothingIsSent() {
        QFETCH(Call, call);
        QFETCH(QVariant, result);
        bus().setUp(false);
        QObject context;
        int messages = 0;
        connect(Traffic::instance(), &Traffic::recorded, &context, [&messages] { ++messages; });
        QCOMPARE(call(*kiteInterface()), result);
        QCOMPARE(messages, 0);
    }

    void aDownBusIsFalseToACommandAndNullToAQuestion() {
        bus().setUp(false);
        QCOMPARE(kiteInterface()->execCommandRelayData("robot.move", "home").type(), QJsonValue::Bool);
        QCOMPARE(kiteInterface()->getRelayData("robot.speed").type(), QJsonValue::Null);
        QCOMPARE(kiteInterface()->getRelayData("robot.speed", "max").type(), QJsonValue::Null);
    }

    void theBusIsAskedAlsoWithTheControllerDown() {
        controller().setUp(false);
        bus().answerWith(contentOf(QVariant(7)));
        QCOMPARE(kiteInterface()->getRelayData("robot.speed"), QJsonValue(7));
    }

    void theAnswerComesAsTheJsonOfItsNode_data() {
        QTest::addColumn<Content>("content");
        QTest::addColumn<QJsonValue>("json");
        QTest::newRow("nothing at all") << Content() << QJsonValue();
        QTest::newRow("empty") << contentOf(QVariant()) << QJsonValue();
        QTest::newRow("a number") << contentOf(QVariant(-1.5)) << QJsonValue(-1.5);
        QTest::newRow("a whole number") << contentOf(QVariant(7)) << QJsonValue(7);
        QTest::newRow("true") << contentOf(QVariant(true)) << QJsonValue(true);
        QTest::newRow("false") << contentOf(QVariant(false)) << QJsonValue(false);
        QTest::newRow("a text") << contentOf(QVariant("grün")) << QJsonValue("grün");
        QTest::newRow("an empty text") << contentOf(QVariant("")) << QJsonValue("");
        QTest::newRow("an empty list") << contentOf(QVariant(QJsonArray())) << QJsonValue(QJsonArray());
        QTest::newRow("a list") << contentOf(QVariant(QJsonArray{1, "a"})) << QJsonValue(QJsonArray{1, "a"});
        QTest::newRow("an object") << contentOf(QVariant(answer)) << QJsonValue(answer);
        QTest::newRow("an empty object") << contentOf(QVariant(QJsonObject())) << QJsonValue();
        QTest::newRow("a refusal") << brisk::standin::refusal("no") << QJsonValue(QJsonObject{{"error", "no"}});
    }
    void theAnswerComesAsTheJsonOfItsNode() {
        QFETCH(Content, content);
        QFETCH(QJsonValue, json);
        bus().answerWith(content);
        QCOMPARE(kiteInterface()->getRelayData("robot.speed"), json);
        QCOMPARE(kiteInterface()->getRelayData("robot.speed", "max"), json);
        QCOMPARE(kiteInterface()->execCommandRelayData("robot.move", "home"), json);
    }

    void aBusThatNeverAnswersGivesNull() {
        bus().answers = false;
        QCOMPARE(kiteInterface()->getRelayData("robot.speed"), QJsonValue());
        QCOMPARE(kiteInterface()->getRelayData("robot.speed", "max"), QJsonValue());
        QCOMPARE(kiteInterface()->execCommandRelayData("robot.move", "home"), QJsonValue());
    }

    void anAnswerIsNotMixedWithTheOneBefore() {
        bus().answerWith(contentOf(QVariant(answer)));
        kiteInterface()->execCommandRelayData("robot.move", "home");
        bus().answerWith(contentOf(QVariant(QJsonObject{{"done", true}})));
        const QJsonValue second = kiteInterface()->execCommandRelayData("robot.move", "home");
        QCOMPARE(second, QJsonValue(QJsonObject{{"done", true}}));
    }

    void aValueOfAnyKindIsSent_data() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("json");
        QTest::newRow("nothing") << QVariant() << "null";
        QTest::newRow("a number") << QVariant(0.25) << "0.25";
        QTest::newRow("a text") << QVariant("a\"b") << "\"a\\\"b\"";
        QTest::newRow("an object") << QVariant(QJsonObject{{"a", 1}}) << "{\"a\":1}";
        QTest::newRow("a list") << QVariant(QJsonArray{1, 2}) << "[1,2]";
    }
    void aValueOfAnyKindIsSent() {
        QFETCH(QVariant, value);
        QFETCH(QString, json);
        QVERIFY(kiteInterface()->setRelayData("a", value));
        QVERIFY(kiteInterface()->setRelayData("a", "b", value));
        QVERIFY(kiteInterface()->commandRelayData("c", value));
        kiteInterface()->execCommandRelayData("d", value);
        QCOMPARE(bus().sentAs(Verb::Set), QStringList({"a||" + json, "a|b|" + json}));
        QCOMPARE(bus().sentAs(Verb::Command), QStringList{"c||" + json});
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{"d||" + json});
    }

    void anEmptyKeyIsSentToo() {
        kiteInterface()->getRelayData("");
        kiteInterface()->getRelayData("", "");
        QVERIFY(kiteInterface()->setRelayData("", "", 1));
        QCOMPARE(bus().sentAs(Verb::Get), QStringList({"||null", "||null"}));
        QCOMPARE(bus().sentAs(Verb::Set), QStringList{"||1"});
    }
};

QTEST_GUILESS_MAIN(TestRelayData)
#include "tst_interface_relaydata.moc"
