#include "developer/trafficfilter.h"
#include "developer/trafficmodel.h"

#include <QAbstractItemModelTester>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;
using pendant::Theme;
using pendant::TrafficFilter;
using pendant::TrafficModel;
using pendant::TrafficRow;

namespace {

TrafficEntry entry(const QString& channel, const QString& kind, const QString& key, const QJsonValue& value = {},
                   const QString& sender = QString()) {
    TrafficEntry made;
    made.time = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 10));
    made.channel = channel;
    made.kind = kind;
    made.key = key;
    made.value = value;
    made.sender = sender;
    return made;
}

} // namespace

class TestTraffic : public QObject {
    Q_OBJECT

private slots:
    void init();
    void itListensOnlyWhileItRecords();
    void anEntryIsShownInItsColumns();
    void whatFailedSaysSoInAWordAndAColour_data();
    void whatFailedSaysSoInAWordAndAColour();
    void theOldestGoWhenThereAreTooMany();
    void theOldestGoWhenTheyAreTooLarge();
    void aBurstComesInOneGo();
    void theFilterLooksIntoKeySenderKindAndValue_data();
    void theFilterLooksIntoKeySenderKindAndValue();
    void theChannelIsChosen();
    void clearingForgetsAlsoWhatIsOnItsWay();
    void whatIsShownIsSavedAsJsonLines();
    void aFileThatCannotBeWrittenIsExplained();

private:
    void record(const TrafficEntry& made) { Traffic::instance()->record(made); }
    void settle() { QTest::qWait(150); }
    QString text(int row, int column) const { return m_model->index(row, column).data().toString(); }

    std::unique_ptr<TrafficModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestTraffic::init() {
    m_tester.reset();
    m_model.reset(new TrafficModel(Theme::light()));
    m_tester.reset(new QAbstractItemModelTester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest));
    m_model->setRecording(true);
}

void TestTraffic::itListensOnlyWhileItRecords() {
    QVERIFY(Traffic::instance()->isHeard());
    record(entry("bus", "get", "before"));
    m_model->setRecording(false);
    QVERIFY(!Traffic::instance()->isHeard());
    record(entry("bus", "get", "meanwhile"));
    m_model->setRecording(true);
    record(entry("bus", "get", "after"));
    settle();
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(text(0, TrafficModel::KeyColumn), QString("before"));
    QCOMPARE(text(1, TrafficModel::KeyColumn), QString("after"));
    m_tester.reset();
    m_model.reset();
    QVERIFY(!Traffic::instance()->isHeard());
}

void TestTraffic::anEntryIsShownInItsColumns() {
    TrafficEntry made = entry("bus", "set", "io.lamp", QJsonObject{{"a", 1}}, "weld");
    made.durationMs = 1.234;
    record(made);
    made.direction = TrafficEntry::Direction::In;
    made.durationMs = -1;
    made.value = QJsonValue();
    record(made);
    settle();
    QStringList shown;
    for (int column = 0; column < TrafficModel::ColumnCount; ++column)
        shown << text(0, column);
    QCOMPARE(shown, QStringList({"07:08:09.010", "out", "bus", "set", "io.lamp", "weld", "{\"a\":1}", "1.23"}));
    QCOMPARE(text(1, TrafficModel::DirectionColumn), QString("in"));
    QCOMPARE(text(1, TrafficModel::ValueColumn), QString());
    QCOMPARE(text(1, TrafficModel::DurationColumn), QString());
}

void TestTraffic::whatFailedSaysSoInAWordAndAColour_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("linkDown");
    QTest::addColumn<QString>("word");
    QTest::newRow("time-out") << "time-out" << false << "time-out";
    QTest::newRow("late") << "late" << false << "late";
    QTest::newRow("link down") << "get" << true << "not sent";
}

void TestTraffic::whatFailedSaysSoInAWordAndAColour() {
    QFETCH(QString, kind);
    QFETCH(bool, linkDown);
    QFETCH(QString, word);
    TrafficEntry made = entry("bus", kind, "a");
    made.linkDown = linkDown;
    record(made);
    record(entry("bus", "get", "a"));
    settle();
    QVERIFY2(text(0, TrafficModel::KindColumn).contains(word), qPrintable(text(0, TrafficModel::KindColumn)));
    QVERIFY(m_model->index(0, TrafficModel::KindColumn).data(Qt::ForegroundRole).isValid());
    QCOMPARE(text(1, TrafficModel::KindColumn), QString("get"));
    QVERIFY(!m_model->index(1, TrafficModel::KindColumn).data(Qt::ForegroundRole).isValid());
}

void TestTraffic::theOldestGoWhenThereAreTooMany() {
    m_tester.reset();
    for (int i = 0; i < TrafficModel::capacity; ++i)
        record(entry("bus", "get", QString::number(i)));
    settle();
    QCOMPARE(m_model->rowCount(), int(TrafficModel::capacity));
    for (int i = 0; i < 3; ++i)
        record(entry("bus", "get", QString("new")));
    settle();
    QCOMPARE(m_model->rowCount(), int(TrafficModel::capacity));
    QCOMPARE(text(0, TrafficModel::KeyColumn), QString("3"));
    QCOMPARE(text(TrafficModel::capacity - 1, TrafficModel::KeyColumn), QString("new"));
    // More than all of it between two repaints.
    for (int i = 0; i < TrafficModel::capacity + 10; ++i)
        record(entry("bus", "get", QString::number(i)));
    settle();
    QCOMPARE(m_model->rowCount(), int(TrafficModel::capacity));
    QCOMPARE(text(0, TrafficModel::KeyColumn), QString("10"));
}

