#include "interface/records.h"

#include <QTest>

using brisk::ModuleObject;

class TestRecords : public QObject {
    Q_OBJECT

private slots:
    void nullIsAListWithoutRecords() {
        QVERIFY(!kite::findRecord(nullptr, ""));
        QVERIFY(kite::findRecords(nullptr, "").isEmpty());
        QCOMPARE(kite::nameOf(nullptr), QString(""));
        QCOMPARE(kite::textOf(nullptr, "type"), QString(""));
        QVERIFY(!kite::below(nullptr, {"name"}));
        QCOMPARE(kite::newRecord(nullptr)->name(), QString("#0"));
    }

    void nullTakesNoRecord() {
        auto record = std::make_unique<ModuleObject>("#0");
        const QPointer<ModuleObject> refused(record.get());
        kite::appendRecord(nullptr, nullptr, std::move(record));
        QVERIFY(!refused);
    }

    void withoutATemplateARecordStaysAsItIs() {
        ModuleObject record("#0");
        record.set(nullptr, "name", "a");
        kite::copyTemplate(nullptr, &record);
        QCOMPARE(kite::nameOf(&record), QString("a"));
        ModuleObject listOfNobody("_list");
        kite::copyTemplate(&listOfNobody, &record);
        QCOMPARE(kite::nameOf(&record), QString("a"));
        ModuleObject parent("point");
        kite::copyTemplate(parent.append(nullptr, "_list"), &record);
        QCOMPARE(kite::nameOf(&record), QString("a"));
    }

    void theTemplateStandsBesideTheList() {
        ModuleObject parent("point");
        parent.set(nullptr, "default.name", "pattern");
        ModuleObject record("#0");
        kite::copyTemplate(parent.append(nullptr, "_list"), &record);
        QCOMPARE(kite::nameOf(&record), QString("pattern"));
        QCOMPARE(record.name(), QString("#0"));
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
