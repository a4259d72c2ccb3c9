#include "controller/bustable.h"

#include "contents.h"

#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using controller::BusTable;
using controller::Content;

namespace {

/// What a table tells, as "key=value".
class Told : public QObject {
public:
    explicit Told(BusTable* table) {
        connect(table, &BusTable::delivered, this,
                [this](const QString& key, const Content& value) { delivered << key + '=' + text(value); });
        connect(table, &BusTable::noticed, this, [this](const QString& line) { noticed << line; });
    }

    QStringList delivered;
    QStringList noticed;
};

Content numbered(int count) {
    Content list = content("[]");
    for (int i = 0; i < count; ++i)
        list->append(nullptr, brisk::ModuleObject::generateId(list.get()))->setValue(nullptr, i);
    return list;
}

} // namespace

class TestBusTable : public QObject {
    Q_OBJECT

private slots:
    void init() {
        table.reset(new BusTable);
        told.reset(new Told(table.get()));
    }

    void cleanup() {
        told.reset();
        table.reset();
    }

    void getGivesTheStartValue_data() {
        QTest::addColumn<QVariant>("start");
        QTest::addColumn<QString>("json");
        QTest::newRow("number") << QVariant(7) << "7";
        QTest::newRow("fraction") << QVariant(0.5) << "0.5";
        QTest::newRow("bool") << QVariant(false) << "false";
        QTest::newRow("text") << QVariant("go") << "\"go\"";
        QTest::newRow("object") << QVariant(QJsonObject{{"lamp", true}}) << "{\"lamp\":true}";
        QTest::newRow("array") << QVariant(QJsonArray{1, 2}) << "[1,2]";
        QTest::newRow("empty array") << QVariant(QJsonArray()) << "[]";
        QTest::newRow("nothing") << QVariant() << "null";
    }

    void getGivesTheStartValue() {
        QFETCH(QVariant, start);
        QFETCH(QString, json);
        table->define("key", start);
        QCOMPARE(text(table->get("key", "")), json);
        QVERIFY(table->hasValue("key"));
        QCOMPARE(told->noticed, QStringList());
    }

    void getWithASubKeyGivesThatPart() {
        table->define("io", QJsonObject{{"di", QJsonObject{{"door", true}}}, {"ai", QJsonArray{1.5, 2.5}}});
        QCOMPARE(text(table->get("io", "di")), QString("{\"door\":true}"));
        QCOMPARE(text(table->get("io", "di.door")), QString("true"));
        QCOMPARE(text(table->get("io", "ai.#1")), QString("2.5"));
    }

    void whatIsGivenOutIsACopy() {
        table->define("key", 1);
        table->get("key", "")->setValue(nullptr, 2);
        table->value("key")->setValue(nullptr, 3);
        QCOMPARE(text(table->get("key", "")), QString("1"));
    }

    void whatComesInIsCopied() {
        const Content sent = content("{\"a\":1}");
        table->defineContent("key", sent);
        sent->set(nullptr, "a", 2);
        QCOMPARE(text(table->get("key", "")), QString("{\"a\":1}"));
        QVERIFY(!table->set("key", "", sent));
        sent->set(nullptr, "a", 3);
        QCOMPARE(text(table->get("key", "")), QString("{\"a\":2}"));
    }

    void setReplacesTheWhole() {
        table->define("key", QJsonObject{{"old", 1}});
        QVERIFY(!table->set("key", "", content("{\"new\":[2]}")));
        QCOMPARE(text(table->get("key", "")), QString("{\"new\":[2]}"));
        QVERIFY(!table->set("key", "", content("5")));
        QCOMPARE(text(table->get("key", "")), QString("5"));
        QVERIFY(!table->set("key", "", nullptr));
        QCOMPARE(text(table->get("key", "")), QString("null"));
    }

    void setWithASubKeyReplacesThatPart_data() {
        QTest::addColumn<QString>("subKey");
        QTest::addColumn<QString>("json");
        QTest::newRow("present") << "lamp"
                                 << R"({"ai":[1,2],"lamp":9})";
        QTest::newRow("new") << "fan"
                             << R"({"ai":[1,2],"fan":9,"lamp":false})";
        QTest::newRow("new path") << "fan.speed"
                                  << R"({"ai":[1,2],"fan":{"speed":9},"lamp":false})";
        QTest::newRow("item") << "ai.#1"
                              << R"({"ai":[1,9],"lamp":false})";
        QTest::newRow("next item") << "ai.#2"
                                   << R"({"ai":[1,2,9],"lamp":false})";
    }

