#include "links.h"

#include "brisk/traffic.h"

#include <QJsonArray>
#include <QJsonObject>

using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;
using kite::InterfaceManager;

using Call = std::function<QJsonArray(InterfaceManager&, QObject*)>;
Q_DECLARE_METATYPE(Call)

class TestCustomData : public LinksTest {
    Q_OBJECT

private slots:
    void eachFormWrapsItsInput_data() {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QString>("sent");
        const QJsonObject object{{"a", 1}, {"b", QJsonArray{true}}};
        const auto row = [](const char* name, const Call& call, const char* sent) {
            QTest::newRow(name) << call << sent;
        };
        row(
            "group and key", [](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, "g", "k"); },
            R"([{"g":{"k":""}}])");
        row(
            "group, key and value",
            [](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, "g", "k", "v"); },
            R"([{"g":{"k":"v"}}])");
        row(
            "a value that looks like a number",
            [](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, "g", "k", "1"); },
            R"([{"g":{"k":"1"}}])");
        row(
            "a null value",
            [](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, "g", "k", QString()); },
            R"([{"g":{"k":""}}])");
        row(
            "group and object",
            [object](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, "g", object); },
            R"([{"g":{"a":1,"b":[true]}}])");
        row(
            "object", [object](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, object); },
            R"([{"a":1,"b":[true]}])");
        row(
            "array",
            [](InterfaceManager& robot, QObject* s) {
                return robot.commandCustomData(s, QJsonArray{1, "a"});
            },
            R"([1,"a"])");
        row(
            "empty array", [](InterfaceManager& robot, QObject* s) { return robot.commandCustomData(s, QJsonArray()); },
            "[]");
    }
    void eachFormWrapsItsInput() {
        QFETCH(Call, call);
        QFETCH(QString, sent);
        QObject sender;
        sender.setObjectName("weld page");
        QObject context;
        QStringList senders;
        connect(Traffic::instance(), &Traffic::recorded, &context, [&senders](const TrafficEntry& entry) {
            if (entry.direction == TrafficEntry::Direction::Out)
                senders << entry.sender;
        });
        bus().answerWith(contentOf(QVariant(QJsonObject{{"data", QJsonArray{"done"}}})));
        QCOMPARE(call(*kiteInterface(), &sender), QJsonArray{"done"});
        QCOMPARE(call(*kiteInterface(), nullptr), QJsonArray{"done"});
        QCOMPARE(senders, QStringList({"weld page", ""}));

        QCOMPARE(bus().sent.size(), 2);
        for (const QString& message : bus().sentAs(Verb::Execute)) {
            QVERIFY2(message.startsWith("ServiceAPI.plugin_"), qPrintable(message));
            QCOMPARE(message.section('|', 1), "ServiceAPI.plugin|" + sent);
        }
    }

    void theAnswerIsTheArrayUnderData_data() {
        QTest::addColumn<Content>("content");
        QTest::addColumn<QJsonArray>("result");
        const auto data = [](const QJsonValue& value) { return contentOf(QVariant(QJsonObject{{"data", value}})); };
        QTest::newRow("an array") << data(QJsonArray{1, QJsonObject{{"a", "b"}}})
                                  << QJsonArray{1, QJsonObject{{"a", "b"}}};
        QTest::newRow("an empty array") << data(QJsonArray()) << QJsonArray();
        QTest::newRow("an object") << data(QJsonObject{{"a", 1}}) << QJsonArray();
        QTest::newRow("a text") << data("text") << QJsonArray();
        QTest::newRow("a number") << data(-1) << QJsonArray();
        QTest::newRow("null") << data(QJsonValue()) << QJsonArray();
        QTest::newRow("no data") << contentOf(QVariant(QJsonObject{{"date", QJsonArray{1}}})) << QJsonArray();
        QTest::newRow("an array itself") << contentOf(QVariant(QJsonArray{1})) << QJsonArray();
        QTest::newRow("empty") << contentOf(QVariant()) << QJsonArray();
        QTest::newRow("nothing at all") << Content() << QJsonArray();
        QTest::newRow("a refusal") << brisk::standin::refusal("no") << QJsonArray();
    }
    void theAnswerIsTheArrayUnderData() {
        QFETCH(Content, content);
        QFETCH(QJsonArray, result);
        bus().answerWith(content);
        QCOMPARE(kiteInterface()->commandCustomData(nullptr, QJsonArray{1}), result);
    }

    void withoutAnAnswerTheResultIsEmpty() {
        bus().answers = false;
        QCOMPARE(kiteInterface()->commandCustomData(nullptr, "g", "k"), QJsonArray());
        QCOMPARE(bus().sent.size(), 1);
    }

    void theLinkIsNotAskedFor() {
        bus().setUp(false);
        QObject context;
        QStringList kinds;
        connect(Traffic::instance(), &Traffic::recorded, &context,
                [&kinds](const TrafficEntry& entry) { kinds << entry.kind; });
        QCOMPARE(kiteInterface()->commandCustomData(nullptr, "g", "k"), QJsonArray());
        QCOMPARE(kinds, QStringList{"execute"});
    }
};

QTEST_GUILESS_MAIN(TestCustomData)
#include "tst_interface_customdata.moc"