void TestTraffic::theOldestGoWhenTheyAreTooLarge() {
    const QString large(TrafficModel::mostBytes / 3, 'x');
    for (const char* key : {"1", "2", "3", "4"}) {
        record(entry("bus", "set", key, large));
        settle();
    }
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(text(0, TrafficModel::KeyColumn), QString("3"));
    QVERIFY(text(0, TrafficModel::ValueColumn).size() < 1000);
}

void TestTraffic::aBurstComesInOneGo() {
    QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
    for (int i = 0; i < 50; ++i)
        record(entry("bus", "get", "a"));
    settle();
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(m_model->rowCount(), 50);
}

void TestTraffic::theFilterLooksIntoKeySenderKindAndValue_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("all") << "" << 3;
    QTest::newRow("key") << "LAMP" << 1;
    QTest::newRow("sender") << "weld" << 2;
    QTest::newRow("kind") << "watch" << 1;
    QTest::newRow("value") << "hot" << 1;
    QTest::newRow("none") << "grinder" << 0;
}

void TestTraffic::theFilterLooksIntoKeySenderKindAndValue() {
    QFETCH(QString, text);
    TrafficFilter filter(m_model.get());
    const QAbstractItemModelTester tester(&filter, QAbstractItemModelTester::FailureReportingMode::QtTest);
    filter.setText(text);
    record(entry("bus", "set", "io.lamp", true, "weld"));
    record(entry("bus", "watch", "cell.temperature", {}, "weld"));
    record(entry("controller", "answer", "state", QJsonArray{"Hot"}));
    settle();
    QTEST(filter.rowCount(), "count");
    filter.setText("");
    QCOMPARE(filter.rowCount(), 3);
    QCOMPARE(filter.row(2).entry.key, QString("state"));
}

void TestTraffic::theChannelIsChosen() {
    TrafficFilter filter(m_model.get());
    record(entry("bus", "get", "a"));
    record(entry("controller", "request", "b"));
    settle();
    filter.setChannel("controller");
    QCOMPARE(filter.rowCount(), 1);
    QCOMPARE(filter.row(0).entry.key, QString("b"));
    filter.setText("a");
    QCOMPARE(filter.rowCount(), 0);
    filter.setChannel(QString());
    QCOMPARE(filter.rowCount(), 1);
}

void TestTraffic::clearingForgetsAlsoWhatIsOnItsWay() {
    record(entry("bus", "get", "a"));
    settle();
    record(entry("bus", "get", "b"));
    m_model->clear();
    settle();
    QCOMPARE(m_model->rowCount(), 0);
    record(entry("bus", "get", "c"));
    settle();
    QCOMPARE(m_model->rowCount(), 1);
}

void TestTraffic::whatIsShownIsSavedAsJsonLines() {
    TrafficEntry down = entry("bus", "get", "a.b", {}, "weld");
    down.linkDown = true;
    record(down);
    TrafficEntry answer = entry("controller", "answer", "state", QJsonObject{{"text", "two\nlines"}});
    answer.direction = TrafficEntry::Direction::In;
    answer.durationMs = 2.5;
    record(answer);
    record(entry("bus", "get", "hidden"));
    settle();
    TrafficFilter filter(m_model.get());
    filter.setText("a");
    const QTemporaryDir folder;
    const QString path = folder.filePath("traffic.jsonl");
    filter.setText("at");
    QCOMPARE(filter.rowCount(), 1);
    filter.setText(QString());
    QCOMPARE(filter.save(path), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.last().isEmpty());
    const QJsonObject first{{"time", "2024-05-06T07:08:09.010"},
                            {"direction", "out"},
                            {"channel", "bus"},
                            {"kind", "get"},
                            {"key", "a.b"},
                            {"sender", "weld"},
                            {"value", QJsonValue()},
                            {"linkDown", true}};
    const QJsonObject second{{"time", "2024-05-06T07:08:09.010"},
                             {"direction", "in"},
                             {"channel", "controller"},
                             {"kind", "answer"},
                             {"key", "state"},
                             {"sender", ""},
                             {"value", QJsonObject{{"text", "two\nlines"}}},
                             {"durationMs", 2.5}};
    QCOMPARE(QJsonDocument::fromJson(lines.at(0)).object(), first);
    QCOMPARE(QJsonDocument::fromJson(lines.at(1)).object(), second);
    filter.setText("state");
    QCOMPARE(filter.save(path), QString());
    file.seek(0);
    QFile again(path);
    QVERIFY(again.open(QIODevice::ReadOnly));
    QCOMPARE(again.readAll().count('\n'), 1);
}

void TestTraffic::aFileThatCannotBeWrittenIsExplained() {
    TrafficFilter filter(m_model.get());
    const QTemporaryDir folder;
    const QString path = folder.filePath("missing/traffic.jsonl");
    QVERIFY(filter.save(path).contains(path));
}

// Icons need the application of a window system.
QTEST_MAIN(TestTraffic)
#include "tst_developer_traffic.moc"