    void setWithASubKeyReplacesThatPart() {
        QFETCH(QString, subKey);
        QFETCH(QString, json);
        table->define("io", QJsonObject{{"lamp", false}, {"ai", QJsonArray{1, 2}}});
        QVERIFY(!table->set("io", subKey, content("9")));
        QCOMPARE(text(table->get("io", "")), json);
    }

    void anItemPastTheNextOneIsRefused() {
        table->define("list", QJsonArray{1, 2});
        table->watch(this, "list", true);
        const QString reason = refusalOf(table->set("list", "#3", content("9")));
        QVERIFY2(reason.contains("\"list\"") && reason.contains("\"#3\""), qPrintable(reason));
        QCOMPARE(told->noticed, QStringList(reason));
        QCOMPARE(told->delivered, QStringList());
        QCOMPARE(text(table->get("list", "")), QString("[1,2]"));
    }

    void aListIsMadeByItsFirstItemOnly_data() {
        QTest::addColumn<QString>("subKey");
        QTest::addColumn<QString>("json");
        QTest::newRow("first of a new one") << "new.#0"
                                            << R"({"empty":[],"new":[9],"old":[1]})";
        QTest::newRow("third of a new one") << "new.#3"
                                            << "";
        QTest::newRow("below it") << "new.#3.a"
                                  << "";
        QTest::newRow("third of one in a new one") << "new.#0.#3"
                                                   << "";
        QTest::newRow("third of an empty one") << "empty.#3"
                                               << "";
        QTest::newRow("past the end, and below") << "old.#2.a"
                                                 << "";
    }

    void aListIsMadeByItsFirstItemOnly() {
        QFETCH(QString, subKey);
        QFETCH(QString, json);
        const QJsonObject start{{"empty", QJsonArray()}, {"old", QJsonArray{1}}};
        table->define("io", start);
        QCOMPARE(refusalOf(table->set("io", subKey, content("9"))).isEmpty(), !json.isEmpty());
        QCOMPARE(text(table->get("io", "")), json.isEmpty() ? QString(R"({"empty":[],"old":[1]})") : json);
    }

    void aNumberedChildOfWhatIsNoListIsAName() {
        table->define("io", QJsonObject{{"lamp", 1}});
        QVERIFY(!table->set("io", "#3", content("9")));
        QCOMPARE(text(table->get("io", "#3")), QString("9"));
    }

    void theOrderOfChildrenIsKept() {
        table->defineContent("list", numbered(12));
        QCOMPARE(childNames(table->get("list", "")), QString("#0 #1 #2 #3 #4 #5 #6 #7 #8 #9 #10 #11"));
        const Content sent = content("null");
        for (const char* name : {"z", "#10", "#2", "a"})
            sent->append(nullptr, name)->setValue(nullptr, 1);
        table->define("free", QVariant());
        table->set("free", "", sent);
        QCOMPARE(childNames(table->get("free", "")), QString("z #10 #2 a"));
        table->set("free", "#2", content("5"));
        QCOMPARE(childNames(table->get("free", "")), QString("z #10 #2 a"));
    }

    void everyWriteOfAWatchedKeyIsDelivered() {
        table->define("io", QJsonObject{{"lamp", false}, {"fan", 1}});
        table->watch(this, "io", true);
        QCOMPARE(told->delivered, QStringList());
        table->set("io", "lamp", content("true"));
        table->set("io", "lamp", content("true"));
        table->write("io", QJsonObject{{"lamp", false}});
        QCOMPARE(told->delivered,
                 (QStringList{R"(io={"fan":1,"lamp":true})", R"(io={"fan":1,"lamp":true})", R"(io={"lamp":false})"}));
    }

    void whatNobodyWatchesIsNotDelivered() {
        QObject other;
        table->define("a", 1);
        table->define("b", 1);
        table->watch(this, "a", true);
        table->watch(&other, "a", true);
        table->write("b", 2);
        QCOMPARE(told->delivered, QStringList());
        table->watch(this, "a", false);
        QVERIFY(table->isWatched("a"));
        QVERIFY(!table->isWatched("a", this));
        QVERIFY(table->isWatched("a", &other));
        table->write("a", 2);
        QCOMPARE(told->delivered, QStringList("a=2"));
        table->forgetWatches(&other);
        table->write("a", 3);
        QVERIFY(!table->isWatched("a"));
        QCOMPARE(told->delivered, QStringList("a=2"));
    }

    void watchingTwiceIsWatchingOnce() {
        table->define("a", 1);
        table->watch(nullptr, "a", true);
        table->watch(nullptr, "a", true);
        table->write("a", 2);
        QCOMPARE(told->delivered, QStringList("a=2"));
        table->watch(nullptr, "a", false);
        QVERIFY(!table->isWatched("a"));
        table->watch(nullptr, "a", false);
    }

