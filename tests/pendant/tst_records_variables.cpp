#include "recordsbench.h"

#include "pages/recordsmodel.h"
#include "pages/recordtext.h"

#include "kite/interfacemanager.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>

using kite::kiteInterface;

// The variables of the project as the pendant lists them.
class TestVariablesPage : public QObject {
    Q_OBJECT

private slots:
    void anEmptyListSaysWhatWouldBeHere();
    void aVariableThatAPluginAddsIsThereAtOnce();
    void aVariableThatAPluginEditsIsShownAtOnce();
    void aVariableThatGoesIsGoneAtOnce();
    void theColumnsSayWhatTheRecordHolds();
    void aValueIsShownInFull_data();
    void aValueIsShownInFull();
    void aRecordWithoutFieldsIsARowWithoutWords();
    void theSelectionStaysWhenOthersComeAndGo();
    void rowsFollowTheOrderOfTheTree();
    void oneIsFoundByItsName();
    void manyChangesAreReadOnce();
    void aHiddenPageReadsNothing();
    void aListThatIsMadeAnewIsFollowed();
    void theHeadingsSpeakTheLanguage();

private:
    static brisk::ModuleObject* list() { return m("orca.project.var._list"); }
};

namespace {

struct Bench : RecordsBench {
    Bench() : RecordsBench(pendant::pagekeys::variables()) {}
    pendant::RecordsModel* model() const { return page()->findChild<pendant::RecordsModel*>(); }
};

} // namespace

void TestVariablesPage::anEmptyListSaysWhatWouldBeHere() {
    const Bench bench;
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(!bench.table()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("addVarData"));
    QVERIFY(!bench.find()->isEnabled());
}

void TestVariablesPage::aVariableThatAPluginAddsIsThereAtOnce() {
    const Bench bench;
    kiteInterface()->addVarData("count", 3, false);
    Frame::settle();
    QVERIFY(!bench.empty()->isVisible());
    QVERIFY(bench.table()->isVisible());
    QCOMPARE(bench.row(0), QString("count|int|3|No|"));
    kiteInterface()->addVarData("ratio", 0.5, true);
    Frame::settle();
    QCOMPARE(bench.row(1), QString("ratio|double|0.5|Yes|"));
    QCOMPARE(bench.page()->findChild<QLabel*>("recordCount")->text(), QString("2"));
}

void TestVariablesPage::aVariableThatAPluginEditsIsShownAtOnce() {
    const Bench bench;
    kiteInterface()->addVarData("count", 3, false);
    Frame::settle();
    QSignalSpy shown(bench.table()->model(), &QAbstractItemModel::dataChanged);
    kiteInterface()->updateVarData("count", 4);
    Frame::settle();
    QCOMPARE(bench.cell(0, 2), QString("4"));
    QVERIFY(!shown.isEmpty());
}

void TestVariablesPage::aVariableThatGoesIsGoneAtOnce() {
    const Bench bench;
    for (const char* name : {"a", "b", "c"})
        addRecord(list(), {{"name", name}});
    Frame::settle();
    list()->removeChild(list()->c("#1"));
    Frame::settle();
    QCOMPARE(bench.names(), (QStringList{"a", "c"}));
    list()->clear(nullptr, true, true);
    Frame::settle();
    QCOMPARE(bench.names(), QStringList());
    QVERIFY(bench.empty()->isVisible());
}

void TestVariablesPage::theColumnsSayWhatTheRecordHolds() {
    const Bench bench;
    addRecord(
        list(),
        {{"name", "n"}, {"type", "QString"}, {"value.[0][0][0]", "v"}, {"pers", true}, {"description", "what it is"}});
    Frame::settle();
    QCOMPARE(bench.row(0), QString("n|QString|v|Yes|what it is"));
}

void TestVariablesPage::aValueIsShownInFull_data() {
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("shown");
    const auto scalar = [](const QJsonValue& value) { return QJsonValue(QJsonObject{{"[0][0][0]", value}}); };
    QTest::newRow("whole number") << scalar(7) << "7";
    QTest::newRow("fraction") << scalar(0.1) << "0.1";
    QTest::newRow("small fraction") << scalar(1e-7) << "1e-07";
    QTest::newRow("truth") << scalar(true) << "true";
    QTest::newRow("text") << scalar("a.b") << "a.b";
    QTest::newRow("list") << scalar(QJsonArray{1, 2.5}) << "[1,2.5]";
    QTest::newRow("structure") << scalar(QJsonObject{{"x", 1}}) << R"({"x":1})";
    QTest::newRow("array") << QJsonValue(QJsonObject{{"[0][0][0]", 1}, {"[0][0][1]", 2}}) << "[1, 2]";
    QTest::newRow("nothing") << QJsonValue() << "";
    QTest::newRow("no elements") << QJsonValue(5) << "";
}

void TestVariablesPage::aValueIsShownInFull() {
    QFETCH(QJsonValue, value);
    QFETCH(QString, shown);
    brisk::ModuleObject record("#0");
    record.importFromJson(nullptr, QJsonObject{{"name", "n"}, {"value", value}}, false, true, false);
    QCOMPARE(pendant::valueOfVariable(&record), shown);
}

