#include "developer/jsontext.h"
#include "developer/senderlabel.h"
#include "developer/touchlog.h"
#include "developer/valuetext.h"

#include "brisk/modulemanager.h"
#include "tarp/bmodule.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QTest>

using brisk::ModuleObject;
using pendant::TouchLog;
using pendant::ValueReader;

namespace {

struct Unconvertible {
    int number;
};

} // namespace

Q_DECLARE_METATYPE(Unconvertible)

class TestValues : public QObject {
    Q_OBJECT

private slots:
    void aValueReadsAsJsonAndADoubleAsADouble_data();
    void aValueReadsAsJsonAndADoubleAsADouble();
    void whatIsTypedKeepsTheType_data();
    void whatIsTypedKeepsTheType();
    void whatDoesNotConvertIsRefusedWithASentence_data();
    void whatDoesNotConvertIsRefusedWithASentence();
    void whatIsThereToBeEditedIsAccepted_data() { addValues(); }
    void whatIsThereToBeEditedIsAccepted();
    void aSingleValueIsJsonToo();
    void aSenderIsKnownByModuleNameOrClass();
    void theLastWriterOfANodeIsKept();
    void aNodeThatIsGoneLeavesNoWriterToItsSuccessor();
    void withTooManyNodesTheOldestAreForgotten();

private:
    static void addValues();
};

void TestValues::aValueReadsAsJsonAndADoubleAsADouble_data() {
    addValues();
    QTest::newRow("nothing") << QVariant() << "";
}

void TestValues::addValues() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("int") << QVariant(3) << "3";
    QTest::newRow("long") << QVariant(9007199254740993LL) << "9007199254740993";
    QTest::newRow("double") << QVariant(0.1) << "0.1";
    QTest::newRow("whole double") << QVariant(3.0) << "3.0";
    QTest::newRow("large double") << QVariant(1e300) << "1e+300";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("text") << QVariant("a \"b\"") << "\"a \\\"b\\\"\"";
    QTest::newRow("text like a number") << QVariant("3") << "\"3\"";
    QTest::newRow("list") << QVariant(QVariantList{1, "a"}) << "[1,\"a\"]";
    QTest::newRow("object") << QVariant(QJsonObject{{"a", true}}) << "{\"a\":true}";
    QTest::newRow("JSON null") << QVariant::fromValue(QJsonValue()) << "null";
}

void TestValues::aValueReadsAsJsonAndADoubleAsADouble() {
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QCOMPARE(pendant::valueText(value), text);
}

void TestValues::whatIsTypedKeepsTheType_data() {
    QTest::addColumn<QVariant>("present");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("int") << QVariant(1) << " -7 " << QVariant(-7);
    QTest::newRow("long") << QVariant(1LL) << "9007199254740993" << QVariant(9007199254740993LL);
    QTest::newRow("double from a whole number") << QVariant(1.5) << "2" << QVariant(2.0);
    QTest::newRow("double") << QVariant(1.5) << "-2.5e-3" << QVariant(-2.5e-3);
    QTest::newRow("bool") << QVariant(true) << "false" << QVariant(false);
    QTest::newRow("bool as number") << QVariant(false) << "1" << QVariant(true);
    QTest::newRow("text") << QVariant("x") << " 12 " << QVariant(" 12 ");
    QTest::newRow("empty text") << QVariant("x") << "" << QVariant("");
    QTest::newRow("list") << QVariant(QVariantList{1}) << "[2.5]" << QVariant(QVariantList{2.5});
    QTest::newRow("JSON array") << QVariant(QJsonArray{1}) << "[]" << QVariant(QJsonArray());
    QTest::newRow("JSON object") << QVariant(QJsonObject()) << "{\"a\":1}" << QVariant(QJsonObject{{"a", 1}});
    QTest::newRow("texts") << QVariant(QStringList{"a"}) << "[\"b\"]" << QVariant(QStringList{"b"});
    QTest::newRow("an empty node takes a text") << QVariant() << "\"a\"" << QVariant("a");
    QTest::newRow("an empty node takes a whole number") << QVariant() << "7" << QVariant(7);
    QTest::newRow("an empty node takes a number") << QVariant() << "7.5" << QVariant(7.5);
    QTest::newRow("bytes") << QVariant(QByteArray("a")) << "b" << QVariant(QByteArray("b"));
}

void TestValues::whatIsTypedKeepsTheType() {
    QFETCH(QVariant, present);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    const ValueReader::Result result = ValueReader::read(text, present);
    QCOMPARE(result.refusal, QString());
    QCOMPARE(result.value.userType(), value.userType());
    QCOMPARE(result.value, value);
}

