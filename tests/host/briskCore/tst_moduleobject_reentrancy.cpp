#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>

using brisk::ModuleObject;
using Act = std::function<void(ModuleObject*)>;

Q_DECLARE_METATYPE(Act)

/// Slots that pull the tree from under the feet of the write that called them. "node" is the node that is written,
/// at "parent.node" below the root; "parent.sibling" stands after it.
class Reentrancy : public QObject {
    Q_OBJECT

private slots:
    void init();
    void aWriteSurvivesWhatItsSlotDoes_data();
    void aWriteSurvivesWhatItsSlotDoes();
    void aSlotMayWriteAgain();
    void aChangeOfStructureSurvivesItsSlot_data();
    void aChangeOfStructureSurvivesItsSlot();
    void anImportSurvivesTheEndOfItsNode();
    void anImportSurvivesTheEndOfWhatItMakes();
    void pruningSurvivesASlotThatClears();
    void aDestroyedSlotMayDeleteASibling_data();
    void aDestroyedSlotMayDeleteASibling();
    void aNodeMadeAndDeletedAtOnceIsNull();
    void anExceptionInASlotLeavesTheTreeInOrder();

private:
    ModuleObject* node() const { return m_root->r("parent.node"); }
    std::unique_ptr<ModuleObject> m_root;
};

void Reentrancy::init() {
    m_root.reset(new ModuleObject("root"));
    m_root->set(nullptr, "parent.node", 1);
    m_root->set(nullptr, "parent.sibling", 2);
}

namespace {

void addActs() {
    QTest::addColumn<Act>("act");
    const auto row = [](const char* name, const Act& act) { QTest::newRow(name) << act; };
    row("deletes the node", [](ModuleObject* root) { delete root->r("parent.node"); });
    row("removes the node", [](ModuleObject* root) {
        if (ModuleObject* parent = root->c("parent"))
            parent->removeChild(parent->c("node"));
    });
    row("deletes the parent", [](ModuleObject* root) { delete root->c("parent"); });
    row("deletes the sibling", [](ModuleObject* root) { delete root->r("parent.sibling"); });
    row("clears the parent", [](ModuleObject* root) {
        if (ModuleObject* parent = root->c("parent"))
            parent->clear(nullptr, true, true);
    });
    row("clears the root", [](ModuleObject* root) { root->clear(nullptr, false, true); });
}

// Each signal of the node and of those above it calls `act` once.
void attach(ModuleObject* node, QObject* context, const std::function<void()>& act) {
    QObject::connect(node, &ModuleObject::changed, context, act);
    QObject::connect(node, &ModuleObject::inserted, context, act);
    QObject::connect(node, &ModuleObject::removed, context, act);
    QObject::connect(node, &ModuleObject::cleared, context, act);
    QObject::connect(node, &ModuleObject::touched, context, act);
}

} // namespace

void Reentrancy::aWriteSurvivesWhatItsSlotDoes_data() {
    addActs();
}

void Reentrancy::aWriteSurvivesWhatItsSlotDoes() {
    QFETCH(Act, act);
    for (const bool early : {true, false}) {
        init();
        int heard = 0;
        ModuleObject* at = early ? node() : m_root.get();
        attach(at, this, [&] {
            if (++heard == 1)
                act(m_root.get());
        });
        node()->setValue(nullptr, "new");
        QVERIFY(heard > 0);
        m_root->set(nullptr, "parent.node", "after");
        QCOMPARE(node()->getString(), QString("after"));
        m_root->disconnect(this);
    }
}

void Reentrancy::aSlotMayWriteAgain() {
    QVariantList heard;
    connect(node(), &ModuleObject::changed, this, [&](const QVariant& value, const QVariant& previous) {
        if (value.toInt() < 13)
            node()->setValue(nullptr, value.toInt() + 1);
        heard << value << previous;
    });
    node()->setValue(nullptr, 11);
    QCOMPARE(heard, (QVariantList{13, 12, 12, 11, 11, 1}));
    QCOMPARE(node()->getInt(), 13);
}

void Reentrancy::aChangeOfStructureSurvivesItsSlot_data() {
    QTest::addColumn<Act>("act");
    QTest::addColumn<Act>("change");
    const auto row = [](const char* name, const Act& change) {
        QTest::addRow("%s, slot deletes it", name)
            << Act([](ModuleObject* root) { delete root->c("parent"); }) << change;
        QTest::addRow("%s, slot clears it", name)
            << Act([](ModuleObject* root) { root->c("parent")->clear(nullptr, true, true); }) << change;
    };
    row("insert", [](ModuleObject* parent) { parent->insertChild(0, new ModuleObject("x")); });
    row("append", [](ModuleObject* parent) { parent->append(nullptr, "x"); });
    row("make", [](ModuleObject* parent) { parent->r("x.y.z", true); });
    row("set", [](ModuleObject* parent) { parent->set(nullptr, "x.y.z", 1); });
    row("remove", [](ModuleObject* parent) { parent->removeChild(parent->c("node")); });
    row("delete", [](ModuleObject* parent) { delete parent->c("node"); });
    row("clear", [](ModuleObject* parent) { parent->clear(nullptr, true, true); });
    row("list", [](ModuleObject* parent) { parent->setList(nullptr, {1, 2, 3}); });
    row("object", [](ModuleObject* parent) {
        parent->importFromJson(nullptr, QJsonObject{{"a", 1}, {"node", 2}, {"z", 3}}, true, true, true);
    });
    row("array", [](ModuleObject* parent) {
        parent->importFromJson(nullptr, QJsonArray{1, 2, 3, 4}, true, true, true);
    });
    row("copy", [](ModuleObject* parent) {
        ModuleObject other("other");
        other.setList(nullptr, {1, 2, 3});
        parent->copyFrom(&other);
    });
}

