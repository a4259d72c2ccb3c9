#include "brisk/modulemanager.h"
#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QTest>

using brisk::ModuleObject;

class Lists : public QObject {
    Q_OBJECT

private slots:
    void aNewNodeIsNoList();
    void setListReplacesTheChildrenByItems();
    void setListKeepsTheOwnValue();
    void anInvalidValueInAListIsAnEmptyItem();
    void aFirstChildNamedLikeAnItemMakesAList_data();
    void aFirstChildNamedLikeAnItemMakesAList();
    void theMarkSurvivesClearAndTheLastRemoval();
    void lookUpsNeverMakeItems();
    void setMakesTheNextItemAndNoOther();
    void aListIsWrittenItemByItemAgainAfterClear();
    void aMissingItemByIndexIsMadeAtTheEndAlone();
    void plainNamesAreMadeInAListToo();
    void generateIdMarksTheListAndCountsUp();
    void generateIdWithoutAListIsTheFirstItem();
    void generateIdNeverGivesTheNameOfALivingItem();
    void generateIdStartsAgainAfterClear();
    void appendMakesAnItem();
};

void Lists::aNewNodeIsNoList() {
    ModuleObject node("n");
    QVERIFY(!node.isList());
    node.child("a");
    QVERIFY(!node.isList());
}

void Lists::setListReplacesTheChildrenByItems() {
    ModuleObject node("n");
    node.set(nullptr, "old.leaf", 1);
    node.setList(nullptr, {1.5, "two", true}, true);
    QVERIFY(node.isList());
    QCOMPARE(node.cmobjCount(), 3);
    QCOMPARE(node.c("#0")->getDouble(), 1.5);
    QCOMPARE(node.c("#1")->getString(), QString("two"));
    QCOMPARE(node.c(2)->name(), QString("#2"));
    QCOMPARE(node.c(2)->pmobj(), &node);
    QVERIFY(!node.hasCmobj("old"));
    node.setList(nullptr, {}, true);
    QVERIFY(node.isList());
    QCOMPARE(node.cmobjCount(), 0);
}

void Lists::setListKeepsTheOwnValue() {
    ModuleObject node("n");
    node.setValue(nullptr, "own");
    node.setList(nullptr, {1}, true);
    QCOMPARE(node.getString(), QString("own"));
}

void Lists::anInvalidValueInAListIsAnEmptyItem() {
    ModuleObject node("n");
    node.setList(nullptr, {1, QVariant(), 3}, true);
    QCOMPARE(node.cmobjCount(), 3);
    QVERIFY(node.c("#1")->isEmpty());
    QCOMPARE(node.exportToJson(true).toArray(), (QJsonArray{1, QJsonValue(), 3}));
}

void Lists::aFirstChildNamedLikeAnItemMakesAList_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("list");
    QTest::newRow("#0") << "#0" << true;
    QTest::newRow("#17") << "#17" << true;
    QTest::newRow("no digits") << "#" << false;
    QTest::newRow("a letter") << "#1a" << false;
    QTest::newRow("bracket") << "[0][0][0]" << false;
    QTest::newRow("digits alone") << "0" << false;
    QTest::newRow("empty") << "" << false;
}

void Lists::aFirstChildNamedLikeAnItemMakesAList() {
    QFETCH(QString, name);
    ModuleObject inserted("n");
    QVERIFY(inserted.insertChild(-1, new ModuleObject(name)));
    QTEST(inserted.isList(), "list");
    ModuleObject set("n");
    set.set(nullptr, "variables." + name, 1);
    QTEST(set.c("variables")->isList(), "list");
    ModuleObject second("n");
    second.child("first");
    second.append(nullptr, name);
    QVERIFY(!second.isList());
}

void Lists::theMarkSurvivesClearAndTheLastRemoval() {
    ModuleObject node("n");
    node.setList(nullptr, {1, 2}, true);
    node.clear(nullptr, true, true);
    QVERIFY(node.isList());
    node.append(nullptr, "#0");
    QVERIFY(node.removeChild(node.c(0)));
    QVERIFY(node.isList());
    QVERIFY(node.isEmpty());
}

void Lists::lookUpsNeverMakeItems() {
    ModuleObject node("n");
    node.set(nullptr, "list.#0.name", "p");
    ModuleObject* list = node.c("list");
    QVERIFY(!node.r("list.#1", true));
    QVERIFY(!node.r("list.#1.name", true));
    QVERIFY(!list->c("#1", true));
    QVERIFY(!list->cmobj("#7", true));
    QVERIFY(!list->child("#1"));
    QCOMPARE(list->cmobjCount(), 1);
}

