#include "brisk/moduleobject.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QTest>

#include <memory>

using brisk::ModuleObject;

namespace {

QString childNames(const ModuleObject& node) {
    QStringList names;
    for (ModuleObject* child : node.cmobjs())
        names << child->name();
    return names.join(' ');
}

} // namespace

class Structure : public QObject {
    Q_OBJECT

private slots:
    void init();
    void aNodeMadeWithAParentStandsAtItsEnd();
    void aNodeWhoseNameIsTakenStaysWithoutAParent();
    void insertPutsTheChildAtTheIndex_data();
    void insertPutsTheChildAtTheIndex();
    void insertRefusesNull();
    void insertRefusesTheNodeItselfAndItsAncestors();
    void insertRefusesAChildThatHasAParent();
    void insertRefusesANameThatIsTaken();
    void removeDeletesTheChild();
    void removeOfWhatIsNoChildDoesNothing();
    void aParentDeletesItsChildren();
    void aChildDeletedFromOutsideLeavesItsParent();
    void clearKeepsTheNodeAndOnDemandItsValue();
    void copyBringsValueChildrenAndListMark();
    void copyIsDeep();
    void copyReplacesWhatWasThere();
    void copyOfNullClears();
    void copyOfItselfChangesNothing();
    void copyOfAChildOrAParentIsSafe();
    void appendGivesTheChildThatIsThere();
    void appendTakesAPlainName();
    void theObjectParentIsNotUsed();

private:
    std::unique_ptr<ModuleObject> m_node;
};

void Structure::init() {
    m_node.reset(new ModuleObject("node"));
}

void Structure::aNodeMadeWithAParentStandsAtItsEnd() {
    auto* a = new ModuleObject("a", m_node.get());
    auto* b = new ModuleObject("b", m_node.get());
    QCOMPARE(a->pmobj(), m_node.get());
    QCOMPARE(m_node->c(1), b);
}

void Structure::aNodeWhoseNameIsTakenStaysWithoutAParent() {
    ModuleObject* first = m_node->child("a");
    const ModuleObject second("a", m_node.get());
    QVERIFY(!second.pmobj());
    QCOMPARE(m_node->cmobjs(), QList<ModuleObject*>{first});
}

void Structure::insertPutsTheChildAtTheIndex_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("names");
    QTest::newRow("front") << 0 << "new a b c";
    QTest::newRow("middle") << 2 << "a b new c";
    QTest::newRow("last place") << 3 << "a b c new";
    QTest::newRow("-1 is the end") << -1 << "a b c new";
    QTest::newRow("past the end") << 99 << "a b c new";
}

void Structure::insertPutsTheChildAtTheIndex() {
    QFETCH(int, index);
    for (const char* name : {"a", "b", "c"})
        m_node->child(name);
    auto* child = new ModuleObject("new");
    QVERIFY(m_node->insertChild(index, child));
    QTEST(childNames(*m_node), "names");
    QCOMPARE(child->pmobj(), m_node.get());
    QCOMPARE(m_node->c("new"), child);
}

void Structure::insertRefusesNull() {
    QVERIFY(!m_node->insertChild(0, nullptr));
}

void Structure::insertRefusesTheNodeItselfAndItsAncestors() {
    ModuleObject* inner = m_node->r("a.b", true);
    QVERIFY(!m_node->insertChild(-1, m_node.get()));
    QVERIFY(!inner->insertChild(-1, m_node.get()));
    QVERIFY(!m_node->pmobj());
    QCOMPARE(inner->cmobjCount(), 0);
}

void Structure::insertRefusesAChildThatHasAParent() {
    ModuleObject other("other");
    ModuleObject* child = other.child("a");
    QVERIFY(!m_node->insertChild(-1, child));
    QCOMPARE(child->pmobj(), &other);
    QCOMPARE(m_node->cmobjCount(), 0);
}

void Structure::insertRefusesANameThatIsTaken() {
    ModuleObject* present = m_node->child("a");
    ModuleObject again("a");
    QVERIFY(!m_node->insertChild(0, &again));
    QVERIFY(!again.pmobj());
    QCOMPARE(m_node->cmobjs(), QList<ModuleObject*>{present});
}

void Structure::removeDeletesTheChild() {
    const QPointer<ModuleObject> child = m_node->child("a");
    const QPointer<ModuleObject> below = child->child("b");
    QVERIFY(m_node->removeChild(child));
    QVERIFY(!child);
    QVERIFY(!below);
    QVERIFY(!m_node->hasCmobj("a"));
    QCOMPARE(m_node->cmobjCount(), 0);
}

void Structure::removeOfWhatIsNoChildDoesNothing() {
    ModuleObject stranger("a");
    const QPointer<ModuleObject> grandchild = m_node->r("a.name", true);
    QVERIFY(!m_node->removeChild(grandchild));
    QVERIFY(!m_node->removeChild(&stranger));
    QVERIFY(!m_node->removeChild(nullptr));
    QVERIFY(!m_node->removeChild(m_node.get()));
    QVERIFY(!stranger.removeChild(m_node->c("a")));
    QVERIFY(grandchild);
    QCOMPARE(m_node->cmobjs(true).size(), 2);
}

