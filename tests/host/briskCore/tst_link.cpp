#include "brisk/link.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using brisk::ModuleObject;
using brisk::standin::Content;
using brisk::standin::contentOf;
using brisk::standin::jsonOf;

class LinkContents : public QObject {
    Q_OBJECT

private slots:
    void aValueBecomesContent_data();
    void aValueBecomesContent();
    void whatIsNoJsonStaysTheOwnValue();
    void aNodeIsCopiedInTheOrderOfItsChildren();
    void nullIsNothingAtAll();
    void aRefusalIsMinusOneAndNamesTheError();
};

void LinkContents::aValueBecomesContent_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QJsonValue>("json");
    const QJsonArray array{1, QJsonObject{{"a", "b"}}};
    const QJsonObject object{{"a", array}};
    QTest::newRow("nothing") << QVariant() << QJsonValue();
    QTest::newRow("text") << QVariant("a") << QJsonValue("a");
    QTest::newRow("number") << QVariant(1.5) << QJsonValue(1.5);
    QTest::newRow("array") << QVariant(array) << QJsonValue(array);
    QTest::newRow("empty array") << QVariant(QJsonArray()) << QJsonValue(QJsonArray());
    QTest::newRow("object") << QVariant(object) << QJsonValue(object);
    QTest::newRow("JSON value") << QVariant(QJsonValue(array)) << QJsonValue(array);
    QTest::newRow("JSON null") << QVariant(QJsonValue()) << QJsonValue();
    QTest::newRow("document with an array") << QVariant(QJsonDocument(array)) << QJsonValue(array);
    QTest::newRow("document with an object") << QVariant(QJsonDocument(object)) << QJsonValue(object);
    QTest::newRow("list") << QVariant(QVariantList{1, "x"}) << QJsonValue(QJsonArray{1, "x"});
    QTest::newRow("texts") << QVariant(QStringList{"x", "y"}) << QJsonValue(QJsonArray{"x", "y"});
    QTest::newRow("map") << QVariant(QVariantMap{{"k", 2}}) << QJsonValue(QJsonObject{{"k", 2}});
}

void LinkContents::aValueBecomesContent() {
    QFETCH(QVariant, value);
    QFETCH(QJsonValue, json);
    QCOMPARE(jsonOf(contentOf(value)), json);
}

void LinkContents::whatIsNoJsonStaysTheOwnValue() {
    QCOMPARE(contentOf(QVariant(QPoint(1, 2)))->value(), QVariant(QPoint(1, 2)));
}

void LinkContents::aNodeIsCopiedInTheOrderOfItsChildren() {
    ModuleObject node("select");
    for (const char* name : {"#0", "#2", "#10", "a"})
        node.append(nullptr, name)->setValue(nullptr, name);
    const Content copy = contentOf(&node);
    node.clear(nullptr, false, true);
    QStringList names;
    for (const ModuleObject* child : copy->cmobjs())
        names << child->name() + '=' + child->getString();
    QCOMPARE(names, QStringList({"#0=#0", "#2=#2", "#10=#10", "a=a"}));
}

void LinkContents::nullIsNothingAtAll() {
    QVERIFY(!contentOf(static_cast<const ModuleObject*>(nullptr)));
    QCOMPARE(jsonOf(nullptr), QJsonValue());
}

void LinkContents::aRefusalIsMinusOneAndNamesTheError() {
    const Content refused = brisk::standin::refusal("There is no \"x\".");
    QCOMPARE(refused->value(), QVariant(-1));
    QCOMPARE(refused->c("error")->getString(), QString("There is no \"x\"."));
    QCOMPARE(jsonOf(refused), QJsonValue(QJsonObject{{"", -1}, {"error", "There is no \"x\"."}}));
}

QTEST_APPLESS_MAIN(LinkContents)
#include "tst_link.moc"
