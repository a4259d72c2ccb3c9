#include "project.h"

namespace {

QString removal(const QStringList& names) {
    QStringList quoted;
    for (const QString& name : names)
        quoted << "\"" + name + "\"";
    return QString(R"(project.variable||{"operator":"remove","variables":[%1]})").arg(quoted.join(","));
}

} // namespace

class TestVariablesDelete : public ProjectTest {
    Q_OBJECT

private slots:
    void init() {
        beginProject();
        bus().answerWith(contentOf(QVariant(0)));
    }

    void allNamesAreSentOncePerMatch_data() {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("deleted");
        QTest::addColumn<QStringList>("sent");
        QTest::addColumn<QStringList>("asked");
        const auto row = [](const char* name, const QStringList& present, const QStringList& deleted,
                            const QStringList& sent,
                            const QStringList& asked) { QTest::newRow(name) << present << deleted << sent << asked; };
        row("one", {"a", "b"}, {"b"}, {"b"}, {"#1.name"});
        row("two", {"a", "b", "c"}, {"c", "a"}, {"c", "a", "c", "a"}, {"#2.name", "#0.name"});
        row("one of two is there", {"a"}, {"b", "a"}, {"b", "a"}, {"#0.name"});
        row("none is there", {"a"}, {"b", "c"}, {}, {});
        row("nothing is named", {"a"}, {}, {}, {});
        row("nothing is there", {}, {"a"}, {}, {});
        row("another case", {"a"}, {"A"}, {}, {});
        row("the same twice", {"a"}, {"a", "a"}, {"a", "a", "a", "a"}, {"#0.name", "#0.name"});
        row("two of a name", {"a", "a"}, {"a"}, {"a"}, {"#0.name"});
        row("the empty name", {"a", ""}, {""}, {""}, {"#1.name"});
        row("three", {"a", "b", "c"}, {"a", "b", "c"}, {"a", "b", "c", "a", "b", "c", "a", "b", "c"},
            {"#0.name", "#1.name", "#2.name"});
    }
    void allNamesAreSentOncePerMatch() {
        QFETCH(QStringList, present);
        QFETCH(QStringList, deleted);
        QFETCH(QStringList, sent);
        QFETCH(QStringList, asked);
        add(variables(), present);
        const QStringList before = names(variables());
        follow();
        QVERIFY(kiteInterface()->delVarData(deleted));

        QCOMPARE(bus().sentAs(Verb::Execute), sent.isEmpty() ? QStringList() : QStringList{removal(sent)});
        QCOMPARE(bus().sent.size(), sent.isEmpty() ? 0 : 1);
        QCOMPARE(variables()->asked, asked);
        QCOMPARE(names(variables()), before);
        QStringList expected{"execute project.variable nobody", "reload"};
        if (sent.isEmpty())
            expected.removeFirst();
        QCOMPARE(events(), expected);
    }