void Reentrancy::aChangeOfStructureSurvivesItsSlot() {
    QFETCH(Act, act);
    QFETCH(Act, change);
    int heard = 0;
    attach(m_root->c("parent"), this, [&] {
        if (++heard == 1)
            act(m_root.get());
    });
    change(m_root->c("parent"));
    QVERIFY(heard > 0);
    delete m_root->c("parent");
    QCOMPARE(m_root->cmobjCount(), 0);
}

void Reentrancy::anImportSurvivesTheEndOfItsNode() {
    m_root->importFromJson(nullptr, QJsonObject{{"l", QJsonArray{1, QJsonArray{2, 3}, 4}}}, true, true, true);
    connect(m_root->r("l.#1.#0"), &ModuleObject::changed, this, [this] { delete m_root->c("l"); });
    m_root->importFromJson(nullptr, QJsonObject{{"l", QJsonArray{5, QJsonArray{6, 7}, 8}}, {"m", 9}}, true, true, true);
    QVERIFY(!m_root->c("l"));
    QCOMPARE(m_root->c("m")->getInt(), 9);
}

void Reentrancy::anImportSurvivesTheEndOfWhatItMakes() {
    connect(m_root.get(), &ModuleObject::inserted, this, [](ModuleObject* child) { delete child; });
    m_root->importFromJson(nullptr, QJsonObject{{"x", 1}, {"y", QJsonArray{1}}}, true, true, false);
    QVERIFY(!m_root->c("x"));
    QVERIFY(!m_root->c("y"));
}

void Reentrancy::pruningSurvivesASlotThatClears() {
    for (int i = 0; i < 30; ++i)
        m_root->set(nullptr, QString("parent.child%1").arg(i), i);
    int heard = 0;
    ModuleObject* parent = m_root->c("parent");
    connect(parent, &ModuleObject::removed, this, [&] {
        if (++heard == 3)
            parent->clear(nullptr, false, true);
    });
    parent->importFromJson(nullptr, QJsonObject{{"kept", 1}}, true, true, true);
    QCOMPARE(heard, 3);
    QCOMPARE(parent->cmobjCount(), 0);
}

void Reentrancy::aDestroyedSlotMayDeleteASibling_data() {
    QTest::addColumn<Act>("change");
    QTest::addColumn<int>("survivors");
    const auto row = [](const char* name, int survivors, const Act& change) {
        QTest::newRow(name) << change << survivors;
    };
    row("remove", 29, [](ModuleObject* root) { root->c("parent")->removeChild(root->r("parent.child29")); });
    row("clear", 0, [](ModuleObject* root) { root->c("parent")->clear(nullptr, true, true); });
    row("delete", 0, [](ModuleObject* root) { delete root->c("parent"); });
    row("list", 0, [](ModuleObject* root) { root->c("parent")->setList(nullptr, {1}); });
}

void Reentrancy::aDestroyedSlotMayDeleteASibling() {
    QFETCH(Act, change);
    QFETCH(int, survivors);
    for (int i = 0; i < 30; ++i)
        m_root->r(QString("parent.child%1").arg(i), true);
    QList<QPointer<ModuleObject>> children;
    for (ModuleObject* child : m_root->c("parent")->cmobjs())
        children << child;
    const QPointer<ModuleObject> first = m_root->r("parent.child0");
    const QPointer<ModuleObject> sibling = m_root->r("parent.sibling");
    connect(m_root->r("parent.child29"), &QObject::destroyed, this, [&] {
        delete first;
        delete sibling;
    });
    change(m_root.get());
    children.removeAll(nullptr);
    QCOMPARE(children.size(), survivors);
}

void Reentrancy::aNodeMadeAndDeletedAtOnceIsNull() {
    connect(m_root.get(), &ModuleObject::inserted, this, [](ModuleObject* child) { delete child; });
    QVERIFY(!m_root->r("x.y", true));
    QVERIFY(!m_root->child("x"));
    QVERIFY(!m_root->append(nullptr, "x"));
    m_root->set(nullptr, "x.y", 1);
    QVERIFY(!m_root->c("x"));
}

void Reentrancy::anExceptionInASlotLeavesTheTreeInOrder() {
    connect(node(), &ModuleObject::changed, this, [] { throw 1; });
    QVERIFY_EXCEPTION_THROWN(m_root->set(nullptr, "parent.node", 5), int);
    QCOMPARE(node()->getInt(), 5);
    QVERIFY_EXCEPTION_THROWN(
        m_root->importFromJson(nullptr, QJsonObject{{"parent", QJsonObject{{"node", 6}}}}, true, true, true), int);
    QCOMPARE(node()->getInt(), 6);
    delete m_root->c("parent");
    m_root->set(nullptr, "parent.node", 7);
    QCOMPARE(node()->getInt(), 7);
}

QTEST_APPLESS_MAIN(Reentrancy)
#include "tst_moduleobject_reentrancy.moc"