void Structure::aParentDeletesItsChildren() {
    const QPointer<ModuleObject> leaf = m_node->r("a.b.c", true);
    m_node.reset();
    QVERIFY(!leaf);
}

void Structure::aChildDeletedFromOutsideLeavesItsParent() {
    for (int i = 0; i < 40; ++i)
        m_node->child(QString::number(i));
    delete m_node->c("7");
    QCOMPARE(m_node->cmobjCount(), 39);
    QVERIFY(!m_node->c("7"));
    QCOMPARE(m_node->c(7)->name(), QString("8"));
    QVERIFY(m_node->child("7"));
}

void Structure::clearKeepsTheNodeAndOnDemandItsValue() {
    const QPointer<ModuleObject> child = m_node->child("a");
    m_node->setValue(nullptr, 5);
    m_node->clear(nullptr, true, false);
    QVERIFY(!child);
    QCOMPARE(m_node->cmobjCount(), 0);
    QCOMPARE(m_node->getInt(), 5);
    m_node->clear(nullptr, true, true);
    QVERIFY(m_node->isEmpty());
}

void Structure::copyBringsValueChildrenAndListMark() {
    ModuleObject other("other");
    other.setValue(nullptr, "own");
    other.set(nullptr, "a.b", 1);
    other.child("list")->setList(nullptr, {1, 2}, true);
    other.child("empty")->setList(nullptr, {}, true);
    m_node->copyFrom(&other);
    QCOMPARE(m_node->name(), QString("node"));
    QCOMPARE(m_node->getString(), QString("own"));
    QCOMPARE(childNames(*m_node), QString("a list empty"));
    QCOMPARE(m_node->exportToJson(true), other.exportToJson(true));
    QVERIFY(m_node->c("empty")->isList());
    QCOMPARE(ModuleObject::generateId(m_node->c("list")), QString("#2"));
    m_node->copyFrom(other.c("list"));
    QVERIFY(m_node->isList());
    m_node->copyFrom(other.c("a"));
    QVERIFY(!m_node->isList());
}

void Structure::copyIsDeep() {
    ModuleObject other("other");
    other.set(nullptr, "a.b", 1);
    m_node->copyFrom(&other);
    other.set(nullptr, "a.b", 2);
    QCOMPARE(m_node->r("a.b")->getInt(), 1);
    QCOMPARE(m_node->r("a.b")->key(), QString("a.b"));
    QVERIFY(m_node->c("a") != other.c("a"));
}

void Structure::copyReplacesWhatWasThere() {
    m_node->setValue(nullptr, 1);
    const QPointer<ModuleObject> old = m_node->child("old");
    const ModuleObject empty("empty");
    m_node->copyFrom(&empty);
    QVERIFY(!old);
    QVERIFY(m_node->isEmpty());
}

void Structure::copyOfNullClears() {
    m_node->set(nullptr, "a", 1);
    m_node->setValue(nullptr, 1);
    m_node->copyFrom(nullptr);
    QVERIFY(m_node->isEmpty());
    QCOMPARE(m_node->name(), QString("node"));
}

void Structure::copyOfItselfChangesNothing() {
    m_node->set(nullptr, "a", 1);
    m_node->copyFrom(m_node.get());
    QCOMPARE(m_node->c("a")->getInt(), 1);
}

void Structure::copyOfAChildOrAParentIsSafe() {
    m_node->set(nullptr, "a.b", 1);
    ModuleObject* a = m_node->c("a");
    a->copyFrom(m_node.get());
    QCOMPARE(a->r("a.b")->getInt(), 1);
    m_node->copyFrom(m_node->r("a.a"));
    QCOMPARE(childNames(*m_node), QString("b"));
    QCOMPARE(m_node->c("b")->getInt(), 1);
}

void Structure::appendGivesTheChildThatIsThere() {
    ModuleObject* point = m_node->append(nullptr, "point");
    point->setValue(nullptr, 1);
    QCOMPARE(m_node->append(nullptr, "point"), point);
    QCOMPARE(point->getInt(), 1);
}

void Structure::appendTakesAPlainName() {
    ModuleObject* child = m_node->append(nullptr, "p.1");
    QCOMPARE(child->name(), QString("p.1"));
    QCOMPARE(m_node->append(nullptr, "")->name(), QString());
    QCOMPARE(m_node->cmobjCount(), 2);
}

void Structure::theObjectParentIsNotUsed() {
    ModuleObject* child = m_node->child("a");
    QVERIFY(!child->parent());
    QVERIFY(m_node->children().isEmpty());
}

QTEST_APPLESS_MAIN(Structure)
#include "tst_moduleobject_structure.moc"
