#include "developer/treemodel.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using brisk::ModuleObject;
using pendant::TreeModel;

namespace {

/// A root that tells who listens to it.
class Root : public ModuleObject {
public:
    Root() : ModuleObject(QString()) {}
    int listeners() const {
        return receivers(SIGNAL(changed(QVariant, QVariant, QObject*))) +
               receivers(SIGNAL(inserted(brisk::ModuleObject*, int))) + receivers(SIGNAL(removed(QString))) +
               receivers(SIGNAL(cleared(QObject*))) + receivers(SIGNAL(touched(brisk::ModuleObject*, QObject*))) +
               receivers(SIGNAL(destroyed(QObject*)));
    }
};

} // namespace

class TestTreeModel : public QObject {
    Q_OBJECT

private slots:
    void init();
    void rowsAreMadeWhenTheyAreAskedFor();
    void whatIsShownIsNameAndValueOrTheNumberOfChildren_data();
    void whatIsShownIsNameAndValueOrTheNumberOfChildren();
    void aChangeOfAnOpenTreeIsFollowed_data();
    void aChangeOfAnOpenTreeIsFollowed();
    void aNodeMayGoWhileItIsShown_data();
    void aNodeMayGoWhileItIsShown();
    void aNodeInThePlaceOfAnotherIsANewRow();
    void childrenOfALeafAndOfARowThatWasNeverOpened();
    void theItemsOfAListShowTheirNewNamesAfterAnImport();
    void changesAreToldTenTimesASecondAtMost();
    void whoWroteLastAndWhenIsShown();
    void theWayToANodeIsOpened();
    void aLeafIsEditedAndKeepsItsType_data();
    void aLeafIsEditedAndKeepsItsType();
    void aTextThatDoesNotConvertChangesNothing();
    void whatHasChildrenIsNotEdited();
    void whatIsFollowedNoMoreIsConnectedToNothing();
    void theRootMayGo();

private:
    QModelIndex at(const QString& key) { return m_model->reveal(m_root->r(key)); }
    QString text(const QString& key, int column) { return at(key).siblingAtColumn(column).data().toString(); }
    /// The shown tree, "a{b c{d}}": what has rows.
    QString shown(const QModelIndex& parent = QModelIndex()) const;
    void settle() { QTest::qWait(TreeModel::repaintMs + 50); }

    std::unique_ptr<Root> m_root;
    std::unique_ptr<TreeModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestTreeModel::init() {
    m_tester.reset();
    m_model.reset();
    m_root.reset(new Root);
    m_root->set(nullptr, "a.b", 1);
    m_root->set(nullptr, "a.c.d", 2);
    m_root->set(nullptr, "e", 3);
    m_model.reset(new TreeModel);
    m_model->follow(m_root.get());
}

QString TestTreeModel::shown(const QModelIndex& parent) const {
    QStringList names;
    for (int row = 0; row < m_model->rowCount(parent); ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        const QString below = shown(index);
        names << index.data().toString() + (below.isEmpty() ? QString() : '{' + below + '}');
    }
    return names.join(' ');
}

void TestTreeModel::rowsAreMadeWhenTheyAreAskedFor() {
    QCOMPARE(shown(), QString("a e"));
    const QModelIndex a = m_model->index(0, 0);
    QVERIFY(m_model->hasChildren(a));
    QVERIFY(m_model->canFetchMore(a));
    QVERIFY(!m_model->hasChildren(m_model->index(1, 0)));
    m_model->fetchMore(a);
    QCOMPARE(shown(), QString("a{b c} e"));
    QVERIFY(!m_model->canFetchMore(a));
    // What is not open is not followed into.
    m_root->set(nullptr, "a.c.f", 4);
    settle();
    QCOMPARE(shown(), QString("a{b c} e"));
}

void TestTreeModel::whatIsShownIsNameAndValueOrTheNumberOfChildren_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("leaf") << "e"
                          << "e"
                          << "3";
    QTest::newRow("node") << "a"
                          << "a"
                          << "{2}";
    QTest::newRow("list") << "list"
                          << "list"
                          << "[3]";
    QTest::newRow("empty list") << "none"
                                << "none"
                                << "[0]";
    QTest::newRow("item") << "list.#1"
                          << "#1"
                          << "\"x\"";
    QTest::newRow("empty leaf") << "empty"
                                << "empty"
                                << "";
    QTest::newRow("node with a value of its own") << "both"
                                                  << "both"
                                                  << "true";
}