    void everyWriteIsToldInside() {
        QSignalSpy written(table.get(), &BusTable::written);
        table->define("a", 1);
        table->set("a", "", content("1"));
        QCOMPARE(written.size(), 2);
        QVERIFY(!table->write("b", 1));
        QCOMPARE(written.size(), 2);
    }

    void aKeyDefinedAnewStartsAnewAndIsDelivered() {
        table->define("a", 1);
        table->onSet("a", [](const QString&, const Content&) { return QString("No."); });
        table->watch(this, "a", true);
        table->define("a", 2);
        QCOMPARE(told->delivered, QStringList("a=2"));
        QVERIFY(!table->set("a", "", content("3")));
    }

    void anUnknownKeyIsNamedInAnswerAndNotice_data() {
        QTest::addColumn<QString>("what");
        QTest::newRow("get") << "get";
        QTest::newRow("set") << "set";
        QTest::newRow("command") << "command";
        QTest::newRow("watch") << "watch";
    }

    void anUnknownKeyIsNamedInAnswerAndNotice() {
        QFETCH(QString, what);
        Content answer;
        if (what == "get")
            answer = table->get("x.y", "");
        else if (what == "set")
            answer = table->set("x.y", "", content("1"));
        else if (what == "command")
            answer = table->command("x.y", nullptr);
        else
            table->watch(this, "x.y", true);
        QCOMPARE(told->noticed.size(), 1);
        QVERIFY2(told->noticed.first().contains("\"x.y\""), qPrintable(told->noticed.first()));
        QVERIFY2(told->noticed.first().contains("cell file"), qPrintable(told->noticed.first()));
        QVERIFY(!table->hasValue("x.y"));
        if (what != "watch")
            QCOMPARE(refusalOf(answer), told->noticed.first());
    }

    void aKnownKeyAboveTheUnknownOneIsPointedOut() {
        table->define("io.do", QJsonObject{{"lamp", false}});
        const QString reason = refusalOf(table->get("io.do.lamp.left", ""));
        QVERIFY2(reason.contains("\"io.do\"") && reason.contains("\"lamp.left\""), qPrintable(reason));
        QVERIFY(!refusalOf(table->get("io.d", "")).contains("io.do"));
    }

    void aMissingPartIsNamed() {
        table->define("io.do", QJsonObject{{"lamp", false}});
        const QString reason = refusalOf(table->get("io.do", "fan"));
        QVERIFY2(reason.contains("\"io.do\"") && reason.contains("\"fan\""), qPrintable(reason));
        QCOMPARE(told->noticed, QStringList(reason));
    }

    void aKeyThatIsUnknownWhenWatchedIsDeliveredOnceItIsDefined() {
        table->watch(this, "late", true);
        QCOMPARE(told->noticed.size(), 1);
        table->define("late", 1);
        table->write("late", 2);
        QCOMPARE(told->delivered, (QStringList{"late=1", "late=2"}));
    }

    void aCommandIsCarriedOut() {
        QStringList sent;
        table->onCommand("gripper.open", [&](const Content& what) {
            sent << text(what);
            return content("{\"ok\":true}");
        });
        QVERIFY(table->hasCommand("gripper.open"));
        QCOMPARE(text(table->command("gripper.open", content("{\"width\":5}"))), QString("{\"ok\":true}"));
        QCOMPARE(text(table->command("gripper.open", nullptr)), QString("{\"ok\":true}"));
        QCOMPARE(sent, (QStringList{"{\"width\":5}", "null"}));
        QCOMPARE(told->noticed, QStringList());
    }

    void aCommandMayWriteKeys() {
        table->define("io.do", QJsonObject{{"gripper", false}});
        table->watch(this, "io.do", true);
        table->onCommand("gripper.open", [&](const Content&) {
            table->write("io.do", "gripper", content("true"));
            return nullptr;
        });
        QVERIFY(!table->command("gripper.open", nullptr));
        QCOMPARE(told->delivered, QStringList("io.do={\"gripper\":true}"));
    }

    void aHandlerMayTakeItselfAway() {
        const Content answer = content("1");
        table->onCommand("once", [&, answer](const Content&) {
            table->onCommand("once", nullptr);
            return answer;
        });
        QCOMPARE(text(table->command("once", nullptr)), QString("1"));
        QVERIFY(!refusalOf(table->command("once", nullptr)).isEmpty());
        QVERIFY(!table->hasCommand("once"));
    }

