#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using brisk::ModuleObject;

class Values : public QObject {
    Q_OBJECT

private slots:
    void aNodeWithoutValueGivesTheFallback();
    void aValueReadsAsEveryTypeItConvertsTo_data();
    void aValueReadsAsEveryTypeItConvertsTo();
    void whatDoesNotConvertGivesTheFallback_data();
    void whatDoesNotConvertGivesTheFallback();
    void anEmptyStringIsAValue();
    void ownValueAndChildrenAreIndependent();
    void setWritesAtADottedPathAndMakesIt();
    void setWithAnEmptyKeyWritesTheOwnValue();
    void setOfAnInvalidValueMakesTheNode();
    void aNodeIsEmptyWithNeitherValueNorChildren();
    void theTypeOfAValueIsKept_data();
    void theTypeOfAValueIsKept();
    void watchingLeavesANodeAsItIs();
};

void Values::aNodeWithoutValueGivesTheFallback() {
    const ModuleObject node("n");
    QCOMPARE(node.getString(), QString());
    QCOMPARE(node.getString("tool0"), QString("tool0"));
    QCOMPARE(node.getInt(), 0);
    QCOMPARE(node.getInt(-1), -1);
    QCOMPARE(node.getDouble(), 0.0);
    QCOMPARE(node.getDouble(2.5), 2.5);
    QCOMPARE(node.getBool(), false);
    QCOMPARE(node.getBool(true), true);
    QVERIFY(!node.value().isValid());
    QCOMPARE(node.value(7), QVariant(7));
}

void Values::aValueReadsAsEveryTypeItConvertsTo_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<double>("real");
    QTest::addColumn<bool>("truth");
    QTest::newRow("int") << QVariant(12) << "12" << 12 << 12.0 << true;
    QTest::newRow("zero") << QVariant(0) << "0" << 0 << 0.0 << false;
    QTest::newRow("double") << QVariant(2.75) << "2.75" << 3 << 2.75 << true;
    QTest::newRow("digits") << QVariant("12") << "12" << 12 << 12.0 << true;
    QTest::newRow("true") << QVariant(true) << "true" << 1 << 1.0 << true;
    QTest::newRow("false") << QVariant(false) << "false" << 0 << 0.0 << false;
    QTest::newRow("long") << QVariant(qlonglong(-5)) << "-5" << -5 << -5.0 << true;
    QTest::newRow("JSON number") << QVariant::fromValue(QJsonValue(4)) << "4" << 4 << 4.0 << true;
}

void Values::aValueReadsAsEveryTypeItConvertsTo() {
    QFETCH(QVariant, value);
    ModuleObject node("n");
    node.setValue(nullptr, value);
    QTEST(node.getString("fallback"), "text");
    QTEST(node.getInt(99), "number");
    QTEST(node.getDouble(99.0), "real");
    QTEST(node.getBool(), "truth");
}

void Values::whatDoesNotConvertGivesTheFallback_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isText");
    QTest::newRow("word") << QVariant("abc") << true;
    QTest::newRow("empty word") << QVariant("") << true;
    QTest::newRow("JSON array") << QVariant(QJsonArray{1, 2}) << false;
    QTest::newRow("JSON object") << QVariant(QJsonObject{{"a", 1}}) << false;
    QTest::newRow("variant list") << QVariant(QVariantList{1, 2}) << false;
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr) << false;
}

void Values::whatDoesNotConvertGivesTheFallback() {
    QFETCH(QVariant, value);
    QFETCH(bool, isText);
    ModuleObject node("n");
    node.setValue(nullptr, value);
    QCOMPARE(node.getInt(7), 7);
    QCOMPARE(node.getDouble(7.5), 7.5);
    QCOMPARE(node.getString("fallback"), isText ? value.toString() : QString("fallback"));
    if (!isText)
        QCOMPARE(node.getBool(true), true);
}

void Values::anEmptyStringIsAValue() {
    ModuleObject node("n");
    node.setValue(nullptr, "");
    QCOMPARE(node.getString("fallback"), QString());
    QVERIFY(!node.isEmpty());
}

void Values::ownValueAndChildrenAreIndependent() {
    ModuleObject node("n");
    node.set(nullptr, "a", 1);
    node.setValue(nullptr, "own");
    QCOMPARE(node.c("a")->getInt(), 1);
    node.setValue(nullptr, QVariant());
    QVERIFY(!node.value().isValid());
    QCOMPARE(node.c("a")->getInt(), 1);
    node.setValue(nullptr, 5);
    QVERIFY(node.removeChild(node.c("a")));
    QCOMPARE(node.getInt(), 5);
}

void Values::setWritesAtADottedPathAndMakesIt() {
    ModuleObject node("n");
    node.set(nullptr, "value.[0][0][0]", 3, true);
    QCOMPARE(node.c("value")->c("[0][0][0]")->getInt(), 3);
    node.set(nullptr, "value.[0][0][0]", "again", false);
    QCOMPARE(node.r("value.[0][0][0]")->getString(), QString("again"));
    QCOMPARE(node.cmobjs(true).size(), 2);
}

void Values::setWithAnEmptyKeyWritesTheOwnValue() {
    ModuleObject node("n");
    node.set(nullptr, "", 4);
    QCOMPARE(node.getInt(), 4);
    QCOMPARE(node.cmobjCount(), 0);
}

void Values::setOfAnInvalidValueMakesTheNode() {
    ModuleObject node("n");
    node.set(nullptr, "plugin", QVariant(), true);
    QVERIFY(node.hasCmobj("plugin"));
    QVERIFY(node.c("plugin")->isEmpty());
}

void Values::aNodeIsEmptyWithNeitherValueNorChildren() {
    ModuleObject node("n");
    QVERIFY(node.isEmpty());
    node.setValue(nullptr, false);
    QVERIFY(!node.isEmpty());
    node.setValue(nullptr, QVariant());
    QVERIFY(node.isEmpty());
    node.child("a");
    QVERIFY(!node.isEmpty());
}

void Values::theTypeOfAValueIsKept_data() {
    QTest::addColumn<QVariant>("value");
    QTest::newRow("int") << QVariant(1);
    QTest::newRow("double") << QVariant(1.0);
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("string") << QVariant("1");
    QTest::newRow("JSON array") << QVariant(QJsonArray{1});
    QTest::newRow("string list") << QVariant(QStringList{"a"});
}

void Values::theTypeOfAValueIsKept() {
    QFETCH(QVariant, value);
    ModuleObject node("n");
    node.set(nullptr, "a", value);
    QCOMPARE(node.c("a")->value().userType(), value.userType());
    QCOMPARE(node.c("a")->value(), value);
}

void Values::watchingLeavesANodeAsItIs() {
    ModuleObject node("n");
    node.set(nullptr, "a", 1);
    node.watch(true, false);
    QCOMPARE(node.cmobjCount(), 1);
    QVERIFY(!node.value().isValid());
}

QTEST_APPLESS_MAIN(Values)
#include "tst_moduleobject_values.moc"
