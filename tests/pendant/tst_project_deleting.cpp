#include "pendanttest/robot.h"
#include "project/projectmirror.h"

#include "brisk/modulemanager.h"
#include "kite/interfacemanager.h"

#include <QTest>

using kite::kiteInterface;

// A plugin deletes variables, and the controller has its say.
class TestProjectDeleting : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { m("orca")->clear(nullptr, true, true); }

    void aDeletedVariableLeavesTheListAMomentLater();
    void aVariableThatIsDeletedWhereItWasAddedGoesToo();
    void aVariableThatTheControllerRefusesToDeleteStays();
    void aVariableThatIsAddedAgainStays();
    void withTheLinksDownADeletedVariableStays();
    void theControllerHasWhatTheTreeHas();

private:
    static QStringList names() { return kiteInterface()->getVarDataList(QString()); }
    /// Without those.
    static QStringList namesBut(const QStringList& gone) {
        QStringList left = names();
        for (const QString& name : gone)
            left.removeAll(name);
        return left;
    }
};

namespace {

/// A pendant's project and the controller of the default cell.
struct Cell {
    Cell() {
        robot.loadDefaultCell();
        robot.connectLinks();
    }
    void settle() { QTest::qWait(1); }

    pendanttest::Robot robot;
    pendant::ProjectMirror mirror;
};

} // namespace

void TestProjectDeleting::aDeletedVariableLeavesTheListAMomentLater() {
    Cell cell;
    const QStringList before = names();
    QVERIFY(before.contains("press_force") && before.contains("part_name"));
    const QJsonValue points = m("orca.project.point")->exportToJson(true);
    QVERIFY(kiteInterface()->delVarData(QStringList{"press_force", "part_name"}));
    QCOMPARE(names(), before);
    const QStringList left = namesBut({"press_force", "part_name"});
    cell.settle();
    QCOMPARE(names(), left);
    QCOMPARE(m("orca.project.point")->exportToJson(true), points);
}

void TestProjectDeleting::aVariableThatIsDeletedWhereItWasAddedGoesToo() {
    Cell cell;
    const QStringList before = names();
    kiteInterface()->addVarData("mine", 1, false);
    QVERIFY(kiteInterface()->delVarData("mine"));
    cell.settle();
    QCOMPARE(names(), before);
    cell.settle();
    QCOMPARE(cell.robot.controller()->bus()->value("mirror.project")->r("var._list")->cmobjCount(), before.size());
}

void TestProjectDeleting::aVariableThatTheControllerRefusesToDeleteStays() {
    Cell cell;
    const QStringList before = names();
    QVERIFY(before.contains("order_id"));
    QVERIFY(!kiteInterface()->delVarData(QStringList{"press_force", "order_id"}));
    cell.settle();
    QCOMPARE(names(), before);
    m("orca.project.cur_project")->trigger();
    cell.settle();
    QCOMPARE(names(), before);
}

void TestProjectDeleting::aVariableThatIsAddedAgainStays() {
    Cell cell;
    const QStringList before = names();
    kiteInterface()->addVarData("mine", 1, false);
    cell.settle();
    QVERIFY(kiteInterface()->delVarData("mine"));
    kiteInterface()->addVarData("mine", 2, false);
    cell.settle();
    QCOMPARE(names(), before + QStringList{"mine"});
    QCOMPARE(m("orca.project.var._list")->cmobjs().last()->r("value.[0][0][0]")->getInt(), 2);
}

void TestProjectDeleting::withTheLinksDownADeletedVariableStays() {
    Cell cell;
    const QStringList before = names();
    cell.robot.bus(false);
    QVERIFY(kiteInterface()->delVarData("press_force")); // the library takes no answer for a yes
    cell.settle();
    cell.robot.bus(true);
    cell.settle();
    QCOMPARE(names(), before);
}

void TestProjectDeleting::theControllerHasWhatTheTreeHas() {
    Cell cell;
    kiteInterface()->addVarData("mine", 1.5, false);
    kiteInterface()->updateVarData("press_force", 99.0);
    QVERIFY(kiteInterface()->delVarData("part_name"));
    QVERIFY(kiteInterface()->addCurrentPoint("taught", true, "gripper", "table"));
    cell.settle();
    const auto project = cell.robot.controller()->bus()->value("mirror.project");
    QCOMPARE(project->r("var._list")->exportToJson(true), m("orca.project.var._list")->exportToJson(true));
    QCOMPARE(project->r("point._list")->exportToJson(true), m("orca.project.point._list")->exportToJson(true));
}

QTEST_MAIN(TestProjectDeleting)
#include "tst_project_deleting.moc"