void TestValues::whatDoesNotConvertIsRefusedWithASentence_data() {
    QTest::addColumn<QVariant>("present");
    QTest::addColumn<QString>("text");
    QTest::newRow("int from letters") << QVariant(1) << "seven";
    QTest::newRow("int from a fraction") << QVariant(1) << "1.5";
    QTest::newRow("int that is too big") << QVariant(1) << "3000000000";
    QTest::newRow("int from nothing") << QVariant(1) << "";
    QTest::newRow("double with a comma") << QVariant(1.5) << "1,5";
    QTest::newRow("double without an end") << QVariant(1.5) << "inf";
    QTest::newRow("bool") << QVariant(true) << "yes";
    QTest::newRow("object from an array") << QVariant(QJsonObject()) << "[1]";
    QTest::newRow("array from an object") << QVariant(QVariantList{1}) << "{}";
    QTest::newRow("JSON that ends early") << QVariant(QJsonObject()) << "{\"a\":";
    QTest::newRow("two values") << QVariant() << "1, 2";
    QTest::newRow("text without quotes for an empty node") << QVariant() << "abc";
    QTest::newRow("a type that nothing converts to") << QVariant::fromValue(Unconvertible{1}) << "1";
}

void TestValues::whatDoesNotConvertIsRefusedWithASentence() {
    QFETCH(QVariant, present);
    QFETCH(QString, text);
    const ValueReader::Result result = ValueReader::read(text, present);
    QVERIFY(result.refusal.endsWith('.'));
    QVERIFY2(result.refusal.contains(text), qPrintable(result.refusal));
}

void TestValues::whatIsThereToBeEditedIsAccepted() {
    QFETCH(QVariant, value);
    const ValueReader::Result result = ValueReader::read(pendant::editText(value), value);
    QCOMPARE(result.refusal, QString());
    QCOMPARE(result.value.userType(), value.userType());
    QCOMPARE(pendant::valueText(result.value), pendant::valueText(value));
}

void TestValues::aSingleValueIsJsonToo() {
    QCOMPARE(pendant::compactJson(QJsonValue(3)), QString("3"));
    QCOMPARE(pendant::indentedJson(QJsonValue("a")), QString("\"a\""));
    QCOMPARE(pendant::indentedJson(QJsonObject{{"a", 1}}), QString("{\n    \"a\": 1\n}"));
    QCOMPARE(pendant::readJson("3"), QJsonValue(3));
    QCOMPARE(pendant::readJson("null"), QJsonValue());
    QVERIFY(pendant::readJson("").isUndefined());
    QVERIFY(pendant::readJson("1,2").isUndefined());
}

void TestValues::aSenderIsKnownByModuleNameOrClass() {
    tarp::BModule module;
    QCOMPARE(pendant::senderLabel(&module), QString("tarp::BModule"));
    module.bindMobj("brisk.kite.sender");
    QCOMPARE(pendant::senderLabel(&module), QString("sender"));
    QObject object;
    QCOMPARE(pendant::senderLabel(&object), QString("QObject"));
    object.setObjectName("feeder");
    QCOMPARE(pendant::senderLabel(&object), QString("feeder"));
    QCOMPARE(pendant::senderLabel(nullptr), QString("-"));
}

void TestValues::theLastWriterOfANodeIsKept() {
    TouchLog log;
    ModuleObject node("a");
    ModuleObject other("b");
    QVERIFY(!log.find(&node));
    QObject first;
    first.setObjectName("first");
    log.record(&node, &first);
    log.record(&node, nullptr);
    log.record(&other, &first);
    QCOMPARE(log.find(&node)->who, QString("-"));
    QCOMPARE(log.find(&other)->who, QString("first"));
    QVERIFY(log.find(&other)->whenMs > 0);
}

void TestValues::aNodeThatIsGoneLeavesNoWriterToItsSuccessor() {
    TouchLog log;
    // Until the second node gets the address of the first.
    for (int i = 0; i < 1000; ++i) {
        auto* first = new ModuleObject("a");
        log.record(first, nullptr);
        delete first;
        const std::unique_ptr<ModuleObject> second(new ModuleObject("b"));
        QVERIFY(!log.find(second.get()));
        if (second.get() == first)
            return;
    }
}

void TestValues::withTooManyNodesTheOldestAreForgotten() {
    TouchLog log;
    ModuleObject root{QString()};
    QVariantList values;
    for (int i = 0; i < TouchLog::capacity + 1; ++i)
        values.append(i);
    root.setList(nullptr, values, false);
    const QList<ModuleObject*> nodes = root.cmobjs();
    for (ModuleObject* node : nodes)
        log.record(node, nullptr);
    QVERIFY(log.size() <= TouchLog::capacity);
    QVERIFY(log.size() >= TouchLog::capacity / 2);
    QVERIFY(log.find(nodes.last()));
}

QTEST_GUILESS_MAIN(TestValues)
#include "tst_developer_values.moc"
