#include "controller/cell/cellvalue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using controller::CellValue;

class TestCellValue : public QObject {
    Q_OBJECT

private slots:
    void init() { m_mistake.clear(); }

    void goodValuesAreReadWithoutAMistake() {
        const CellValue value = file(R"({"a": {"b": [1, "t", true]}})");
        QCOMPARE(value["a"]["b"].items()[0].number(), 1.0);
        QCOMPARE(value["a"]["b"].items()[1].text(), "t");
        QCOMPARE(value["a"]["b"].items()[2].boolean(false), true);
        QCOMPARE(value["a"].names(), QStringList{"b"});
        QCOMPARE(value["x"].number(5), 5.0);
        QCOMPARE(value["x"].text("no"), "no");
        QCOMPARE(value["x"].boolean(true), true);
        QVERIFY(!value["x"].exists());
        QCOMPARE(m_mistake, QString());
    }

    void aPlaceIsAPath() {
        const CellValue value = file(R"({"robot": {"axes": [{}, {}]}, "io.di": {}, "weld": {"a b": {}}})");
        QCOMPARE(value["robot"]["axes"].items()[1]["min"].place(), "robot.axes[1].min");
        QCOMPARE(value["io.di"]["on"].place(), "[\"io.di\"].on");
        QCOMPARE(value["weld"]["a b"].place(), "weld[\"a b\"]");
        QCOMPARE(value["0"].place(), "[\"0\"]");
        QCOMPARE(value.place(), QString());
    }

    void whatIsNotAsItShouldBeIsNamed_data() {
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("mistake");
        QTest::newRow("missing number") << "missing number"
                                        << "x: Add a number.";
        QTest::newRow("no number") << "number"
                                   << "a: Write a number.";
        QTest::newRow("missing text") << "missing text"
                                      << "x: Add a text.";
        QTest::newRow("no text") << "text"
                                 << "n: Write a text.";
        QTest::newRow("no bool") << "bool"
                                 << "n: Write true or false.";
        QTest::newRow("no array") << "items"
                                  << "n: Write an array: [...].";
        QTest::newRow("no object") << "names"
                                   << "n: Write an object: {\"name\": ...}.";
        QTest::newRow("too small") << "small"
                                   << "n: It must be from 6 to 100000 mm.";
        QTest::newRow("too great") << "great"
                                   << "n: It must be from -1 to 4.";
        QTest::newRow("unknown") << "unknown"
                                 << "n: This is not known here. There may be \"a\", \"x\".";
    }

    void whatIsNotAsItShouldBeIsNamed() {
        QFETCH(QString, read);
        const CellValue value = file(R"({"a": "t", "n": 5})");
        if (read == "missing number")
            QCOMPARE(value["x"].number(), 0.0);
        else if (read == "number")
            value["a"].number(1);
        else if (read == "missing text")
            QCOMPARE(value["x"].text(), QString());
        else if (read == "text")
            value["n"].text("t");
        else if (read == "bool")
            value["n"].boolean(true);
        else if (read == "items")
            QVERIFY(value["n"].items().isEmpty());
        else if (read == "names")
            QVERIFY(value["n"].names().isEmpty());
        else if (read == "small")
            value["n"].numberFrom(6, 100000, "mm");
        else if (read == "great")
            value["n"].numberFrom(-1, 4);
        else if (read == "unknown")
            value.mayHave({"a", "x"});
        QTEST(m_mistake, "mistake");
    }

    void theEndsOfARangeAreIn() {
        const CellValue value = file(R"({"n": 5})");
        QCOMPARE(value["n"].numberFrom(5, 6), 5.0);
        QCOMPARE(value["n"].numberFrom(4, 5), 5.0);
        QCOMPARE(m_mistake, QString());
    }

    void theFirstMistakeStays() {
        const CellValue value = file(R"({"n": 5})");
        value["n"].text();
        value["x"].number();
        QCOMPARE(m_mistake, "n: Write a text.");
    }

private:
    CellValue file(const QByteArray& json) { return {QJsonDocument::fromJson(json).object(), QString(), &m_mistake}; }

    QString m_mistake;
};

QTEST_GUILESS_MAIN(TestCellValue)
#include "tst_cellvalue.moc"
