#include "../contents.h"

#include "controller/project/recordlist.h"

#include <QTest>

using controller::RecordList;
using controller::textAt;

class TestRecordList : public QObject {
    Q_OBJECT

private slots:
    void recordsStandUnderTheNamesOfTheirNodes() {
        RecordList list;
        list.put("#3", content(R"({"name": "a"})"));
        list.put("#0", content(R"({"name": "b"})"));
        QCOMPARE(list.nodes(), (QStringList{"#3", "#0"}));
        QCOMPARE(textAt(list.record("#3"), "name"), "a");
        QVERIFY(!list.record("#1"));
    }

    void aRecordOfTheSameNodeIsReplacedWhereItStands() {
        RecordList list;
        list.put("#0", content("1"));
        list.put("#1", content("2"));
        list.put("#0", content("3"));
        QCOMPARE(list.nodes(), (QStringList{"#0", "#1"}));
        QCOMPARE(text(list.content()), "[3,2]");
    }

    void nullTakesARecordAway() {
        RecordList list;
        list.put("#0", content("1"));
        list.put("#1", content("2"));
        list.put("#0", nullptr);
        list.put("#7", nullptr);
        QCOMPARE(list.nodes(), QStringList{"#1"});
    }

    void whatIsAppendedTakesANameThatIsFree() {
        RecordList list;
        list.append(content("1"));
        list.put("#3", content("2"));
        list.put("#2", content("3"));
        list.append(content("4"));
        list.put("#0", nullptr);
        list.append(content("5"));
        QCOMPARE(list.nodes(), (QStringList{"#0", "#3", "#2", "#4", "#5"}.mid(1)));
        QCOMPARE(text(list.content()), "[2,3,4,5]");
    }

    void itsContentIsAListAlsoWhenItIsEmpty() {
        RecordList list;
        QCOMPARE(text(list.content()), "[]");
        for (int i = 0; i < 12; ++i)
            list.append(content("1"));
        QCOMPARE(childNames(list.content()), "#0 #1 #2 #3 #4 #5 #6 #7 #8 #9 #10 #11");
        list.clear();
        QCOMPARE(list.size(), 0);
        QCOMPARE(text(list.content()), "[]");
    }

    // So a pendant sees that the records will have other names in its tree.
    void itsContentKeepsTheNamesOfTheNodes() {
        RecordList list;
        list.put("#3", content("1"));
        list.put("#1", content("2"));
        QCOMPARE(childNames(list.content()), "#3 #1");
        QCOMPARE(text(list.content()), "[1,2]");
    }

    void aTextThatIsNotThereIsEmpty() {
        QCOMPARE(textAt(nullptr, "name"), QString());
        QCOMPARE(textAt(content("{}"), "name"), QString());
        QCOMPARE(textAt(content(R"({"a": {"b": "c"}})"), "a.b"), "c");
    }
};

QTEST_GUILESS_MAIN(TestRecordList)
#include "tst_recordlist.moc"
