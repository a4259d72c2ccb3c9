#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTest>

#include <memory>

using brisk::ModuleObject;

namespace {

QJsonValue parsed(const QString& json) {
    return QJsonDocument::fromJson('[' + json.toUtf8() + ']').array().at(0);
}

QString text(const ModuleObject& node) {
    const QByteArray wrapped = QJsonDocument(QJsonArray{node.exportToJson(true)}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

} // namespace

class JsonImport : public QObject {
    Q_OBJECT

private slots:
    void init();
    void importMergesAsItsFlagsSay_data();
    void importMergesAsItsFlagsSay();
    void whatWasImportedComesOutAgain_data();
    void whatWasImportedComesOutAgain();
    void nodesThatStayAreTheSameNodes();
    void pruneNeverRemovesAnEmptyChild();
    void pruneRemovesWhatLiesPastAnArrayAlsoWhenEmpty();
    void anArrayRenumbersTheItems();
    void aRenumberedItemIsForgottenUnderItsOldName();
    void removingAnElementShiftsTheItems();
    void anArrayMarksTheNodeAsAList();
    void whatIsNoArrayTakesTheMarkOfAnEmptyList_data();
    void whatIsNoArrayTakesTheMarkOfAnEmptyList();
    void theOwnValueStaysBesideChildren();
    void aWholeNumberIsAnInt();
    void aNodeThatHoldsADoubleKeepsToIt();
    void aDeepDocumentGoesInAndOut();

private:
    std::unique_ptr<ModuleObject> m_node;
};

void JsonImport::init() {
    m_node.reset(new ModuleObject("node"));
}

void JsonImport::importMergesAsItsFlagsSay_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("create");
    QTest::addColumn<bool>("prune");
    QTest::addColumn<QString>("after");
    const QString object = R"({"a":1,"b":{"c":2}})";
    QTest::newRow("object: create") << object << R"({"b":{"c":3,"d":4}})" << true << false
                                    << R"({"a":1,"b":{"c":3,"d":4}})";
    QTest::newRow("object: passed over") << object << R"({"b":{"c":3,"d":4},"e":5})" << false << false
                                         << R"({"a":1,"b":{"c":3}})";
    QTest::newRow("object: prune") << object << R"({"b":{"d":4}})" << true << true << R"({"b":{"d":4}})";
    QTest::newRow("object: prune alone") << object << R"({"b":{"d":4}})" << false << true << "{}";
    QTest::newRow("object: leaf for object") << object << R"({"b":7})" << true << true << R"({"b":7})";
    QTest::newRow("object: null empties") << object << R"({"a":null,"b":null})" << true << true << "{}";
    QTest::newRow("array: create") << "[1,2]"
                                   << "[3,4,5]" << true << false << "[3,4,5]";
    QTest::newRow("array: passed over") << "[1,2]"
                                        << "[3,4,5]" << false << false << "[3,4]";
    QTest::newRow("array: surplus stays") << "[1,2,3]"
                                          << "[4]" << true << false << "[4,2,3]";
    QTest::newRow("array: surplus pruned") << "[1,2,3]"
                                           << "[4]" << true << true << "[4]";
    QTest::newRow("array: emptied") << "[1,2,3]"
                                    << "[]" << true << true << "[]";
    QTest::newRow("array: in an array") << "[[1],[2,3]]"
                                        << "[[],[4]]" << true << true << "[[],[4]]";
    QTest::newRow("array: null in an item") << R"([{"a":1},2])"
                                            << "[null,2]" << true << true << "[null,2]";
    QTest::newRow("leaf") << "1"
                          << R"("two")" << false << false << R"("two")";
    QTest::newRow("leaf for a list") << "[1,2]"
                                     << "-1" << true << true << "-1";
    QTest::newRow("object for a list") << "[1,2]"
                                       << R"({"a":1})" << true << true << R"({"a":1})";
    QTest::newRow("list for an object") << object << "[5]" << true << true << "[5]";
}

void JsonImport::importMergesAsItsFlagsSay() {
    QFETCH(QString, before);
    QFETCH(QString, json);
    QFETCH(bool, create);
    QFETCH(bool, prune);
    QFETCH(QString, after);
    m_node->importFromJson(nullptr, parsed(before), true, true, false);
    QCOMPARE(text(*m_node), before);
    m_node->importFromJson(nullptr, parsed(json), true, create, prune);
    QCOMPARE(text(*m_node), after);
}

void JsonImport::whatWasImportedComesOutAgain_data() {
    QTest::addColumn<QString>("json");
    for (const char* json : {"null", "1", "-2.5", "\"t\"", "true", "[]", "[1,\"a\",null,[],{\"b\":[1]}]",
                             "{\"a\":{\"b\":{\"c\":[{\"x\":1},{\"x\":2}]}},\"d\":\"\"}"})
        QTest::newRow(json) << QString(json);
}

void JsonImport::whatWasImportedComesOutAgain() {
    QFETCH(QString, json);
    m_node->importFromJson(nullptr, parsed(json), true, true, false);
    QCOMPARE(text(*m_node), json);
    m_node->importFromJson(nullptr, m_node->exportToJson(true), true, true, true);
    QCOMPARE(text(*m_node), json);
}

void JsonImport::nodesThatStayAreTheSameNodes() {
    m_node->importFromJson(nullptr, parsed(R"({"a":{"b":1},"l":[1,2]})"), true, true, true);
    const QPointer<ModuleObject> b = m_node->r("a.b");
    const QPointer<ModuleObject> item = m_node->r("l.#1");
    m_node->importFromJson(nullptr, parsed(R"({"a":{"b":2},"l":[3,4]})"), true, true, true);
    QCOMPARE(m_node->r("a.b"), b.data());
    QCOMPARE(m_node->r("l.#1"), item.data());
    QCOMPARE(b->getInt(), 2);
    QCOMPARE(item->getInt(), 4);
}

void JsonImport::pruneNeverRemovesAnEmptyChild() {
    m_node->set(nullptr, "full", 1);
    const QPointer<ModuleObject> empty = m_node->child("empty");
    const QPointer<ModuleObject> emptyList = m_node->child("list");
    emptyList->setList(nullptr, {}, true);
    m_node->importFromJson(nullptr, QJsonObject{{"other", 1}}, true, true, true);
    QVERIFY(empty);
    QVERIFY(emptyList);
    QVERIFY(!m_node->hasCmobj("full"));
    m_node->importFromJson(nullptr, m_node->exportToJson(true), true, true, true);
    QVERIFY(empty);
}

void JsonImport::pruneRemovesWhatLiesPastAnArrayAlsoWhenEmpty() {
    m_node->setList(nullptr, {1, QVariant(), QVariant()}, true);
    m_node->importFromJson(nullptr, QJsonArray{1, QJsonValue()}, true, true, true);
    QCOMPARE(m_node->cmobjCount(), 2);
}

void JsonImport::anArrayRenumbersTheItems() {
    for (const char* name : {"#4", "#0", "#9"})
        m_node->append(nullptr, name);
    const QList<ModuleObject*> items = m_node->cmobjs();
    m_node->importFromJson(nullptr, QJsonArray{"a", "b", "c"}, true, true, false);
    QCOMPARE(m_node->cmobjs(), items);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(m_node->c(QString("#%1").arg(i)), items.at(i));
    QVERIFY(!m_node->c("#4"));
    QVERIFY(!m_node->c("#9"));
    QCOMPARE(ModuleObject::generateId(m_node.get()), QString("#3"));
}

void JsonImport::aRenumberedItemIsForgottenUnderItsOldName() {
    QJsonArray array;
    for (int i = 0; i < 40; ++i) {
        m_node->append(nullptr, QString("#%1").arg(1000 + i));
        array.append(i);
    }
    m_node->importFromJson(nullptr, array, true, true, true);
    for (int i = 0; i < 20; ++i) {
        QVERIFY(!m_node->c(QString("#%1").arg(1000 + i)));
        QVERIFY(m_node->removeChild(m_node->c(QString("#%1").arg(i))));
        QVERIFY(!m_node->c(QString("#%1").arg(1000 + i)));
    }
    QCOMPARE(m_node->cmobjCount(), 20);
}

void JsonImport::removingAnElementShiftsTheItems() {
    for (int count : {3, 40}) {
        m_node->clear(nullptr, true, true);
        for (int i = 0; i < count; ++i)
            m_node->append(nullptr, ModuleObject::generateId(m_node.get()))->set(nullptr, "nav", i);
        QJsonArray array = m_node->exportToJson(true).toArray();
        array.removeAt(1);
        m_node->importFromJson(nullptr, array, true, true, true);
        QCOMPARE(m_node->cmobjCount(), count - 1);
        QCOMPARE(m_node->exportToJson(true).toArray(), array);
        QCOMPARE(m_node->c("#1")->c("nav")->getInt(), 2);
        QVERIFY(!m_node->c(QString("#%1").arg(count - 1)));
    }
}

void JsonImport::anArrayMarksTheNodeAsAList() {
    m_node->importFromJson(nullptr, QJsonArray(), true, false, false);
    QVERIFY(m_node->isList());
    QCOMPARE(text(*m_node), QString("[]"));
}

void JsonImport::whatIsNoArrayTakesTheMarkOfAnEmptyList_data() {
    QTest::addColumn<QString>("json");
    for (const char* json : {"null", "-1", "{\"error\":1}"})
        QTest::newRow(json) << QString(json);
}

void JsonImport::whatIsNoArrayTakesTheMarkOfAnEmptyList() {
    QFETCH(QString, json);
    m_node->setList(nullptr, {1, 2}, true);
    m_node->clear(nullptr, false, true);
    m_node->importFromJson(nullptr, parsed(json), true, true, false);
    QVERIFY(!m_node->isList());
    QCOMPARE(text(*m_node), json);
}

void JsonImport::theOwnValueStaysBesideChildren() {
    m_node->setValue(nullptr, 5);
    m_node->importFromJson(nullptr, QJsonObject{{"a", 1}}, true, true, true);
    m_node->child("a")->importFromJson(nullptr, QJsonArray{1}, true, true, true);
    QCOMPARE(m_node->getInt(), 5);
    QCOMPARE(m_node->c("a")->getInt(), 1);
}

void JsonImport::aWholeNumberIsAnInt() {
    m_node->importFromJson(nullptr, parsed(R"({"i":3,"n":-3,"d":3.5,"big":5000000000})"), true, true, true);
    QCOMPARE(m_node->c("i")->value(), QVariant(3));
    QCOMPARE(m_node->c("i")->value().type(), QVariant::Int);
    QCOMPARE(m_node->c("n")->value().type(), QVariant::Int);
    QCOMPARE(m_node->c("d")->value().type(), QVariant::Double);
    QCOMPARE(m_node->c("big")->value().type(), QVariant::Double);
    QCOMPARE(m_node->c("big")->getDouble(), 5e9);
}

void JsonImport::aNodeThatHoldsADoubleKeepsToIt() {
    m_node->set(nullptr, "x", 2.5);
    m_node->importFromJson(nullptr, QJsonObject{{"x", 100}}, true, true, true);
    QCOMPARE(m_node->c("x")->value().type(), QVariant::Double);
    QCOMPARE(m_node->c("x")->getDouble(), 100.0);
}

void JsonImport::aDeepDocumentGoesInAndOut() {
    QJsonValue json(1);
    for (int i = 0; i < 1000; ++i)
        json = i % 2 ? QJsonValue(QJsonArray{json}) : QJsonValue(QJsonObject{{"a", json}});
    m_node->importFromJson(nullptr, json, true, true, true);
    QCOMPARE(m_node->cmobjs(true).size(), 1000);
    QCOMPARE(m_node->exportToJson(true), json);
}

QTEST_APPLESS_MAIN(JsonImport)
#include "tst_moduleobject_jsonimport.moc"