    void aKeyMayHaveAValueAndACommand() {
        table->define("gripper", "shut");
        table->onCommand("gripper", [](const Content& what) { return what; });
        QCOMPARE(text(table->get("gripper", "")), QString("\"shut\""));
        QCOMPARE(text(table->command("gripper", content("2"))), QString("2"));
    }

    void aKeyThatIsOnlyACommandHasNoValue() {
        table->onCommand("gripper.open", [](const Content& what) { return what; });
        const QString reason = refusalOf(table->get("gripper.open", ""));
        QVERIFY2(reason.contains("\"gripper.open\" is a command"), qPrintable(reason));
        QCOMPARE(told->noticed, QStringList(reason));
    }

    void aKeyThatIsOnlyAValueIsNoCommand() {
        table->define("a", 1);
        const QString reason = refusalOf(table->command("a", nullptr));
        QVERIFY2(reason.contains("no bus command \"a\""), qPrintable(reason));
    }

    void aCheckMayRefuseWhatIsSet() {
        table->define("speed", QJsonObject{{"percent", 10}});
        table->watch(this, "speed", true);
        table->onSet("speed", [](const QString& subKey, const Content& sent) {
            return subKey == "percent" && sent->getInt() > 100 ? QString("Too fast.") : QString();
        });
        QCOMPARE(refusalOf(table->set("speed", "percent", content("101"))), QString("Too fast."));
        QCOMPARE(told->noticed, QStringList("Too fast."));
        QCOMPARE(told->delivered, QStringList());
        QVERIFY(!table->set("speed", "percent", content("100")));
        QVERIFY(table->write("speed", "percent", content("101")));
        QCOMPARE(text(table->get("speed", "percent")), QString("101"));
        table->onSet("speed", nullptr);
        QVERIFY(!table->set("speed", "percent", content("102")));
    }

    void aComputedKeyHasWhatItsSourceSays() {
        int asked = 0;
        table->defineComputed("count",
                              [&] { return controller::copied(brisk::standin::contentOf(QVariant(++asked))); });
        QVERIFY(table->hasValue("count"));
        QCOMPARE(text(table->get("count", "")), QString("1"));
        QCOMPARE(text(table->value("count")), QString("2"));
        table->watch(this, "count", true);
        QCOMPARE(told->delivered, QStringList());
        table->tell("count");
        QCOMPARE(told->delivered, QStringList("count=3"));
        QVERIFY(!table->write("count", 9));
    }

    void aComputedKeyIsReadBelowToo() {
        table->defineComputed("frame", [] { return content(R"({"tool": "torch"})"); });
        QCOMPARE(text(table->get("frame", "tool")), QString("\"torch\""));
        QVERIFY(!refusalOf(table->get("frame", "wobj")).isEmpty());
        const QString hint = refusalOf(table->get("frame.tool", ""));
        QVERIFY2(hint.contains("with the sub-key \"tool\""), qPrintable(hint));
    }

    void aComputedKeyIsSetByWhatStoresIt() {
        QString stored;
        table->defineComputed(
            "frame", [&] { return brisk::standin::contentOf(QVariant(stored)); },
            [&](const QString& subKey, const Content& sent) {
                stored = subKey + '=' + sent->getString();
                return sent->getString().isEmpty() ? QString("Name it.") : QString();
            });
        table->watch(this, "frame", true);
        QVERIFY(!table->set("frame", "tool", content("\"torch\"")));
        QCOMPARE(told->delivered, QStringList("frame=\"tool=torch\""));
        QCOMPARE(refusalOf(table->set("frame", "", content("\"\""))), QString("Name it."));
        QCOMPARE(told->delivered.size(), 1);
    }

    void aComputedKeyWithoutAStoreCannotBeSet() {
        table->defineComputed("axes", [] { return content("[1]"); });
        QCOMPARE(refusalOf(table->set("axes", "", content("2"))), QString("The bus key \"axes\" cannot be set."));
        table->define("axes", 3);
        QVERIFY(!table->set("axes", "", content("4")));
        QCOMPARE(text(table->get("axes", "")), QString("4"));
        table->defineComputed("axes", [] { return content("[1]"); });
        QCOMPARE(text(table->get("axes", "")), QString("[1]"));
    }

    void aRefusalIsToldToo() {
        QCOMPARE(refusalOf(table->refused("Too fast.")), QString("Too fast."));
        QCOMPARE(told->noticed, QStringList("Too fast."));
    }

private:
    std::unique_ptr<BusTable> table;
    std::unique_ptr<Told> told;
};

QTEST_GUILESS_MAIN(TestBusTable)
#include "tst_bustable.moc"
