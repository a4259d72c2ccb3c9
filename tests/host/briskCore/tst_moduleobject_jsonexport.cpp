#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

using brisk::ModuleObject;

class JsonExport : public QObject {
    Q_OBJECT

private slots:
    void aLeafIsItsValue_data();
    void aLeafIsItsValue();
    void anEmptyNodeIsNull();
    void aNodeWithChildrenIsAnObject();
    void anObjectLeavesEmptyChildrenOut();
    void aListIsAnArrayAlsoWhenEmpty();
    void anArrayKeepsThePlaceOfAnEmptyItem();
    void childrenHideTheOwnValue();
    void withoutChildrenTheOwnValueAloneComes();
    void aDeepTreeComesOutWhole();
};

void JsonExport::aLeafIsItsValue_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QJsonValue>("json");
    QTest::newRow("int") << QVariant(3) << QJsonValue(3);
    QTest::newRow("double") << QVariant(0.25) << QJsonValue(0.25);
    QTest::newRow("text") << QVariant("on") << QJsonValue("on");
    QTest::newRow("bool") << QVariant(false) << QJsonValue(false);
    QTest::newRow("JSON array") << QVariant(QJsonArray{1, "a"}) << QJsonValue(QJsonArray{1, "a"});
    QTest::newRow("JSON object") << QVariant(QJsonObject{{"a", 1}}) << QJsonValue(QJsonObject{{"a", 1}});
    QTest::newRow("variant list") << QVariant(QVariantList{1, true}) << QJsonValue(QJsonArray{1, true});
    QTest::newRow("string list") << QVariant(QStringList{"a"}) << QJsonValue(QJsonArray{"a"});
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << QJsonValue();
    QTest::newRow("no value") << QVariant() << QJsonValue();
}

void JsonExport::aLeafIsItsValue() {
    QFETCH(QVariant, value);
    QFETCH(QJsonValue, json);
    ModuleObject node("n");
    node.setValue(nullptr, value);
    QCOMPARE(node.exportToJson(true), json);
    QCOMPARE(node.exportToJson(false), json);
}

void JsonExport::anEmptyNodeIsNull() {
    const ModuleObject node("n");
    QVERIFY(node.exportToJson(true).isNull());
    QVERIFY(node.exportToJson(false).isNull());
}

void JsonExport::aNodeWithChildrenIsAnObject() {
    ModuleObject node("n");
    node.set(nullptr, "description", "d");
    node.set(nullptr, "pos.x", 1.5);
    QCOMPARE(node.exportToJson(true), QJsonValue(QJsonObject{{"description", "d"}, {"pos", QJsonObject{{"x", 1.5}}}}));
}

void JsonExport::anObjectLeavesEmptyChildrenOut() {
    ModuleObject node("n");
    node.child("empty");
    QCOMPARE(node.exportToJson(true), QJsonValue(QJsonObject()));
    node.set(nullptr, "a", 1);
    node.child("inner")->child("empty");
    node.child("list")->setList(nullptr, {}, true);
    const QJsonObject expected{{"a", 1}, {"inner", QJsonObject()}, {"list", QJsonArray()}};
    QCOMPARE(node.exportToJson(true), QJsonValue(expected));
}

void JsonExport::aListIsAnArrayAlsoWhenEmpty() {
    ModuleObject list("list");
    list.setList(nullptr, {1, 2}, true);
    QCOMPARE(list.exportToJson(true), QJsonValue(QJsonArray{1, 2}));
    list.clear(nullptr, true, true);
    QCOMPARE(list.exportToJson(true), QJsonValue(QJsonArray()));
    ModuleObject::generateId(list.append(nullptr, "#0"));
    QCOMPARE(list.exportToJson(true), QJsonValue(QJsonArray{QJsonArray()}));
}

void JsonExport::anArrayKeepsThePlaceOfAnEmptyItem() {
    ModuleObject list("list");
    list.setList(nullptr, {QVariant(), "b"}, true);
    QCOMPARE(list.exportToJson(true), QJsonValue(QJsonArray{QJsonValue(), "b"}));
}

void JsonExport::childrenHideTheOwnValue() {
    ModuleObject node("n");
    node.setValue(nullptr, 5);
    node.set(nullptr, "a", 1);
    QCOMPARE(node.exportToJson(true), QJsonValue(QJsonObject{{"a", 1}}));
}

void JsonExport::withoutChildrenTheOwnValueAloneComes() {
    ModuleObject node("n");
    node.set(nullptr, "a", 1);
    QVERIFY(node.exportToJson(false).isNull());
    node.setValue(nullptr, 5);
    QCOMPARE(node.exportToJson(false), QJsonValue(5));
    node.setList(nullptr, {1}, true);
    QCOMPARE(node.exportToJson(false), QJsonValue(5));
}

void JsonExport::aDeepTreeComesOutWhole() {
    constexpr int depth = 500;
    ModuleObject node("n");
    node.set(nullptr, QString("a.").repeated(depth) + "leaf", 1);
    QJsonValue json = node.exportToJson(true);
    for (int i = 0; i < depth; ++i)
        json = json.toObject().value("a");
    QCOMPARE(json, QJsonValue(QJsonObject{{"leaf", 1}}));
}

QTEST_APPLESS_MAIN(JsonExport)
#include "tst_moduleobject_jsonexport.moc"
