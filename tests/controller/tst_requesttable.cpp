#include "controller/requesttable.h"

#include "contents.h"

#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::RequestTable;

class TestRequestTable : public QObject {
    Q_OBJECT

private slots:
    void aRequestIsAnsweredByItsFullCommand() {
        RequestTable table;
        table.onRequest("project.move.go", [](const Content& sent) { return sent; });
        table.onRequest("project.move", [](const Content&) { return content("2"); });
        QVERIFY(table.knows("project.move.go"));
        QCOMPARE(text(table.handle("project.move.go", content("{\"speed\":5}"))), QString("{\"speed\":5}"));
        QCOMPARE(text(table.handle("project.move", nullptr)), QString("2"));
    }

    void theLastHandlerHolds() {
        RequestTable table;
        table.onRequest("a.b", [](const Content&) { return content("1"); });
        table.onRequest("a.b", [](const Content&) { return content("2"); });
        QCOMPARE(text(table.handle("a.b", nullptr)), QString("2"));
    }

    void nothingIsAnAnswerToo() {
        RequestTable table;
        QSignalSpy noticed(&table, &RequestTable::noticed);
        table.onRequest("a.b", [](const Content&) { return nullptr; });
        QVERIFY(!table.handle("a.b", nullptr));
        QCOMPARE(noticed.size(), 0);
    }

    void anUnknownCommandIsNamedInAnswerAndNotice() {
        RequestTable table;
        QSignalSpy noticed(&table, &RequestTable::noticed);
        const QString reason = refusalOf(table.handle("project.get_pos", nullptr));
        QVERIFY2(reason.contains("\"project.get_pos\""), qPrintable(reason));
        QVERIFY2(reason.contains("cell file"), qPrintable(reason));
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toString(), reason);
    }

    void aHandlerMayTakeItselfAway() {
        RequestTable table;
        const Content answer = content("1");
        table.onRequest("once", [&table, answer](const Content&) {
            table.onRequest("once", nullptr);
            return answer;
        });
        QCOMPARE(text(table.handle("once", nullptr)), QString("1"));
        QVERIFY(!table.knows("once"));
        QVERIFY(!refusalOf(table.handle("once", nullptr)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestRequestTable)
#include "tst_requesttable.moc"
