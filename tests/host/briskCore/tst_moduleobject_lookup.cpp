#include "brisk/modulemanager.h"
#include "brisk/moduleobject.h"

#include <QTest>

#include <memory>

using brisk::ModuleObject;

class LookUp : public QObject {
    Q_OBJECT

private slots:
    void init();
    void aPathIsSplitAtDotsOnly_data();
    void aPathIsSplitAtDotsOnly();
    void emptyPartsNameNodesOfTheirOwn();
    void anEmptyPathIsTheNodeItself();
    void aMissingNodeIsNullWithoutCreate();
    void createMakesTheWholePath();
    void createGivesTheNodeThatIsThere();
    void aChildsNameMayHoldDots();
    void aChildIsFoundByIndex();
    void anIndexOutsideGivesNull();
    void childMakesWhatIsMissing();
    void childrenComeInOrder();
    void allDescendantsComeWithParentsBeforeChildren();
    void keyIsThePathWithoutTheRoot();
    void everyChildIsFoundAmongMany_data();
    void everyChildIsFoundAmongMany();

private:
    std::unique_ptr<ModuleObject> m_root;
};

void LookUp::init() {
    m_root.reset(new ModuleObject("root"));
}

void LookUp::aPathIsSplitAtDotsOnly_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("one part") << "orca" << QStringList{"orca"};
    QTest::newRow("three parts") << "orca.project.var" << QStringList{"orca", "project", "var"};
    QTest::newRow("brackets") << "value.[0][0][0]" << QStringList{"value", "[0][0][0]"};
    QTest::newRow("comma") << "orca.toolpage,tool" << QStringList{"orca", "toolpage,tool"};
    QTest::newRow("number sign") << "temp.#0" << QStringList{"temp", "#0"};
    QTest::newRow("blank and slash") << "a b.c/d" << QStringList{"a b", "c/d"};
    QTest::newRow("not Latin") << QStringLiteral("点.位置")
                               << QStringList{QStringLiteral("点"), QStringLiteral("位置")};
}

void LookUp::aPathIsSplitAtDotsOnly() {
    QFETCH(QString, path);
    QFETCH(QStringList, names);
    ModuleObject* made = m_root->r(path, true);
    QVERIFY(made);
    ModuleObject* node = m_root.get();
    for (const QString& name : names) {
        QCOMPARE(node->cmobjCount(), 1);
        node = node->c(0);
        QCOMPARE(node->name(), name);
    }
    QCOMPARE(node, made);
    QCOMPARE(m_root->r(path), made);
    QCOMPARE(m_root->rmobj(path), made);
}

void LookUp::emptyPartsNameNodesOfTheirOwn() {
    ModuleObject* node = m_root->r("a..b.", true);
    QCOMPARE(node->name(), QString());
    QCOMPARE(node->pmobj()->name(), QString("b"));
    QCOMPARE(node->pmobj()->pmobj()->name(), QString());
    QCOMPARE(m_root->c("a")->c("")->c("b")->c(""), node);
    QCOMPARE(node->key(), QString("a..b."));
}

void LookUp::anEmptyPathIsTheNodeItself() {
    QCOMPARE(m_root->r(""), m_root.get());
    QCOMPARE(m_root->r(QString(), true), m_root.get());
    QCOMPARE(m_root->cmobjCount(), 0);
}

void LookUp::aMissingNodeIsNullWithoutCreate() {
    m_root->r("a.b", true);
    QVERIFY(!m_root->r("a.x"));
    QVERIFY(!m_root->r("a.b.c"));
    QVERIFY(!m_root->rmobj("x.y"));
    QVERIFY(!m_root->c("x"));
    QVERIFY(!m_root->cmobj("x"));
    QCOMPARE(m_root->cmobjs(true).size(), 2);
}

