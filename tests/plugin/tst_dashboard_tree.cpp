#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include "brisk/modulemanager.h"
#include "kite/interfacemanager.h"

#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include <memory>

using pendanttest::Pendant;
using pendanttest::Robot;

// What the dashboard makes of a tree that is other than the controller's. The cases share one pendant, for a shared
// object registers its plugin once.
class TestDashboardTree : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_pendant.reset(new Pendant);
        m_robot.reset(new Robot);
        m_robot->loadDefaultCell();
        QVERIFY(m_pendant->load(PLUGIN_dashboard));
        m_pendant->start();
        m_robot->connectLinks();
        show();
    }
    void cleanupTestCase() {
        m_pendant.reset();
        m_robot.reset();
    }

    void whatNobodyTellsOfIsPolled() {
        m("helm.r.level")->setValue(nullptr, 40);
        m("orca.toolpage.tool")->setValue(nullptr, "camera");
        m_robot->settle();
        QTRY_COMPARE(text("tool"), QString("camera"));
        QCOMPARE(text("level"), QString("40"));
        QCOMPARE(group("names", 0).filter("=selected"), QStringList("camera=selected"));
    }

    void aNameInTwoSourcesIsListedOnce() {
        m("orca.project.tool._list")->append(nullptr, "again")->set(nullptr, "name", "camera");
        QCOMPARE(kite::kiteInterface()->getToolList().filter("camera").size(), 2);
        show();
        QCOMPARE(group("names", 0).filter("camera").size(), 1);
    }

    void aSignalWithoutAValueSaysSo() {
        brisk::ModuleObject* values = m("orca.robot.io.signal_value");
        values->removeChild(values->c("lamp"));
        values->c("gripper")->setValue(nullptr, "half");
        show();
        QCOMPARE(group("signals", 1).mid(0, 2), QStringList({"gripper=half", "lamp=no value yet"}));
    }

    void aRegisterWithoutValuesIsListed() {
        brisk::ModuleObject* list = m("orca.robot.register._list");
        list->c(0)->removeChild(list->c(0)->c("value"));
        show();
        QCOMPARE(registers().mid(0, 2), QStringList({"order=no value", "good_bad=112, 3"}));
    }

    void aRegisterThatGoesLeavesTheList() {
        const int before = registers().size();
        brisk::ModuleObject* list = m("orca.robot.register._list");
        list->removeChild(list->c(before - 1));
        show();
        QCOMPARE(registers().size(), before - 1);
    }

private:
    // A page is read again when it is shown.
    void show() {
        m_pendant->leave();
        QVERIFY(m_pendant->open("dashboard"));
        m_robot->settle();
    }
    QString text(const char* name) { return m_pendant->page("dashboard")->findChild<QLabel*>(name)->text(); }
    static QStringList rowsBelow(const QTreeWidgetItem* heading) {
        QStringList rows;
        for (int i = 0; i < heading->childCount(); ++i)
            rows << heading->child(i)->text(0) + "=" + heading->child(i)->text(1);
        return rows;
    }
    QTreeWidget* list(const char* name) { return m_pendant->page("dashboard")->findChild<QTreeWidget*>(name); }
    QStringList group(const char* name, int index) { return rowsBelow(list(name)->topLevelItem(index)); }
    QStringList registers() { return rowsBelow(list("registers")->invisibleRootItem()); }

    std::unique_ptr<Pendant> m_pendant;
    std::unique_ptr<Robot> m_robot;
};

QTEST_MAIN(TestDashboardTree)
#include "tst_dashboard_tree.moc"
