#include "state/writechanges.h"

#include "brisk/link.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using brisk::ModuleObject;
using brisk::standin::Content;
using pendant::writeChanges;

// A node is made what another is, and only what differs is written.
class TestWriteChanges : public QObject {
    Q_OBJECT

private slots:
    void onlyTheNodeThatDiffersTells();
    void anEqualNodeIsSilent();
    void aChildThatComesStandsInItsPlace();
    void aChildThatGoesIsRemovedAndTheOthersStay();
    void anotherOrderIsTaken();
    void aListStaysAList();
    void aListGrowsAndShrinks();
    void aNewListIsMarkedAsOne();
    void theKindOfAValueCounts();
    void aNodeWithChildrenBecomesAValue();
    void nothingEmptiesTheNode();
    void whoHearsOfAChildThatGoesMayRemoveItsSiblings();
    void whoHearsOfAChangeMayDestroyTheNode();

private:
    static Content content(const char* json) {
        const QJsonDocument document = QJsonDocument::fromJson(QByteArray("{\"x\":") + json + '}');
        if (!document.isObject())
            qFatal("no JSON: %s", json);
        return brisk::standin::contentOf(QVariant(document.object().value("x")));
    }
    static QString text(const ModuleObject* node) {
        const QJsonDocument document(QJsonObject{{"x", node->exportToJson(true)}});
        return QString::fromUtf8(document.toJson(QJsonDocument::Compact)).mid(5).chopped(1);
    }
    // The names of the nodes that told, each with its value.
    static void note(ModuleObject* node, QStringList* told) {
        const QList<ModuleObject*> nodes = node->cmobjs(true) + QList<ModuleObject*>{node};
        for (ModuleObject* each : nodes)
            connect(each, &ModuleObject::changed, each,
                    [each, told](const QVariant& value) { *told << each->name() + '=' + value.toString(); });
    }
};

void TestWriteChanges::onlyTheNodeThatDiffersTells() {
    const Content target = content(R"({"a": 1, "b": {"c": 2, "d": 3}})");
    QStringList told;
    note(target.get(), &told);
    QObject sender;
    QObject* heard = nullptr;
    connect(target->r("b.d"), &ModuleObject::changed, this,
            [&](const QVariant&, const QVariant&, QObject* by) { heard = by; });
    writeChanges(content(R"({"a": 1, "b": {"c": 2, "d": 4}})").get(), target.get(), &sender);
    QCOMPARE(told, QStringList{"d=4"});
    QCOMPARE(heard, &sender);
}

void TestWriteChanges::anEqualNodeIsSilent() {
    const Content target = content(R"({"a": [1, {"b": "x"}], "c": 2.5})");
    bool isTouched = false;
    connect(target.get(), &ModuleObject::touched, this, [&] { isTouched = true; });
    writeChanges(content(R"({"a": [1, {"b": "x"}], "c": 2.5})").get(), target.get(), nullptr);
    QVERIFY(!isTouched);
}

void TestWriteChanges::aChildThatComesStandsInItsPlace() {
    const Content target = content(R"({"a": 1, "c": 3})");
    QStringList told;
    note(target.get(), &told);
    writeChanges(content(R"({"a": 1, "b": 2, "c": 3})").get(), target.get(), nullptr);
    QCOMPARE(target->c(1)->name(), QString("b"));
    QCOMPARE(text(target.get()), QString(R"({"a":1,"b":2,"c":3})"));
    QVERIFY(told.isEmpty());
}

void TestWriteChanges::aChildThatGoesIsRemovedAndTheOthersStay() {
    const Content target = content(R"({"a": 1, "b": 2, "c": 3})");
    const ModuleObject* kept = target->c("c");
    writeChanges(content(R"({"c": 3})").get(), target.get(), nullptr);
    QCOMPARE(text(target.get()), QString(R"({"c":3})"));
    QCOMPARE(target->c("c"), kept);
}

void TestWriteChanges::anotherOrderIsTaken() {
    const Content target = content("{}");
    const Content source = content("{}");
    for (const char* name : {"a", "b", "c"})
        target->append(nullptr, name)->setValue(nullptr, name);
    for (const char* name : {"c", "a", "b"})
        source->append(nullptr, name)->setValue(nullptr, name);
    writeChanges(source.get(), target.get(), nullptr);
    QStringList names;
    for (const ModuleObject* child : target->cmobjs())
        names << child->name() + child->getString();
    QCOMPARE(names, (QStringList{"cc", "aa", "bb"}));
}

void TestWriteChanges::aListStaysAList() {
    const Content target = content("[1]");
    writeChanges(content("[]").get(), target.get(), nullptr);
    QVERIFY(target->isList());
    QCOMPARE(text(target.get()), QString("[]"));
}

void TestWriteChanges::aListGrowsAndShrinks() {
    const Content target = content(R"(["a", "b"])");
    const ModuleObject* first = target->c(0);
    writeChanges(content(R"(["a", "x", "y"])").get(), target.get(), nullptr);
    QCOMPARE(text(target.get()), QString(R"(["a","x","y"])"));
    writeChanges(content(R"(["a"])").get(), target.get(), nullptr);
    QCOMPARE(text(target.get()), QString(R"(["a"])"));
    QCOMPARE(target->c(0), first);
}

void TestWriteChanges::aNewListIsMarkedAsOne() {
    const Content target = content("5");
    writeChanges(content("[]").get(), target.get(), nullptr);
    QVERIFY(target->isList());
    QVERIFY(!target->value().isValid());
}

void TestWriteChanges::theKindOfAValueCounts() {
    const Content target = content("1");
    writeChanges(content("true").get(), target.get(), nullptr);
    QCOMPARE(target->value().userType(), int(QMetaType::Bool));
}

void TestWriteChanges::aNodeWithChildrenBecomesAValue() {
    const Content target = content(R"({"a": 1})");
    writeChanges(content("7").get(), target.get(), nullptr);
    QCOMPARE(text(target.get()), QString("7"));
    QCOMPARE(target->cmobjCount(), 0);
}

void TestWriteChanges::nothingEmptiesTheNode() {
    const Content target = content(R"({"a": 1})");
    writeChanges(nullptr, target.get(), nullptr);
    QVERIFY(target->isEmpty());
}

void TestWriteChanges::whoHearsOfAChildThatGoesMayRemoveItsSiblings() {
    const Content target = content(R"({"a": 1, "b": 2, "c": 3, "d": 4})");
    connect(target.get(), &ModuleObject::removed, this, [&](const QString& name) {
        if (name == "a")
            target->clear(nullptr, true, true);
    });
    writeChanges(content(R"({"c": 3, "d": 5})").get(), target.get(), nullptr);
    QCOMPARE(text(target.get()), QString(R"({"c":3,"d":5})"));
}

void TestWriteChanges::whoHearsOfAChangeMayDestroyTheNode() {
    const Content root = content(R"({"t": {"a": 1, "b": 2}})");
    connect(root->r("t.a"), &ModuleObject::changed, this, [&] { root->removeChild(root->c("t")); });
    writeChanges(content(R"({"a": 5, "b": 6, "c": 7})").get(), root->c("t"), nullptr);
    QVERIFY(!root->hasCmobj("t"));
}

QTEST_GUILESS_MAIN(TestWriteChanges)
#include "tst_state_writechanges.moc"
