#include "project.h"

namespace {

QStringList watched;

} // namespace

// Comes before the host's own, because a program's symbols do.
void ModuleObject::watch(bool on, bool recursive) {
    watched << QString("%1 %2 %3 of %4").arg(name()).arg(on).arg(recursive).arg(cmobjCount());
}

class TestTeachWatch : public ProjectTest {
    Q_OBJECT

private slots:
    void aNewPointIsWatchedFromItsStart() {
        m("orca.project.point.default.name")->setValue(nullptr, "pattern");
        QVERIFY(kiteInterface()->addCurrentPoint("P1", true, "gun", "table"));
        QCOMPARE(watched, QStringList{"#0 1 0 of 0"});
    }
};

QTEST_GUILESS_MAIN(TestTeachWatch)
#include "tst_teach_watch.moc"
