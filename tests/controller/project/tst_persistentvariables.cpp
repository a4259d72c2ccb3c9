#include "../contents.h"
#include "records.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/valuetype.h"

#include <QSignalSpy>
#include <QTest>

using controller::PersistentVariables;
using controller::Project;
using controller::ProjectStart;

namespace {

struct Held {
    Held() {
        ProjectStart start = controller::emptyProject();
        start.variables << variableRecord("count", "int", 1) << variableRecord("plain", "int", 2, false);
        project.start(start);
        variables.list({{"shift", "QString", "early"}});
        changed.clear();
    }

    QString value(const QString& name) const {
        return variables.contains(name) ? controller::textOf(variables.variable(name).value) : "none";
    }

    Project project;
    PersistentVariables variables{&project};
    QSignalSpy changed{&variables, &PersistentVariables::changed};
};

} // namespace

class TestPersistentVariables : public QObject {
    Q_OBJECT

private slots:
    void thoseOfTheProjectAndOfTheCellAreThere() {
        const Held held;
        QCOMPARE(held.variables.names(), (QStringList{"count", "shift"}));
        QCOMPARE(held.value("count"), "1");
        QCOMPARE(held.value("shift"), "early");
        QCOMPARE(held.value("plain"), "none");
    }

    void theyFollowTheRecordsOfTheProject() {
        Held held;
        held.project.put(underNode("#2", variableRecord("new", "double", 0.5)), nullptr, false);
        QCOMPARE(held.value("new"), "0.5");
        held.project.put(underNode("#2", variableRecord("newer", "double", 0.5)), nullptr, false);
        QCOMPARE(held.value("new"), "none");
        QCOMPARE(held.value("newer"), "0.5");
        held.project.put(underNode("#2", variableRecord("newer", "double", 1.5)), nullptr, false);
        QCOMPARE(held.value("newer"), "1.5");
        held.project.put(underNode("#2", variableRecord("newer", "double", 1.5, false)), nullptr, false);
        QCOMPARE(held.value("newer"), "none");
        QCOMPARE(held.changed.size(), 4);
        held.project.put(underNode("#1", variableRecord("plain", "int", 5, false)), nullptr, false);
        QCOMPARE(held.changed.size(), 4);
    }

    void aRecordThatIsRemovedTakesItsVariableAlong() {
        Held held;
        held.project.removeVariables({"count"});
        QCOMPARE(held.value("count"), "none");
    }

    void ofTwoRecordsOfANameOneKeepsIt() {
        Held held;
        held.project.put(underNode("#5", variableRecord("count", "int", 8)), nullptr, false);
        QCOMPARE(held.value("count"), "8");
        held.project.put(content("{\"#0\": null}"), nullptr, false);
        QCOMPARE(held.value("count"), "8");
        held.project.put(content("{\"#5\": null}"), nullptr, false);
        QCOMPARE(held.value("count"), "none");
    }

    void thatOfTheCellStaysWhenItsRecordGoes() {
        Held held;
        held.project.put(underNode("#5", variableRecord("shift", "QString", "late")), nullptr, false);
        held.project.put(content("{\"#5\": null}"), nullptr, false);
        QCOMPARE(held.value("shift"), "late");
    }

    void aModifiedValueOutlastsARecordThatSaysTheSameAsBefore() {
        Held held;
        QCOMPARE(held.variables.modify({{"count", 7}}), QString());
        QJsonObject record = variableRecord("count", "int", 1);
        record.insert("description", "parts");
        held.project.put(underNode("#0", record), nullptr, false);
        QCOMPARE(held.value("count"), "7");
        held.project.put(underNode("#0", variableRecord("count", "int", 2)), nullptr, false);
        QCOMPARE(held.value("count"), "2");
    }

    void allOrNoneAreModified_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("refusal");
        QTest::newRow("unknown") << "x" << QJsonValue(1) << "The controller knows no persistent variable \"x\".";
        QTest::newRow("not persistent") << "plain" << QJsonValue(1)
                                        << "The controller knows no persistent variable \"plain\".";
        QTest::newRow("another type") << "shift" << QJsonValue(1)
                                      << "The persistent variable \"shift\" takes a text, not 1.";
    }

    void allOrNoneAreModified() {
        QFETCH(QString, name);
        QFETCH(QJsonValue, value);
        Held held;
        QTEST(held.variables.modify({{"count", 7}, {name, value}}), "refusal");
        QCOMPARE(held.value("count"), "1");
        QCOMPARE(held.changed.size(), 0);
    }

    void presentValuesAreWrittenIntoRecords() {
        Held held;
        held.variables.modify({{"count", 7}});
        const controller::Content list = held.project.variables().content();
        held.variables.writeInto(list.get());
        QCOMPARE(list->r("#0.value.[0][0][0]")->getInt(), 7);
        QCOMPARE(list->r("#1.value.[0][0][0]")->getInt(), 2);
        held.variables.writeInto(nullptr);
    }
};

QTEST_GUILESS_MAIN(TestPersistentVariables)
#include "tst_persistentvariables.moc"
