#include "links.h"

#include "brisk/modulemanager.h"

using brisk::ModuleObject;

// Comes before the host's own, because a program's symbols do: a tree in which nothing is to be found.
ModuleObject* m(const QString&, ModuleObject*) {
    return nullptr;
}

class TestRecordsNoHost : public LinksTest {
    Q_OBJECT

private slots:
    void withoutATreeNothingIsFound() {
        QCOMPARE(kiteInterface()->getVarDataList(""), QStringList());
        QCOMPARE(kiteInterface()->getVarObjDataByName("a"), QJsonObject());
        QCOMPARE(kiteInterface()->getPointDataByName("a"), QVector<double>());
        QCOMPARE(kiteInterface()->getPointObjDataByName("a"), QJsonObject());
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList());
        QVERIFY(kiteInterface()->checkPointSame("a", "a"));
    }

    void withoutATreeNothingIsChanged() {
        QVERIFY(kiteInterface()->addVarData("a", 1, true));
        QVERIFY(kiteInterface()->updateVarData("a", 1));
        QVERIFY(kiteInterface()->delVarData("a"));
        QVERIFY(!kiteInterface()->addCurrentPoint("a", true, "gun", "table"));
        kiteInterface()->changeCartPoint("a", QVector<double>(6, 1.0));
        kiteInterface()->changeCartPoint("", QVector<double>(6, 1.0));
        QCOMPARE(bus().sent.size(), 0);
        QCOMPARE(controller().sent.size(), 0);
    }

    void withoutATreeThereIsNoVersion() {
        QCOMPARE(kiteInterface()->registPERSVars({"a"}), -240);
        QCOMPARE(kiteInterface()->getRegistedPERSVars(), QVector<QVariant>());
        QCOMPARE(kiteInterface()->getValuesOfPERSVars({"a"}), QVector<QString>{""});
        QCOMPARE(kiteInterface()->setValuesOfPERSVars({"a"}, {1}), -240);
        QCOMPARE(bus().sent.size(), 0);
    }
};

QTEST_GUILESS_MAIN(TestRecordsNoHost)
#include "tst_records_nohost.moc"
