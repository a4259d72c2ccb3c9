#include "project.h"

namespace {

const QJsonObject pattern{{"name", "pattern"},
                          {"type", "pattern"},
                          {"id", -1},
                          {"pers", true},
                          {"description", "by hand"},
                          {"value", QJsonObject{{"[0][0][0]", 7}, {"[0][0][1]", 8}}},
                          {"range", QJsonArray{1, QJsonArray{2}}}};

} // namespace

class TestVariables : public ProjectTest {
    Q_OBJECT

private slots:
    void aVariableHasItsFields() {
        QVERIFY(kiteInterface()->addVarData("a", 3, false));
        QVERIFY(kiteInterface()->addVarData("b", 4, true));
        QCOMPARE(names(variables()), QStringList({"#0=a", "#1=b"}));
        QCOMPARE(compact(variables()->c(0)->exportToJson(true)),
                 QString(R"({"id":0,"name":"a","pers":false,"type":"int","value":{"[0][0][0]":3}})"));
        QCOMPARE(compact(variables()->c(1)->exportToJson(true)),
                 QString(R"({"id":1,"name":"b","pers":true,"type":"int","value":{"[0][0][0]":4}})"));
        QCOMPARE(keys(variables()->c(0)), QStringList({"name", "type", "id", "value", "pers"}));
        QCOMPARE(variables()->r("#0.id")->value(), QVariant(0));
        QCOMPARE(variables()->r("#0.pers")->value(), QVariant(false));
        QCOMPARE(m("orca.project.var.built")->value(), QVariant(false));
    }

    void theRestIsCopiedFromTheTemplate() {
        ModuleObject* templateNode = m("orca.project.var.default");
        templateNode->importFromJson(nullptr, pattern, false, true, false);
        templateNode->setValue(nullptr, "own");
        kiteInterface()->addVarData("a", 1.5, false);
        kiteInterface()->addVarData("b", "text", false);

        QJsonObject first = pattern;
        first["name"] = "a";
        first["type"] = "double";
        first["id"] = 0;
        first["pers"] = false;
        first["value"] = QJsonObject{{"[0][0][0]", 1.5}, {"[0][0][1]", 8}};
        QCOMPARE(variables()->c(0)->exportToJson(true), QJsonValue(first));
        QCOMPARE(variables()->c(0)->name(), QString("#0"));
        QVERIFY(!variables()->c(0)->value().isValid());

        QCOMPARE(templateNode->exportToJson(true), QJsonValue(pattern));
        QCOMPARE(templateNode->value(), QVariant("own"));
        QVERIFY(variables()->r("#0.range.#1.#0") != variables()->r("#1.range.#1.#0"));
        templateNode->set(nullptr, "range.#0", 99);
        QCOMPARE(variables()->r("#0.range.#0")->getInt(), 1);
    }

