#include "developer/searchhits.h"
#include "developer/treesearch.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using brisk::ModuleObject;
using pendant::SearchHits;
using pendant::TreeSearch;

class TestTreeSearch : public QObject {
    Q_OBJECT

private slots:
    void init();
    void findsPartsOfKeysAndValues_data();
    void findsPartsOfKeysAndValues();
    void stopsAfterAThousandHits();
    void aLargeTreeIsSearchedInSlices();
    void canBeStopped();
    void theTreeMayGoMeanwhile();
    void hitsOfNodesThatAreGoneStayAndSaySo();

private:
    void fill(int count);

    std::unique_ptr<ModuleObject> m_root;
};

void TestTreeSearch::init() {
    m_root.reset(new ModuleObject(QString()));
    m_root->set(nullptr, "project.points.p1", 1.5);
    m_root->set(nullptr, "project.points.p2.name", "Weld start");
    m_root->set(nullptr, "project.open", true);
    m_root->set(nullptr, "io.weld", 7);
}

void TestTreeSearch::fill(int count) {
    QVariantList values;
    for (int i = 0; i < count; ++i)
        values.append(i);
    m_root->append(nullptr, "many")->setList(nullptr, values, false);
}

void TestTreeSearch::findsPartsOfKeysAndValues_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("a name and a value, in any case") << "WELD" << QStringList{"project.points.p2.name", "io.weld"};
    QTest::newRow("a node and not all below it") << "project" << QStringList{"project"};
    QTest::newRow("part of a path") << "points.p" << QStringList{"project.points.p1", "project.points.p2"};
    QTest::newRow("the end of a path") << "p2.name" << QStringList{"project.points.p2.name"};
    QTest::newRow("a number") << "1.5" << QStringList{"project.points.p1"};
    QTest::newRow("a truth") << "true" << QStringList{"project.open"};
    QTest::newRow("nothing") << "grinder" << QStringList();
}

void TestTreeSearch::findsPartsOfKeysAndValues() {
    QFETCH(QString, text);
    TreeSearch search;
    QSignalSpy finished(&search, &TreeSearch::finished);
    search.start(m_root.get(), text);
    QVERIFY(search.isRunning());
    QVERIFY(finished.wait());
    QStringList keys;
    for (const TreeSearch::Hit& hit : search.hits()) {
        keys << hit.key;
        QCOMPARE(hit.node->key(), hit.key);
    }
    QTEST(keys, "keys");
    QCOMPARE(search.looked(), 8);
    QVERIFY(search.isComplete() && !search.isRunning());
}

void TestTreeSearch::stopsAfterAThousandHits() {
    fill(3000);
    TreeSearch search;
    QSignalSpy finished(&search, &TreeSearch::finished);
    search.start(m_root.get(), "#");
    QVERIFY(finished.wait());
    QCOMPARE(search.hits().size(), int(TreeSearch::mostHits));
    QVERIFY(!search.isComplete());
}

void TestTreeSearch::aLargeTreeIsSearchedInSlices() {
    fill(100000);
    TreeSearch search;
    QSignalSpy finished(&search, &TreeSearch::finished);
    QSignalSpy progressed(&search, &TreeSearch::progressed);
    search.start(m_root.get(), "99999");
    QVERIFY(finished.wait(60000));
    QVERIFY(progressed.count() > 1);
    QCOMPARE(search.looked(), 100009);
    QCOMPARE(search.hits().size(), 1);
}

void TestTreeSearch::canBeStopped() {
    fill(100000);
    TreeSearch search;
    QSignalSpy finished(&search, &TreeSearch::finished);
    QSignalSpy progressed(&search, &TreeSearch::progressed);
    search.start(m_root.get(), "99999");
    QVERIFY(progressed.wait());
    search.stop();
    const int looked = search.looked();
    QTest::qWait(50);
    QCOMPARE(search.looked(), looked);
    QVERIFY(looked < 100000);
    QVERIFY(!search.isComplete() && !search.isRunning());
    QCOMPARE(finished.count(), 0);
    search.start(m_root.get(), "Weld start");
    QVERIFY(finished.wait(60000));
    QCOMPARE(search.hits().size(), 1);
}

void TestTreeSearch::theTreeMayGoMeanwhile() {
    fill(100000);
    TreeSearch search;
    QSignalSpy finished(&search, &TreeSearch::finished);
    QSignalSpy progressed(&search, &TreeSearch::progressed);
    search.start(m_root.get(), "#");
    search.stop();
    search.start(m_root.get(), "nowhere");
    QVERIFY(progressed.wait());
    m_root->removeChild(m_root->c("many"));
    QVERIFY(finished.wait());
    search.start(m_root.get(), "weld");
    m_root.reset();
    QVERIFY(finished.wait());
    QVERIFY(search.hits().isEmpty());
}

void TestTreeSearch::hitsOfNodesThatAreGoneStayAndSaySo() {
    SearchHits hits;
    const QAbstractItemModelTester tester(&hits, QAbstractItemModelTester::FailureReportingMode::QtTest);
    hits.append({{m_root->r("io.weld"), "io.weld"}, {m_root->c("io"), "io"}});
    QCOMPARE(hits.index(0, SearchHits::ValueColumn).data().toString(), QString("7"));
    QCOMPARE(hits.node(0), m_root->r("io.weld"));
    m_root->removeChild(m_root->c("io"));
    QCOMPARE(hits.rowCount(), 2);
    QCOMPARE(hits.index(0, SearchHits::KeyColumn).data().toString(), QString("io.weld"));
    QCOMPARE(hits.index(0, SearchHits::ValueColumn).data().toString(), QString("gone"));
    QCOMPARE(hits.node(0), nullptr);
    QCOMPARE(hits.node(7), nullptr);
    hits.clear();
    QCOMPARE(hits.rowCount(), 0);
}

QTEST_GUILESS_MAIN(TestTreeSearch)
#include "tst_developer_treesearch.moc"