void TestTreeModel::whatIsShownIsNameAndValueOrTheNumberOfChildren() {
    QFETCH(QString, key);
    m_root->append(nullptr, "list")->setList(nullptr, {1.5, "x", false});
    m_root->append(nullptr, "none")->setList(nullptr, {});
    m_root->append(nullptr, "empty");
    m_root->set(nullptr, "both.child", 1);
    m_root->set(nullptr, "both", true);
    QTEST(text(key, TreeModel::NameColumn), "name");
    QTEST(text(key, TreeModel::ValueColumn), "value");
}

using Change = std::function<void(ModuleObject*)>;
Q_DECLARE_METATYPE(Change)

void TestTreeModel::aChangeOfAnOpenTreeIsFollowed_data() {
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("shownThen");
    QTest::newRow("a child is appended") << Change([](ModuleObject* root) { root->set(nullptr, "a.z", 1); })
                                         << "a{b c{d} z} e";
    QTest::newRow("a child is inserted in front")
        << Change([](ModuleObject* root) { root->c("a")->insertChild(0, new ModuleObject("z")); }) << "a{z b c{d}} e";
    QTest::newRow("at the top") << Change([](ModuleObject* root) { root->append(nullptr, "z"); }) << "a{b c{d}} e z";
    QTest::newRow("a child is removed") << Change([](ModuleObject* root) { root->c("a")->removeChild(root->r("a.b")); })
                                        << "a{c{d}} e";
    QTest::newRow("a child with children is removed")
        << Change([](ModuleObject* root) { root->c("a")->removeChild(root->r("a.c")); }) << "a{b} e";
    QTest::newRow("a node is cleared") << Change([](ModuleObject* root) { root->c("a")->clear(nullptr, true, true); })
                                       << "a e";
    QTest::newRow("the root is cleared") << Change([](ModuleObject* root) { root->clear(nullptr, true, true); }) << "";
    QTest::newRow("some come and some go") << Change([](ModuleObject* root) {
        root->c("a")->removeChild(root->r("a.b"));
        root->c("a")->insertChild(0, new ModuleObject("y"));
        root->set(nullptr, "a.z", 1);
    }) << "a{y c{d} z} e";
    QTest::newRow("a node becomes a list") << Change([](ModuleObject* root) {
        root->c("a")->setList(nullptr, {1, 2});
    }) << "a{#0 #1} e";
    QTest::newRow("an import prunes and makes") << Change([](ModuleObject* root) {
        root->c("a")->importFromJson(nullptr, QJsonObject{{"c", QJsonObject{{"q", 1}}}}, true, true, true);
    }) << "a{c{q}} e";
    QTest::newRow("a copy of another") << Change([](ModuleObject* root) {
        ModuleObject other("other");
        other.set(nullptr, "x", 1);
        root->c("a")->copyFrom(&other);
    }) << "a{x} e";
}

void TestTreeModel::aChangeOfAnOpenTreeIsFollowed() {
    QFETCH(Change, change);
    at("a.c.d");
    m_tester.reset(new QAbstractItemModelTester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest));
    QCOMPARE(shown(), QString("a{b c{d}} e"));
    change(m_root.get());
    settle();
    QTEST(shown(), "shownThen");
}

void TestTreeModel::aNodeMayGoWhileItIsShown_data() {
    QTest::addColumn<Change>("change");
    QTest::newRow("removed") << Change([](ModuleObject* root) { root->c("a")->removeChild(root->r("a.c")); });
    QTest::newRow("removed without notice")
        << Change([](ModuleObject* root) { root->c("a")->removeChild(root->r("a.c"), false); });
    QTest::newRow("deleted") << Change([](ModuleObject* root) { delete root->r("a.c"); });
    QTest::newRow("all of it without notice") << Change([](ModuleObject* root) { root->clear(nullptr, false, true); });
}