void Lists::setMakesTheNextItemAndNoOther() {
    ModuleObject node("temp");
    for (int i = 0; i < 3; ++i)
        node.set(nullptr, QString("variables.#%1").arg(i), QString("v%1").arg(i));
    QCOMPARE(node.c("variables")->exportToJson(true).toArray(), (QJsonArray{"v0", "v1", "v2"}));
    node.set(nullptr, "variables.#7", 1);
    node.set(nullptr, "variables.#3.name", 1);
    QCOMPARE(node.c("variables")->cmobjCount(), 3);
    QVERIFY(node.c("variables")->removeChild(node.r("variables.#0")));
    node.set(nullptr, "variables.#0", "back");
    QCOMPARE(node.c("variables")->cmobjCount(), 2);
}

void Lists::aListIsWrittenItemByItemAgainAfterClear() {
    ModuleObject points("points");
    for (int round = 0; round < 3; ++round) {
        points.clear(nullptr, true, false);
        points.set(nullptr, "#0", round);
        QCOMPARE(points.exportToJson(true).toArray(), (QJsonArray{round}));
    }
}

void Lists::aMissingItemByIndexIsMadeAtTheEndAlone() {
    ModuleObject list("list");
    QVERIFY(!list.c(1, true));
    QCOMPARE(list.c(0, true)->name(), QString("#0"));
    QVERIFY(list.isList());
    QCOMPARE(list.cmobj(1, true)->name(), QString("#1"));
    QVERIFY(!list.c(3, true));
    QVERIFY(!list.c(2, false));
    QCOMPARE(list.cmobjCount(), 2);
    ModuleObject object("object");
    object.child("a");
    QVERIFY(!object.c(1, true));
    QVERIFY(!object.isList());
}

void Lists::plainNamesAreMadeInAListToo() {
    ModuleObject node("page");
    node.setList(nullptr, {1}, true);
    QVERIFY(node.c("pack", true));
    QVERIFY(node.isList());
}

void Lists::generateIdMarksTheListAndCountsUp() {
    ModuleObject list("list");
    QCOMPARE(ModuleObject::generateId(&list), QString("#0"));
    QVERIFY(list.isList());
    list.append(nullptr, "#0");
    QCOMPARE(ModuleObject::generateId(&list), QString("#1"));
}

void Lists::generateIdWithoutAListIsTheFirstItem() {
    QCOMPARE(ModuleObject::generateId(nullptr), QString("#0"));
    QCOMPARE(ModuleObject::generateId(nullptr), QString("#0"));
}

void Lists::generateIdNeverGivesTheNameOfALivingItem() {
    ModuleObject list("list");
    list.append(nullptr, "#5");
    list.append(nullptr, "#2");
    list.importFromJson(nullptr, QJsonArray{1, 2, 3, 4}, true, true, false);
    QSet<QString> names;
    for (int i = 0; i < 1000; ++i) {
        const QString id = ModuleObject::generateId(&list);
        QVERIFY(!list.hasCmobj(id));
        QVERIFY(list.insertChild(i % 2 ? -1 : 0, new ModuleObject(id)));
        if (i % 3 == 0)
            QVERIFY(list.removeChild(list.c(list.cmobjCount() / 2)));
    }
    for (ModuleObject* item : list.cmobjs())
        names.insert(item->name());
    QCOMPARE(names.size(), list.cmobjCount());
}

void Lists::generateIdStartsAgainAfterClear() {
    ModuleObject list("list");
    list.setList(nullptr, {1, 2, 3}, true);
    QCOMPARE(ModuleObject::generateId(&list), QString("#3"));
    list.clear(nullptr, true, false);
    QCOMPARE(ModuleObject::generateId(&list), QString("#0"));
}

void Lists::appendMakesAnItem() {
    ModuleObject list("list");
    list.setList(nullptr, {1}, true);
    ModuleObject* item = list.append(nullptr, "#7");
    QCOMPARE(list.c(1), item);
    QCOMPARE(list.append(nullptr, "#7"), item);
    QCOMPARE(ModuleObject::generateId(&list), QString("#8"));
}

QTEST_APPLESS_MAIN(Lists)
#include "tst_moduleobject_lists.moc"