    void theTypeIsThatOfTheValue_data() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("type");
        QTest::newRow("int") << QVariant(3) << "int";
        QTest::newRow("double") << QVariant(0.0) << "double";
        QTest::newRow("text") << QVariant("a") << "QString";
        QTest::newRow("bool") << QVariant(true) << "bool";
        QTest::newRow("float") << QVariant(1.5f) << "float";
        QTest::newRow("long") << QVariant(Q_INT64_C(1) << 40) << "qlonglong";
        QTest::newRow("list") << QVariant(QVariantList{1, 2}) << "QVariantList";
        QTest::newRow("map") << QVariant(QVariantMap{{"a", 1}}) << "QVariantMap";
        QTest::newRow("JSON") << QVariant(QJsonObject{{"a", 1}}) << "QJsonObject";
        QTest::newRow("null text") << QVariant(QString()) << "QString";
        QTest::newRow("nothing") << QVariant() << "";
    }
    void theTypeIsThatOfTheValue() {
        QFETCH(QVariant, value);
        QFETCH(QString, type);
        QVERIFY(kiteInterface()->addVarData("a", value, false));
        QCOMPARE(variables()->r("#0.type")->value().userType(), int(QMetaType::QString));
        QCOMPARE(variables()->r("#0.type")->getString("none"), type);
        const ModuleObject* node = variables()->r("#0.value.[0][0][0]");
        QVERIFY(node);
        QCOMPARE(node->value(), value);
        QCOMPARE(node->value().userType(), value.userType());
        QCOMPARE(node->cmobjCount(), 0);
    }

    void namesNeedNotBeNewNorSensible() {
        for (const char* name : {"a", "a", "", "x.y", "#0", "grün", "A"})
            QVERIFY(kiteInterface()->addVarData(name, 1, false));
        QCOMPARE(kiteInterface()->getVarDataList(""), QStringList({"a", "a", "", "x.y", "#0", "grün", "A"}));
    }

    void theIdIsTheCountAndNotTheNumberOfTheNode() {
        add(variables(), QStringList{"a", "b", "c"});
        delete variables()->c(0);
        kiteInterface()->addVarData("d", 1, false);
        QCOMPARE(names(variables()), QStringList({"#1=b", "#2=c", "#3=d"}));
        QCOMPARE(variables()->r("#3.id")->value(), QVariant(2));
    }

    void addingIsAnnouncedInOrder() {
        m("orca.project.var.default")->setValue(nullptr, "own");
        follow();
        QJsonValue whenInserted;
        connect(variables(), &ModuleObject::inserted, context(),
                [&](ModuleObject* record) { whenInserted = record->exportToJson(true); });
        kiteInterface()->addVarData("a", 3, true);
        QCOMPARE(events(), QStringList({"var._list null nobody", "var._list.#0 null kite", "var null kite",
                                        "var.built false kite"}));
        QCOMPARE(compact(whenInserted),
                 QString(R"({"id":0,"name":"a","pers":true,"type":"int","value":{"[0][0][0]":3}})"));
    }

    void aProjectThatWasBuiltIsBuiltNoMore() {
        m("orca.project.var.built")->setValue(nullptr, true);
        add(variables(), QStringList{"a"});
        kiteInterface()->updateVarData("a", 1);
        QCOMPARE(m("orca.project.var.built")->value(), QVariant(true));
        kiteInterface()->addVarData("a", 3, true);
        QCOMPARE(m("orca.project.var.built")->value(), QVariant(false));
    }

    void aListThatRefusesKeepsNothing() {
        variables()->refuses = true;
        follow();
        QVERIFY(kiteInterface()->addVarData("a", 3, true));
        QCOMPARE(variables()->cmobjCount(), 0);
        QCOMPARE(events(), QStringList({"var null kite", "var.built false kite"}));
    }

    void aNewVariableMayBeDeletedAtOnce() {
        connect(variables(), &ModuleObject::inserted, context(), [](ModuleObject* record) { delete record; });
        QVERIFY(kiteInterface()->addVarData("a", 3, true));
        QCOMPARE(variables()->cmobjCount(), 0);
        QCOMPARE(m("orca.project.var.built")->value(), QVariant(false));
    }

    void theListMayGoWhenAVariableComes() {
        connect(variables(), &ModuleObject::inserted, context(), [] { delete variables(); });
        QVERIFY(kiteInterface()->addVarData("a", 3, true));
        QVERIFY(!variables());
    }

    void aProjectThatIsNotThereIsMade() {
        m("orca")->clear(nullptr, false, true);
        QCOMPARE(kiteInterface()->getVarDataList(""), QStringList());
        QVERIFY(kiteInterface()->updateVarData("a", 1));
        QCOMPARE(kiteInterface()->getVarObjDataByName("a"), QJsonObject());
        QVERIFY(kiteInterface()->addVarData("a", 3, true));
        QCOMPARE(kiteInterface()->getVarDataList("int"), QStringList{"a"});
    }

    void everyVariableOfTheNameIsSet() {
        for (const char* name : {"a", "A", "a", "b", "a "})
            add(variables(), QJsonObject{{"name", name}, {"type", "int"}, {"value", QJsonObject{{"[0][0][0]", 1}}}});
        follow();
        QVERIFY(kiteInterface()->updateVarData("a", "text"));
        QCOMPARE(events(), QStringList({R"(var._list.#0.value.[0][0][0] "text" kite)",
                                        R"(var._list.#2.value.[0][0][0] "text" kite)"}));
        QCOMPARE(variables()->r("#0.type")->getString(), QString("int"));
    }

    void anEqualValueIsAnnouncedToo() {
        add(variables(), QJsonObject{{"name", "a"}, {"value", QJsonObject{{"[0][0][0]", 1}}}});
        follow();
        kiteInterface()->updateVarData("a", 1);
        kiteInterface()->updateVarData("a", QVariant());
        QCOMPARE(events(),
                 QStringList({"var._list.#0.value.[0][0][0] 1 kite", "var._list.#0.value.[0][0][0] null kite"}));
    }

    void aValueWithPartsKeepsItsParts_data() {
        QTest::addColumn<QJsonValue>("parts");
        QTest::newRow("a list") << QJsonValue(QJsonArray{1, 2});
        QTest::newRow("named parts") << QJsonValue(QJsonObject{{"x", 1}});
    }
    void aValueWithPartsKeepsItsParts() {
        QFETCH(QJsonValue, parts);
        add(variables(), QJsonObject{{"name", "a"}, {"value", QJsonObject{{"[0][0][0]", parts}}}});
        QVERIFY(kiteInterface()->updateVarData("a", 5));
        const ModuleObject* value = variables()->r("#0.value.[0][0][0]");
        QCOMPARE(value->value(), QVariant(5));
        QCOMPARE(value->exportToJson(true), parts);
    }

    void settingWhatIsNotThereDoesNothing() {
        add(variables(), QStringList{"a"});
        follow();
        QVERIFY(kiteInterface()->updateVarData("b", 1));
        QVERIFY(kiteInterface()->updateVarData("", 1));
        QCOMPARE(events(), QStringList());
    }

    void aRecordWithoutANameHasTheEmptyOne() {
        add(variables(), QJsonObject{{"id", 0}});
        add(variables(), QJsonObject{{"name", ""}});
        QCOMPARE(kiteInterface()->getVarDataList(""), QStringList({"", ""}));
        QVERIFY(kiteInterface()->updateVarData("", 5));
        QVERIFY(kiteInterface()->updateVarData(QString(), 6));
        QCOMPARE(variables()->r("#0.value.[0][0][0]")->getInt(), 6);
        QCOMPARE(variables()->r("#1.value.[0][0][0]")->getInt(), 6);
    }

    void whoHearsOfAValueMayDeleteTheRest() {
        add(variables(), QStringList{"a", "a", "a"});
        connect(variables(), &ModuleObject::touched, context(), [](const ModuleObject* node) {
            if (node->name() == "[0][0][0]" && variables()->cmobjCount() == 3)
                delete variables()->c(1);
        });
        QVERIFY(kiteInterface()->updateVarData("a", 1));
        QCOMPARE(names(variables()), QStringList({"#0=a", "#2=a"}));
        QCOMPARE(variables()->r("#2.value.[0][0][0]")->getInt(), 1);
    }

    void variablesAreListedByType_data() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QStringList>("list");
        QTest::newRow("all") << "" << QStringList({"a", "b", "a", "c", "5", "", "d"});
        QTest::newRow("all, null") << QString() << QStringList({"a", "b", "a", "c", "5", "", "d"});
        QTest::newRow("int") << "int" << QStringList({"a", "a", "5"});
        QTest::newRow("another case") << "Int" << QStringList{"b"};
        QTest::newRow("part of it") << "in" << QStringList();
        QTest::newRow("a number") << "3" << QStringList{""};
        QTest::newRow("none") << "bool" << QStringList();
    }
    void variablesAreListedByType() {
        QFETCH(QString, type);
        QFETCH(QStringList, list);
        add(variables(), QJsonObject{{"name", "a"}, {"type", "int"}});
        add(variables(), QJsonObject{{"name", "b"}, {"type", "Int"}});
        add(variables(), QJsonObject{{"name", "a"}, {"type", "int"}});
        add(variables(), QJsonObject{{"name", "c"}, {"type", "integer"}});
        add(variables(), QJsonObject{{"name", 5}, {"type", "int"}});
        add(variables(), QJsonObject{{"name", QJsonArray{"x"}}, {"type", 3}});
        add(variables(), QJsonObject{{"name", "d"}});
        QCOMPARE(kiteInterface()->getVarDataList(type), list);
    }

    void lookingUpAVariableFindsThePoint() {
        add(variables(), QJsonObject{{"name", "a"}, {"of", "variables"}});
        add(points(), QJsonObject{{"name", "A"}, {"of", "points"}, {"number", 0}});
        add(points(), QJsonObject{{"name", "a"}, {"of", "points"}, {"number", 1}});
        add(points(), QJsonObject{{"name", "a"}, {"of", "points"}, {"number", 2}});
        QCOMPARE(kiteInterface()->getVarObjDataByName("a"),
                 QJsonObject({{"name", "a"}, {"of", "points"}, {"number", 1}}));
        add(variables(), QJsonObject{{"name", "b"}});
        QCOMPARE(kiteInterface()->getVarObjDataByName("b"), QJsonObject());
    }

    void lookingUpReadsNamesAsTexts() {
        add(points(), QJsonObject{{"name", 5}, {"id", 0}});
        add(points(), QJsonObject{{"id", 1}});
        QCOMPARE(kiteInterface()->getVarObjDataByName("5"), QJsonObject({{"name", 5}, {"id", 0}}));
        QCOMPARE(kiteInterface()->getVarObjDataByName(""), QJsonObject({{"id", 1}}));
    }

    void aRecordThatIsNoObjectIsAnEmptyOne() {
        add(points(), QJsonObject())->setValue(nullptr, "text");
        QCOMPARE(kiteInterface()->getVarObjDataByName(""), QJsonObject());
    }

    void lookingUpMakesNoNodes() {
        m("orca")->clear(nullptr, false, true);
        kiteInterface()->getVarObjDataByName("a");
        QVERIFY(!project()->r("point._list"));
    }
};

QTEST_GUILESS_MAIN(TestVariables)
#include "tst_variables.moc"