void TestTreeModel::aNodeMayGoWhileItIsShown() {
    QFETCH(Change, change);
    const QPersistentModelIndex d = at("a.c.d");
    const QPersistentModelIndex c = at("a.c");
    change(m_root.get());
    // A view may ask at any time, also before the rows have gone.
    for (const QPersistentModelIndex& index : {d, c}) {
        QCOMPARE(m_model->node(index), nullptr);
        QVERIFY(!index.data().isValid());
        QVERIFY(!m_model->hasChildren(index) || index == c);
        QVERIFY(!m_model->canFetchMore(index));
        QVERIFY(!m_model->setData(QModelIndex(index).siblingAtColumn(TreeModel::ValueColumn), "1", Qt::EditRole));
        QVERIFY(!m_model->refusal(index, "1").isEmpty());
    }
    settle();
    QVERIFY(!shown().contains('c'));
    QVERIFY(!d.isValid() && !c.isValid());
}

void TestTreeModel::aNodeInThePlaceOfAnotherIsANewRow() {
    const QPersistentModelIndex old = at("a.c");
    m_root->c("a")->removeChild(m_root->r("a.c"));
    m_root->set(nullptr, "a.c", 7);
    settle();
    QVERIFY(!old.isValid());
    QCOMPARE(text("a.c", TreeModel::ValueColumn), QString("7"));
    QCOMPARE(shown(), QString("a{b c} e"));
}

void TestTreeModel::childrenOfALeafAndOfARowThatWasNeverOpened() {
    m_root->set(nullptr, "e.f", 1);
    settle();
    QCOMPARE(shown(), QString("a e{f}"));
    QVERIFY(m_model->hasChildren(at("a")));
    int layouts = 0;
    connect(m_model.get(), &QAbstractItemModel::layoutChanged, this, [&] { ++layouts; });
    m_root->c("a")->clear(nullptr, true, false);
    settle();
    QVERIFY(!m_model->hasChildren(m_model->index(0, 0)));
    QCOMPARE(layouts, 1);
    m_model->disconnect(this);
    m_root->set(nullptr, "a.g", 1);
    settle();
    QCOMPARE(shown(), QString("a{g} e{f}"));
}

void TestTreeModel::theItemsOfAListShowTheirNewNamesAfterAnImport() {
    ModuleObject* list = m_root->append(nullptr, "list");
    list->setList(nullptr, {1, 2, 3});
    at("list.#0");
    settle();
    list->removeChild(list->c("#0"));
    settle();
    QCOMPARE(shown(m_model->reveal(list)), QString("#1 #2"));
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    list->importFromJson(nullptr, QJsonArray{5, 6}, true, true, true);
    settle();
    QCOMPARE(shown(m_model->reveal(list)), QString("#0 #1"));
    bool names = false;
    for (const QList<QVariant>& arguments : changed)
        names = names || arguments.at(0).toModelIndex() == m_model->index(0, 0, m_model->reveal(list));
    QVERIFY(names);
}

void TestTreeModel::changesAreToldTenTimesASecondAtMost() {
    at("a.b");
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    QElapsedTimer timer;
    timer.start();
    int writes = 0;
    while (timer.elapsed() < 500) {
        for (int i = 0; i < 100; ++i)
            m_root->set(nullptr, "a.b", ++writes);
        QTest::qWait(1);
    }
    QVERIFY(changed.count() >= 2);
    QVERIFY2(changed.count() <= timer.elapsed() / TreeModel::repaintMs, qPrintable(QString::number(changed.count())));
    settle();
    QCOMPARE(text("a.b", TreeModel::ValueColumn), QString::number(writes));
}

void TestTreeModel::whoWroteLastAndWhenIsShown() {
    QObject feeder;
    feeder.setObjectName("feeder");
    QCOMPARE(text("e", TreeModel::WhoColumn), QString());
    const QString before = QTime::currentTime().toString("HH:mm:ss.zzz");
    m_root->set(&feeder, "e", 4);
    QCOMPARE(text("e", TreeModel::WhoColumn), QString("feeder"));
    QVERIFY(text("e", TreeModel::WhenColumn) >= before);
    m_root->set(nullptr, "e", 5);
    QCOMPARE(text("e", TreeModel::WhoColumn), QString("-"));
    // Also of what has no row yet.
    m_root->set(&feeder, "a.c.d", 5);
    QCOMPARE(text("a.c.d", TreeModel::WhoColumn), QString("feeder"));
    QCOMPARE(text("a.c", TreeModel::WhoColumn), QString());
}

