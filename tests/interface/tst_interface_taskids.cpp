#include "kite/interfacemanager.h"

#include <QTest>

namespace {

QString idFor(const QString& name, const QString& own = QString()) {
    const QString id = kite::kiteInterface()->connectNetworkStatus(
        false, name, nullptr, [] {}, own);
    kite::kiteInterface()->disconnectNetworkStatus(false, id);
    return id;
}

int numberIn(const QString& id) {
    return id.section('_', -1).toInt();
}

} // namespace

// The first case has the first ids of the process.
class TestTaskIds : public QObject {
    Q_OBJECT

private slots:
    void allNamesShareOneCountThatStartsAtOne() {
        QCOMPARE(idFor("a"), QString("a_1"));
        QCOMPARE(idFor("a"), QString("a_2"));
        QCOMPARE(idFor("b"), QString("b_3"));
    }

    void bothKindsOfTaskShareTheCount() {
        const int before = numberIn(idFor("a"));
        const QString id = kite::kiteInterface()->connectNetworkStatus(
            true, "a", nullptr, [] {}, "");
        kite::kiteInterface()->disconnectNetworkStatus(true, id);
        QCOMPARE(numberIn(id), before + 1);
    }

    void anIdOfOnesOwnIsTakenAsItIsAndDoesNotCount() {
        const int before = numberIn(idFor("a"));
        QCOMPARE(idFor("a", "mine"), QString("mine"));
        QCOMPARE(idFor("a", " "), QString(" "));
        QCOMPARE(numberIn(idFor("a")), before + 1);
    }

    void theNameIsTakenAsItIs_data() {
        QTest::addColumn<QString>("name");
        for (const QString& name : {QString(), QString("%1"), QString("a_b"), QString("a.b"), QString("żółw")})
            QTest::newRow(qUtf8Printable(name)) << name;
    }
    void theNameIsTakenAsItIs() {
        QFETCH(QString, name);
        const int before = numberIn(idFor("a"));
        QCOMPARE(idFor(name), name + "_" + QString::number(before + 1));
    }

    void aNullIdCountsAsEmpty() {
        const int before = numberIn(idFor("a", ""));
        QCOMPARE(idFor("a", QString()), QString("a_%1").arg(before + 1));
    }
};

QTEST_GUILESS_MAIN(TestTaskIds)
#include "tst_interface_taskids.moc"