    void oneNameIsAListOfOne() {
        add(variables(), QStringList{"a", "b"});
        QVERIFY(kiteInterface()->delVarData("b"));
        QVERIFY(kiteInterface()->delVarData(QString("c")));
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{removal({"b"})});
        QCOMPARE(variables()->asked, QStringList{"#1.name"});
        bus().answerWith(contentOf(QVariant(1)));
        QVERIFY(!kiteInterface()->delVarData("b"));
    }

    void namesStayInOrderAlsoWhenTheyAreMany() {
        QStringList many;
        for (int i = 0; i < 12; ++i)
            many << QString("v%1").arg(i);
        add(variables(), QStringList{"v3"});
        QVERIFY(kiteInterface()->delVarData(many));
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{removal(many)});
    }

    void theCommandIsANodeOfItsOwn() {
        add(variables(), QStringList{"x.y"});
        QVERIFY(kiteInterface()->delVarData("x.y"));
        ModuleObject* content = bus().sent.at(0).content.get();
        QCOMPARE(keys(content), QStringList({"operator", "variables"}));
        QCOMPARE(content->r("variables.#0")->value(), QVariant("x.y"));
        QCOMPARE(bus().sent.at(0).subKey, QString());
    }

    // The type that counts stands beneath the name.
    void typesThatAreSpared_data() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("spared");
        QTest::newRow("socket server") << "socketserver" << true;
        QTest::newRow("socket connection") << "socketconn" << true;
        QTest::newRow("serial line") << "serials" << true;
        QTest::newRow("another case") << "Serials" << false;
        QTest::newRow("a part") << "serial" << false;
        QTest::newRow("more") << "serials2" << false;
        QTest::newRow("int") << "int" << false;
        QTest::newRow("empty") << "" << false;
    }
    void typesThatAreSpared() {
        QFETCH(QString, type);
        QFETCH(bool, spared);
        add(variables(), QStringList{"a", "b"});
        variables()->r("#0.name")->set(nullptr, "type", type);
        follow();
        QVERIFY(kiteInterface()->delVarData("a"));
        QCOMPARE(bus().sentAs(Verb::Execute), spared ? QStringList() : QStringList{removal({"a"})});
        QCOMPARE(variables()->asked, spared ? QStringList() : QStringList{"#0.name"});
        QCOMPARE(events().last(), QString("reload"));
    }

    void aSparedVariableGoesWithAnotherThatMayGo() {
        add(variables(), QStringList{"a", "b", "c"});
        variables()->r("#0.name")->set(nullptr, "type", "serials");
        variables()->r("#2.name")->set(nullptr, "type", "socketconn");
        QVERIFY(kiteInterface()->delVarData(QStringList{"a", "b", "c"}));
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{removal({"a", "b", "c"})});
        QCOMPARE(variables()->asked, QStringList{"#1.name"});
    }

    void theTypeOfTheRecordIsNotAskedFor() {
        for (const char* type : {"serials", "socketconn", "socketserver"})
            add(variables(), QJsonObject{{"name", type}, {"type", type}});
        QVERIFY(kiteInterface()->delVarData("serials"));
        QVERIFY(kiteInterface()->delVarData("socketserver"));
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList({removal({"serials"}), removal({"socketserver"})}));
        QCOMPARE(variables()->asked, QStringList({"#0.name", "#2.name"}));
    }

    void onlyTheFirstOfANameIsLookedAt() {
        add(variables(), QStringList{"a", "a"});
        variables()->r("#0.name")->set(nullptr, "type", "serials");
        QVERIFY(kiteInterface()->delVarData("a"));
        QCOMPARE(bus().sent.size(), 0);
    }

    // There is no name to hand to the list then.
    void aRecordWithoutANameGoesByTheEmptyOne() {
        add(variables(), QJsonObject{{"type", "serials"}});
        follow();
        QVERIFY(kiteInterface()->delVarData(""));
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{removal({""})});
        QCOMPARE(variables()->asked, QStringList());
        QCOMPARE(events(), QStringList({"execute project.variable nobody", "reload"}));
        QCOMPARE(names(variables()), QStringList{"#0=-"});
    }

    void theAnswerDecides_data() {
        QTest::addColumn<Content>("answer");
        QTest::addColumn<bool>("done");
        QTest::newRow("0") << contentOf(QVariant(0)) << true;
        QTest::newRow("1") << contentOf(QVariant(1)) << false;
        QTest::newRow("-1") << contentOf(QVariant(-1)) << false;
        QTest::newRow("a refusal") << brisk::standin::refusal("no") << false;
        QTest::newRow("0 as a text") << contentOf(QVariant("0")) << true;
        QTest::newRow("1 as a text") << contentOf(QVariant("1")) << false;
        QTest::newRow("true") << contentOf(QVariant(true)) << false;
        QTest::newRow("a text") << contentOf(QVariant("no")) << true;
        QTest::newRow("children only") << contentOf(QVariant(QJsonObject{{"result", 1}})) << true;
        QTest::newRow("a list") << contentOf(QVariant(QJsonArray{1})) << true;
        QTest::newRow("empty") << contentOf(QVariant()) << true;
        QTest::newRow("nothing at all") << Content() << true;
    }
    void theAnswerDecides() {
        QFETCH(Content, answer);
        QFETCH(bool, done);
        add(variables(), QStringList{"a"});
        bus().answerWith(answer);
        follow();
        QCOMPARE(kiteInterface()->delVarData("a"), done);
        QCOMPARE(variables()->asked, done ? QStringList{"#0.name"} : QStringList());
        QCOMPARE(events(), done ? QStringList({"execute project.variable nobody", "reload"})
                                : QStringList{"execute project.variable nobody"});
        QCOMPARE(names(variables()), QStringList{"#0=a"});
    }

    void aRefusalOfBeforeIsForgotten() {
        add(variables(), QStringList{"a"});
        bus().answerWith(contentOf(QVariant(1)));
        QVERIFY(!kiteInterface()->delVarData("a"));
        bus().answers = false;
        QVERIFY(kiteInterface()->delVarData("a"));
    }

    void withTheLinkDownItCountsAsDone() {
        add(variables(), QStringList{"a"});
        bus().setUp(false);
        follow();
        QVERIFY(kiteInterface()->delVarData("a"));
        QCOMPARE(bus().sent.size(), 0);
        QCOMPARE(events(), QStringList({"execute project.variable nobody", "reload"}));
        QCOMPARE(names(variables()), QStringList{"#0=a"});
    }

    void theListMayGoWhileTheControllerAnswers() {
        add(variables(), QStringList{"a", "b"});
        bus().reply = [](const Message&) {
            delete variables();
            return contentOf(QVariant(0));
        };
        QVERIFY(kiteInterface()->delVarData(QStringList{"a", "b"}));
    }

    void aRecordMayGoWhileTheControllerAnswers() {
        add(variables(), QStringList{"a", "b"});
        bus().reply = [](const Message&) {
            delete variables()->c(0);
            return contentOf(QVariant(0));
        };
        QVERIFY(kiteInterface()->delVarData(QStringList{"a", "b"}));
        QCOMPARE(variables()->asked, QStringList{"#1.name"});
    }

    void whatIsSentIsALine() {
        add(variables(), QStringList{"a", "b"});
        int before = -1;
        bus().reply = [&](const Message&) {
            before = log().lines().size();
            return contentOf(QVariant(0));
        };
        kiteInterface()->delVarData("c");
        QCOMPARE(log().lines(), QStringList());
        kiteInterface()->delVarData("b");
        QCOMPARE(before, 1);
        QCOMPARE(log().lines().size(), 1);
        const QString line = log().lines().at(0);
        QVERIFY2(line.startsWith("\x1b[35m[S|"), qPrintable(line));
        QVERIFY2(line.endsWith("]<kite interfacemanager>hotUpdateVar:QJsonValue(object, "
                               "QJsonObject({\"operator\":\"remove\",\"variables\":[\"b\"]}))\x1b[0m"),
                 qPrintable(line));
        QCOMPARE(folder().logLines().size(), 1);
        QVERIFY(line.contains(folder().logLines().at(0)));
    }
};

QTEST_GUILESS_MAIN(TestVariablesDelete)
#include "tst_variables_delete.moc"