void TestTreeModel::theWayToANodeIsOpened() {
    const QModelIndex d = m_model->reveal(m_root->r("a.c.d"));
    QCOMPARE(d.data().toString(), QString("d"));
    QCOMPARE(d.parent().parent().data().toString(), QString("a"));
    // Also to what came a moment ago.
    m_root->set(nullptr, "a.c.x.y", 1);
    QCOMPARE(m_model->reveal(m_root->r("a.c.x.y")).data().toString(), QString("y"));
    ModuleObject elsewhere("d");
    QVERIFY(!m_model->reveal(&elsewhere).isValid());
    QVERIFY(!m_model->reveal(m_root.get()).isValid());
}

void TestTreeModel::aLeafIsEditedAndKeepsItsType_data() {
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QString>("shownForEdit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("int") << QVariant(1) << "1"
                         << "2" << QVariant(2);
    QTest::newRow("double") << QVariant(1.0) << "1.0"
                            << "2" << QVariant(2.0);
    QTest::newRow("bool") << QVariant(true) << "true"
                          << "false" << QVariant(false);
    QTest::newRow("text") << QVariant("a") << "a"
                          << "b" << QVariant("b");
    QTest::newRow("list") << QVariant(QVariantList{1}) << "[1]"
                          << "[2.5]" << QVariant(QVariantList{2.5});
    QTest::newRow("empty") << QVariant() << ""
                           << "7" << QVariant(7);
}

void TestTreeModel::aLeafIsEditedAndKeepsItsType() {
    QFETCH(QVariant, before);
    QFETCH(QString, text);
    QFETCH(QVariant, after);
    ModuleObject* leaf = m_root->c("e");
    leaf->setValue(nullptr, before);
    const QModelIndex value = at("e").siblingAtColumn(TreeModel::ValueColumn);
    QVERIFY(value.flags() & Qt::ItemIsEditable);
    QTEST(value.data(Qt::EditRole).toString(), "shownForEdit");
    QSignalSpy changed(leaf, &ModuleObject::changed);
    QVERIFY(m_model->setData(value, text, Qt::EditRole));
    QCOMPARE(leaf->value(), after);
    QCOMPARE(leaf->value().userType(), after.userType());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(this->text("e", TreeModel::WhoColumn), QString("developer dock"));
}

void TestTreeModel::aTextThatDoesNotConvertChangesNothing() {
    const QModelIndex value = at("e").siblingAtColumn(TreeModel::ValueColumn);
    QSignalSpy changed(m_root->c("e"), &ModuleObject::changed);
    QVERIFY(m_model->refusal(value, "four").contains("four"));
    QVERIFY(!m_model->setData(value, "four", Qt::EditRole));
    QCOMPARE(m_root->c("e")->value(), QVariant(3));
    QCOMPARE(changed.count(), 0);
}

void TestTreeModel::whatHasChildrenIsNotEdited() {
    m_root->append(nullptr, "none")->setList(nullptr, {});
    for (const QString& key : {QString("a"), QString("none")}) {
        const QModelIndex value = at(key).siblingAtColumn(TreeModel::ValueColumn);
        QVERIFY(!(value.flags() & Qt::ItemIsEditable));
        QVERIFY(!m_model->setData(value, "1", Qt::EditRole));
    }
    QVERIFY(!(at("e").flags() & Qt::ItemIsEditable));
}

void TestTreeModel::whatIsFollowedNoMoreIsConnectedToNothing() {
    QCOMPARE(m_root->listeners(), 1);
    at("a.c.d");
    QCOMPARE(m_root->listeners(), 1);
    m_model->follow(nullptr);
    QCOMPARE(m_root->listeners(), 0);
    QCOMPARE(m_model->rowCount(), 0);
    m_root->set(nullptr, "e", 4);
    m_model->follow(m_root.get());
    QCOMPARE(shown(), QString("a e"));
    // What was written meanwhile was seen by nobody.
    QCOMPARE(text("e", TreeModel::WhoColumn), QString());
}

void TestTreeModel::theRootMayGo() {
    const QPersistentModelIndex d = at("a.c.d");
    m_root.reset();
    QVERIFY(!d.data().isValid());
    settle();
    m_model->follow(nullptr);
    QCOMPARE(m_model->rowCount(), 0);
}

QTEST_GUILESS_MAIN(TestTreeModel)
#include "tst_developer_treemodel.moc"
