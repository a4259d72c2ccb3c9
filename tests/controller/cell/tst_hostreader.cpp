#include "controller/cell/hostreader.h"

#include "reading.h"

using controller::Cell;
using controller::HostInfo;

class TestHostReader : public QObject {
    Q_OBJECT

private slots:
    void whatIsMissingIsAsWithoutIt_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("no section") << QByteArray("{}");
        QTest::newRow("an empty one") << QByteArray(R"({"host": {}})");
    }

    void whatIsMissingIsAsWithoutIt() {
        QFETCH(QByteArray, json);
        const HostInfo host = cellIn(json).host;
        QCOMPARE(host.version, "3.1.0");
        QCOMPARE(host.id, "virtual");
        QCOMPARE(host.type, "standard");
        QCOMPARE(host.level, 1);
    }

    void theHostIsRead() {
        const HostInfo host =
            cellIn(R"({"host": {"version": "2.3.4", "id": "R-7", "type": "paint", "level": 5}})").host;
        QCOMPARE(host.version, "2.3.4");
        QCOMPARE(host.id, "R-7");
        QCOMPARE(host.type, "paint");
        QCOMPARE(host.level, 5);
    }

    void answersAboutPathsAreReadInOrder() {
        const Cell cell = cellIn(R"({"pathCheck": [{"from": "a", "to": "b", "error": -50003},
                                                   {"from": "b", "to": "a", "error": 0}]})");
        QCOMPARE(cell.pathChecks.size(), 2);
        QCOMPARE(cell.pathChecks[0].from, "a");
        QCOMPARE(cell.pathChecks[0].to, "b");
        QCOMPARE(cell.pathChecks[0].error, -50003);
        QCOMPARE(cell.pathChecks[1].error, 0);
    }

    void aMistakeIsNamedWithItsPlace_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("mistake");
        QTest::newRow("no object") << QByteArray(R"({"host": "3.1"})") << "host: Write an object: {\"name\": ...}.";
        QTest::newRow("unknown") << QByteArray(R"({"host": {"name": ""}})")
                                 << "host.name: This is not known here. There may be \"version\", \"id\", \"type\", "
                                    "\"level\".";
        QTest::newRow("a number") << QByteArray(R"({"host": {"version": 3.1}})") << "host.version: Write a text.";
        QTest::newRow("half a level") << QByteArray(R"({"host": {"level": 1.5}})")
                                      << "host.level: Write a whole number.";
        QTest::newRow("below 0") << QByteArray(R"({"host": {"level": -1}})")
                                 << "host.level: It must be from 0 to 1000.";
        QTest::newRow("no array") << QByteArray(R"({"pathCheck": {}})") << "pathCheck: Write an array: [...].";
        QTest::newRow("no start") << QByteArray(R"({"pathCheck": [{"to": "b", "error": 1}]})")
                                  << "pathCheck[0].from: Add a text.";
        QTest::newRow("no end") << QByteArray(R"({"pathCheck": [{"from": "a", "error": 1}]})")
                                << "pathCheck[0].to: Add a text.";
        QTest::newRow("no code") << QByteArray(R"({"pathCheck": [{"from": "a", "to": "b"}]})")
                                 << "pathCheck[0].error: Add a number.";
        QTest::newRow("half a code") << QByteArray(R"({"pathCheck": [{"from": "a", "to": "b", "error": 0.5}]})")
                                     << "pathCheck[0].error: Write a whole number.";
        QTest::newRow("far too great") << QByteArray(R"({"pathCheck": [{"from": "a", "to": "b", "error": 1e12}]})")
                                       << "pathCheck[0].error: It must be from -1000000000 to 1000000000.";
        QTest::newRow("a key of the host's") << QByteArray(R"({"bus": {"host.info": 1}})")
                                             << "bus[\"host.info\"]: This name belongs to the controller itself. "
                                                "Choose another name.";
        QTest::newRow("a command to move") << QByteArray(R"({"commands": {"move.j": 1}})")
                                           << "commands[\"move.j\"]: This name belongs to the controller itself. "
                                              "Choose another name.";
    }

    void aMistakeIsNamedWithItsPlace() {
        QFETCH(QByteArray, json);
        QTEST(mistakeIn(json), "mistake");
    }
};

QTEST_GUILESS_MAIN(TestHostReader)
#include "tst_hostreader.moc"