void TestVariablesPage::aRecordWithoutFieldsIsARowWithoutWords() {
    const Bench bench;
    addRecord(list(), {});
    Frame::settle();
    QCOMPARE(bench.row(0), QString("|||No|"));
}

void TestVariablesPage::theSelectionStaysWhenOthersComeAndGo() {
    const Bench bench;
    for (const char* name : {"a", "b", "c", "d"})
        addRecord(list(), {{"name", name}});
    Frame::settle();
    bench.table()->selectRow(2);
    list()->removeChild(list()->c("#0"));
    addRecord(list(), {{"name", "e"}});
    list()->set(nullptr, "#2.description", "changed");
    Frame::settle();
    QCOMPARE(bench.names(), (QStringList{"b", "c", "d", "e"}));
    const QModelIndexList selected = bench.table()->selectionModel()->selectedRows();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().data().toString(), QString("c"));
}

void TestVariablesPage::rowsFollowTheOrderOfTheTree() {
    const Bench bench;
    for (const char* name : {"a", "b", "c"})
        addRecord(list(), {{"name", name}});
    Frame::settle();
    const auto insert = [](const char* node, const char* name, int index) {
        auto* record = new brisk::ModuleObject(node);
        record->set(nullptr, "name", name);
        list()->insertChild(index, record);
    };
    insert("#7", "x", 1);
    insert("#8", "y", 0);
    list()->removeChild(list()->c("#2"));
    Frame::settle();
    QCOMPARE(bench.names(), (QStringList{"y", "a", "x", "b"}));
    list()->removeChild(list()->c("#8"));
    insert("#8", "z", -1);
    Frame::settle();
    QCOMPARE(bench.names(), (QStringList{"a", "x", "b", "z"}));
}

void TestVariablesPage::oneIsFoundByItsName() {
    const Bench bench;
    for (const char* name : {"speed", "Feed", "feed_rate", "x.*"})
        addRecord(list(), {{"name", name}});
    Frame::settle();
    bench.find()->setText("feed");
    QCOMPARE(bench.names(), (QStringList{"Feed", "feed_rate"}));
    QVERIFY(bench.page()->findChild<QLabel*>("recordCount")->text().contains("2 of 4"));
    bench.find()->setText(".*");
    QCOMPARE(bench.names(), QStringList{"x.*"});
    bench.find()->setText("nobody");
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.find()->isEnabled());
    bench.find()->clear();
    QCOMPARE(bench.names().size(), 4);
    QVERIFY(bench.table()->isVisible());
}

void TestVariablesPage::manyChangesAreReadOnce() {
    const Bench bench;
    const int many = 10000;
    QSignalSpy read(bench.model(), &pendant::RecordsModel::refreshed);
    for (int i = 0; i < many; ++i)
        addRecord(list(), {{"name", QString("v%1").arg(i)}, {"value.[0][0][0]", i}});
    Frame::settle();
    QCOMPARE(read.size(), 1);
    QCOMPARE(bench.table()->model()->rowCount(), many);
    for (brisk::ModuleObject* record : list()->cmobjs())
        record->set(nullptr, "value.[0][0][0]", 7);
    Frame::settle();
    QCOMPARE(read.size(), 2);
    QCOMPARE(bench.row(many - 1), QString("v9999||7|No|"));
    bench.table()->scrollToBottom();
    QCOMPARE(bench.table()->indexAt(bench.table()->viewport()->rect().bottomLeft() - QPoint(-5, 5)).row(), many - 1);
}

void TestVariablesPage::aHiddenPageReadsNothing() {
    const Bench bench;
    bench.frame.window->showPage(pendant::pagekeys::start());
    QSignalSpy read(bench.model(), &pendant::RecordsModel::refreshed);
    addRecord(list(), {{"name", "a"}});
    Frame::settle();
    QVERIFY(read.isEmpty());
    bench.frame.window->showPage(bench.key);
    QCOMPARE(bench.names(), QStringList{"a"});
}

void TestVariablesPage::aListThatIsMadeAnewIsFollowed() {
    const Bench bench;
    addRecord(list(), {{"name", "a"}});
    Frame::settle();
    m("orca.project")->removeChild(m("orca.project.var"));
    Frame::settle();
    QCOMPARE(bench.names(), QStringList());
    addRecord(list(), {{"name", "b"}});
    Frame::settle();
    QCOMPARE(bench.names(), QStringList{"b"});
}

void TestVariablesPage::theHeadingsSpeakTheLanguage() {
    const Bench bench;
    QCOMPARE(bench.table()->model()->headerData(2, Qt::Horizontal).toString(), QString("Value"));
    auto* application = static_cast<pendant::Application*>(qApp);
    bool isDrawn = false;
    connect(bench.table()->model(), &QAbstractItemModel::headerDataChanged, this, [&] { isDrawn = true; });
    QVERIFY(application->setLanguage("de"));
    Frame::settle();
    QCOMPARE(bench.table()->model()->headerData(2, Qt::Horizontal).toString(), QString("Wert"));
    QVERIFY(isDrawn);
    QVERIFY(application->setLanguage("en"));
}

PENDANT_TEST_MAIN(TestVariablesPage)
#include "tst_records_variables.moc"