void LookUp::createMakesTheWholePath() {
    ModuleObject* node = m_root->rmobj("a.b.c", true);
    QCOMPARE(node->key(), QString("a.b.c"));
    QVERIFY(node->isEmpty());
    QCOMPARE(m_root->cmobj("d", true)->pmobj(), m_root.get());
}

void LookUp::createGivesTheNodeThatIsThere() {
    ModuleObject* node = m_root->r("a.b", true);
    QCOMPARE(m_root->r("a.b", true), node);
    QCOMPARE(m_root->c("a", true), node->pmobj());
    QCOMPARE(m_root->cmobjs(true).size(), 2);
}

void LookUp::aChildsNameMayHoldDots() {
    ModuleObject* dotted = m_root->c("a.b", true);
    QCOMPARE(dotted->name(), QString("a.b"));
    QCOMPARE(m_root->c("a.b"), dotted);
    QVERIFY(!m_root->r("a.b"));
    QVERIFY(m_root->hasCmobj("a.b"));
    QVERIFY(!m_root->hasCmobj("a"));
}

void LookUp::aChildIsFoundByIndex() {
    ModuleObject* first = m_root->c("first", true);
    ModuleObject* second = m_root->c("second", true);
    QCOMPARE(m_root->c(0), first);
    QCOMPARE(m_root->cmobj(1), second);
}

void LookUp::anIndexOutsideGivesNull() {
    m_root->c("only", true);
    QVERIFY(!m_root->c(1));
    QVERIFY(!m_root->c(-1));
    QVERIFY(!m_root->c(-1, true));
    QVERIFY(!m_root->cmobj(5, true));
    QCOMPARE(m_root->cmobjCount(), 1);
}

void LookUp::childMakesWhatIsMissing() {
    ModuleObject* made = m_root->child("rot");
    QCOMPARE(made->pmobj(), m_root.get());
    QCOMPARE(m_root->child("rot"), made);
}

void LookUp::childrenComeInOrder() {
    for (const char* name : {"b", "a", "c"})
        m_root->c(name, true);
    QStringList names;
    for (ModuleObject* child : m_root->cmobjs())
        names << child->name();
    QCOMPARE(names, (QStringList{"b", "a", "c"}));
}

void LookUp::allDescendantsComeWithParentsBeforeChildren() {
    m_root->r("a.b.c", true);
    m_root->r("d", true);
    QStringList keys;
    for (ModuleObject* node : m_root->cmobjs(true))
        keys << node->key();
    QCOMPARE(keys, (QStringList{"a", "a.b", "a.b.c", "d"}));
}

void LookUp::keyIsThePathWithoutTheRoot() {
    QCOMPARE(m_root->key(), QString());
    QCOMPARE(m_root->r("a", true)->key(), QString("a"));
    QCOMPARE(m_root->r("a.b.[0][0][0]", true)->key(), QString("a.b.[0][0][0]"));
    QVERIFY(!m_root->pmobj());
}

void LookUp::everyChildIsFoundAmongMany_data() {
    QTest::addColumn<int>("count");
    for (const int count : {1, 16, 17, 18, 100, 5000})
        QTest::addRow("%d", count) << count;
}

void LookUp::everyChildIsFoundAmongMany() {
    QFETCH(int, count);
    QList<ModuleObject*> made;
    for (int i = 0; i < count; ++i)
        made << m_root->append(nullptr, QString("signal%1").arg(i));
    for (int i = 0; i < count; ++i)
        QCOMPARE(m_root->c(QString("signal%1").arg(i)), made.at(i));
    QVERIFY(!m_root->c(QString("signal%1").arg(count)));
    for (int i = 0; i < count; i += 2)
        QVERIFY(m_root->removeChild(made.at(i)));
    for (int i = 0; i < count; ++i)
        QCOMPARE(m_root->c(QString("signal%1").arg(i)), i % 2 ? made.at(i) : nullptr);
}

QTEST_APPLESS_MAIN(LookUp)
#include "tst_moduleobject_lookup.moc"
