#include "project.h"

class TestPersVariables : public ProjectTest {
    Q_OBJECT

private slots:
    void theVersionDecides_data() {
        QTest::addColumn<QVariant>("version");
        QTest::addColumn<bool>("open");
        const auto row = [](const char* version, bool open) { QTest::newRow(version) << QVariant(version) << open; };
        row("2.3", true);
        row("2.3.1", true);
        row("2.30", true);
        row("3.0", true);
        row("3.0.0", true);
        row("3.1.4", true);
        row("3.10", true);
        row("3.2", false);
        row("2.2.9", false);
        row("2.4", false);
        row("3", false);
        row("12.3", false);
        row("v3.1", false);
        row(" 3.1", false);
        row("", false);
        QTest::newRow("none") << QVariant() << false;
        QTest::newRow("a number") << QVariant(2.3) << true;
        QTest::newRow("a list") << QVariant(QVariantList{"3.1"}) << false;
    }
    void theVersionDecides() {
        QFETCH(QVariant, version);
        QFETCH(bool, open);
        m("helm.r.version")->setValue(nullptr, version);
        bus().reply = [](const Message& message) {
            return contentOf(message.verb == Verb::Get ? QVariant(QJsonArray{1})
                                                       : QVariant(QJsonObject{{"data", QJsonArray{"5"}}}));
        };
        QCOMPARE(kiteInterface()->registPERSVars({"a"}), open ? 0 : -240);
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), open ? QVector<QVariant>{1.0} : QVector<QVariant>());
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a"}), QVector<QString>{open ? "5" : ""});
        QCOMPARE(kiteInterface()->setValuesOfPERSVars({"a"}, {1}), open ? 0 : -240);
        QCOMPARE(kiteInterface()->setValuesOfPERSVars({"a"}, {}), open ? -1 : -240);
        QCOMPARE(bus().sent.size(), open ? 4 : 0);
        QCOMPARE(controller().sent.size(), 0);
    }

    void everyCallSaysWhoItIs() {
        follow();
        kiteInterface()->registPERSVars({"a"});
        kiteInterface()->getRegistedPERSVars();
        kiteInterface()->getValuesOfPERSVars({"a"});
        kiteInterface()->setValuesOfPERSVars({"a"}, {1});
        const QString kite(" kite::InterfaceManager");
        QCOMPARE(events(), QStringList({"set monitor.select" + kite, "get monitor.pers" + kite,
                                        "execute monitor.pers.read" + kite, "command monitor.pers.modify" + kite}));
    }

    void registeringSendsTheNames_data() {
        QTest::addColumn<QVector<QString>>("names");
        QTest::addColumn<QString>("sent");
        QTest::newRow("one") << QVector<QString>{"a"} << R"(monitor.select||["a"])";
        QTest::newRow("two") << QVector<QString>{"b", "a"} << R"(monitor.select||["b","a"])";
        QTest::newRow("twice") << QVector<QString>{"a", "a"} << R"(monitor.select||["a","a"])";
        QTest::newRow("an empty one") << QVector<QString>{""} << R"(monitor.select||[""])";
        QTest::newRow("with a dot") << QVector<QString>{"a.b", "#7"} << R"(monitor.select||["a.b","#7"])";
        QTest::newRow("none") << QVector<QString>() << "monitor.select||null";
    }
    void registeringSendsTheNames() {
        QFETCH(QVector<QString>, names);
        QFETCH(QString, sent);
        QCOMPARE(kiteInterface()->registPERSVars(names), 0);
        QCOMPARE(bus().sentAs(Verb::Set), QStringList{sent});
        QCOMPARE(bus().sent.size(), 1);
        QVERIFY(!bus().sent.at(0).wantsAnswer);
    }

    void manyNamesStayInOrder() {
        QVector<QString> many;
        for (int i = 0; i < 12; ++i)
            many << QString("v%1").arg(i);
        kiteInterface()->registPERSVars(many);
        ModuleObject* content = bus().sent.at(0).content.get();
        QCOMPARE(content->cmobjCount(), 12);
        QCOMPARE(content->c(10)->name(), QString("#10"));
        QCOMPARE(content->c(10)->value(), QVariant("v10"));
    }

    void theRegisteredOnesAreListed_data() {
        QTest::addColumn<Content>("answer");
        QTest::addColumn<QVector<QVariant>>("list");
        const auto row = [](const char* name, const QVariant& answer, const QVector<QVariant>& list) {
            QTest::newRow(name) << contentOf(answer) << list;
        };
        const QJsonObject variable{{"name", "a"}, {"type", "int"}, {"value", 3}};
        row("two", QJsonArray{variable, "text"}, {variable.toVariantMap(), "text"});
        row("null items", QJsonArray{QJsonValue(), 1}, {QVariant::fromValue(nullptr), 1.0});
        row("empty", QJsonArray(), {});
        row("an object", variable, {});
        row("a text", "text", {});
        row("nothing", QVariant(), {});
        QTest::newRow("nothing at all") << Content() << QVector<QVariant>();
        QTest::newRow("a refusal") << brisk::standin::refusal("no") << QVector<QVariant>();
    }
    void theRegisteredOnesAreListed() {
        QFETCH(Content, answer);
        QFETCH(QVector<QVariant>, list);
        bus().answerWith(answer);
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), list);
        QCOMPARE(bus().sentAs(Verb::Get), QStringList{"monitor.pers||null"});
        QCOMPARE(bus().sent.size(), 1);
    }

    void readingAsksByAnArray_data() {
        QTest::addColumn<QVector<QString>>("names");
        QTest::addColumn<QString>("sent");
        QTest::newRow("two") << QVector<QString>{"b", "a.x"} << R"(monitor.pers.read||["b","a.x"])";
        QTest::newRow("none") << QVector<QString>() << "monitor.pers.read||[]";
        QTest::newRow("looks like a number") << QVector<QString>{"1", ""} << R"(monitor.pers.read||["1",""])";
    }
    void readingAsksByAnArray() {
        QFETCH(QVector<QString>, names);
        QFETCH(QString, sent);
        QCOMPARE(kiteInterface()->getValuesOfPERSVars(names).size(), names.size());
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{sent});
        QCOMPARE(bus().sent.size(), 1);
    }

    void valuesComeInOrder_data() {
        QTest::addColumn<Content>("answer");
        QTest::addColumn<QVector<QString>>("values");
        const auto row = [](const char* name, const QJsonValue& data, const QVector<QString>& values) {
            QTest::newRow(name) << contentOf(QVariant(QJsonObject{{"data", data}})) << values;
        };
        row("as many", QJsonArray{"x", "y", "z"}, {"x", "y", "z"});
        row("fewer", QJsonArray{"x"}, {"x", "", ""});
        row("more", QJsonArray{"x", "y", "z", "u", "v"}, {"x", "y", "z"});
        row("none", QJsonArray(), {"", "", ""});
        row("other kinds", QJsonArray{1, 2.5, true}, {"1", "2.5", "true"});
        row("a gap", QJsonArray{"x", QJsonValue(), "z"}, {"x", "", "z"});
        row("nested", QJsonArray{QJsonArray{"x"}, QJsonObject{{"a", "y"}}, "z"}, {"", "", "z"});
        row("an object", QJsonObject{{"b", "x"}, {"a", "y"}}, {"y", "x", ""});
        row("a text", "x", {"", "", ""});
        row("null", QJsonValue(), {"", "", ""});
        QTest::newRow("no data") << contentOf(QVariant(QJsonObject{{"date", QJsonArray{"x"}}}))
                                 << QVector<QString>{"", "", ""};
        QTest::newRow("the array itself") << contentOf(QVariant(QJsonArray{"x"})) << QVector<QString>{"", "", ""};
        QTest::newRow("empty") << contentOf(QVariant()) << QVector<QString>{"", "", ""};
        QTest::newRow("nothing at all") << Content() << QVector<QString>{"", "", ""};
        QTest::newRow("a refusal") << brisk::standin::refusal("no") << QVector<QString>{"", "", ""};
    }
    void valuesComeInOrder() {
        QFETCH(Content, answer);
        QFETCH(QVector<QString>, values);
        bus().answerWith(answer);
        const QVector<QString> read = kiteInterface()->getValuesOfPERSVars({"a", "b", "c"});
        QCOMPARE(read, values);
        for (const QString& value : read)
            QVERIFY(!value.isNull());
    }

    void aLateAnswerLeavesTheValuesEmpty() {
        bus().answers = false;
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a", "b"}), QVector<QString>({"", ""}));
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), QVector<QVariant>());
        QCOMPARE(bus().sent.size(), 2);
    }

    void whoHearsOfAnAnswerMayDeleteIt() {
        const QJsonObject answer{{"data", QJsonArray{"x"}}};
        bus().answerWith(contentOf(QVariant(answer)));
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a"}), QVector<QString>{"x"});
        QPointer<ModuleObject> reply = relay()->execCommand(nullptr, "monitor.pers.read");
        connect(reply, &ModuleObject::inserted, context(), [&reply] { delete reply; });
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a"}), QVector<QString>{""});
        QVERIFY(!reply);
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a"}), QVector<QString>{"x"});

        bus().answerWith(contentOf(QVariant(QJsonArray{1})));
        reply = relay()->get(nullptr, "monitor.pers");
        connect(reply, &ModuleObject::inserted, context(), [&reply] { delete reply; });
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), QVector<QVariant>());
        QVERIFY(!reply);
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), QVector<QVariant>{1.0});
    }

    void withTheLinkDownNothingIsSent() {
        bus().setUp(false);
        QCOMPARE(kiteInterface()->registPERSVars({"a"}), 0);
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), QVector<QVariant>());
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a"}), QVector<QString>{""});
        QCOMPARE(kiteInterface()->setValuesOfPERSVars({"a"}, {1}), 0);
        QCOMPARE(bus().sent.size(), 0);
    }

    void settingSendsAValueForEachName_data() {
        QTest::addColumn<QVector<QString>>("names");
        QTest::addColumn<QVector<QVariant>>("values");
        QTest::addColumn<QString>("json");
        const auto row = [](const char* name, const QVector<QString>& names, const QVector<QVariant>& values,
                            const char* json) { QTest::newRow(name) << names << values << json; };
        row("one", {"a"}, {3}, R"({"a":3})");
        row("kinds", {"b", "a", "c"}, {true, "x", 2.5}, R"({"a":"x","b":true,"c":2.5})");
        row("a list", {"a"}, {QVariantList{1, 2}}, R"({"a":[1,2]})");
        row("nothing as a value", {"a", "b"}, {QVariant(), 1}, R"({"b":1})");
        row("the same twice", {"a", "a"}, {1, 2}, R"({"a":2})");
        row("with a dot", {"a.b"}, {1}, R"({"a":{"b":1}})");
        row("none", {}, {}, "null");
    }
    void settingSendsAValueForEachName() {
        QFETCH(QVector<QString>, names);
        QFETCH(QVector<QVariant>, values);
        QFETCH(QString, json);
        QCOMPARE(kiteInterface()->setValuesOfPERSVars(names, values), 0);
        QCOMPARE(bus().sentAs(Verb::Command), QStringList{"monitor.pers.modify||" + json});
        QCOMPARE(bus().sent.size(), 1);
        QVERIFY(!bus().sent.at(0).wantsAnswer);
    }

    void valuesKeepTheirTypeAndOrder() {
        kiteInterface()->setValuesOfPERSVars({"z", "a"}, {QVariant(3), QVariant(3.0)});
        ModuleObject* content = bus().sent.at(0).content.get();
        QCOMPARE(keys(content), QStringList({"z", "a"}));
        QCOMPARE(content->c("z")->value().userType(), int(QMetaType::Int));
        QCOMPARE(content->c("a")->value().userType(), int(QMetaType::Double));
    }

    void namesAndValuesMustBeAsMany_data() {
        QTest::addColumn<int>("names");
        QTest::addColumn<int>("values");
        QTest::newRow("more values") << 2 << 3;
        QTest::newRow("more names") << 3 << 2;
        QTest::newRow("no values") << 1 << 0;
        QTest::newRow("no names") << 0 << 1;
    }
    void namesAndValuesMustBeAsMany() {
        QFETCH(int, names);
        QFETCH(int, values);
        QCOMPARE(kiteInterface()->setValuesOfPERSVars(QVector<QString>(names, "a"), QVector<QVariant>(values, 1)), -1);
        QCOMPARE(bus().sent.size(), 0);
    }

    void whatIsReadIsALine_data() {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QVector<QString>>("names");
        QTest::addColumn<QString>("text");
        QTest::newRow("two") << "3.1.0" << QVector<QString>{"a", "b"} << "Results:x, y";
        QTest::newRow("three") << "3.1.0" << QVector<QString>{"a", "b", "c"} << "Results:x, y, ";
        QTest::newRow("none") << "3.1.0" << QVector<QString>() << "Results:";
        QTest::newRow("another version") << "3.2" << QVector<QString>{"a", "b"} << "Results:, ";
    }
    void whatIsReadIsALine() {
        QFETCH(QString, version);
        QFETCH(QVector<QString>, names);
        QFETCH(QString, text);
        m("helm.r.version")->setValue(nullptr, version);
        int before = -1;
        bus().reply = [&](const Message&) {
            before = log().lines().size();
            return contentOf(QVariant(QJsonObject{{"data", QJsonArray{"x", "y"}}}));
        };
        kiteInterface()->getValuesOfPERSVars(names);
        QCOMPARE(before, version == "3.2" ? -1 : 0);
        QCOMPARE(log().lines().size(), 1);
        const QString line = log().lines().at(0);
        QVERIFY2(line.startsWith("\x1b[35m[S|"), qPrintable(line));
        QVERIFY2(line.endsWith("]<kite interfacemanager>" + text + "\x1b[0m"), qPrintable(line));
        QCOMPARE(folder().logLines().size(), 1);
        QVERIFY(line.contains(folder().logLines().at(0)));
    }

    void theOthersWriteNoLine() {
        kiteInterface()->registPERSVars({"a"});
        kiteInterface()->getRegistedPERSVars();
        kiteInterface()->setValuesOfPERSVars({"a"}, {1});
        kiteInterface()->setValuesOfPERSVars({"a"}, {});
        QCOMPARE(log().lines(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestPersVariables)
#include "tst_persvariables.moc"
