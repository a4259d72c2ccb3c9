#include "links.h"
#include "removalguard.h"

#include "brisk/modulemanager.h"

using brisk::ModuleObject;

// Come before the host's own, because a program's symbols do: a tree in which nothing is to be found, and a controller
// manager without nodes.
ModuleObject* m(const QString&, ModuleObject*) {
    return nullptr;
}
ModuleObject* helm::ControllerManager::cmdItemMobj(const QString&, const QString&) {
    return nullptr;
}

/// Status, lists, moves and projects where the host has nothing to give.
class TestRobotNoHost : public LinksTest {
    Q_OBJECT

private slots:
    void initTestCase() { HostSettings::begin(); }

    void withoutATreeTheStateIsTheDefault() {
        QCOMPARE(kiteInterface()->getRobotID(), QString(""));
        QVERIFY(!kiteInterface()->getRobotEleStatus());
        QCOMPARE(kiteInterface()->getRobotPhyStatus(), QString(""));
        QCOMPARE(kiteInterface()->getUserOperateLevel(), 0);
        QCOMPARE(kiteInterface()->getRobotType(), QString(""));
        QCOMPARE(kiteInterface()->getRobotModelType(), 0);
        QCOMPARE(kiteInterface()->getCurTool(), QString("tool0"));
        QCOMPARE(kiteInterface()->getCurWobj(), QString("wobj0"));
    }

    void withoutATreeThereIsNothingToReferTo() {
        QCOMPARE(kiteInterface()->getToolList(), QStringList());
        QCOMPARE(kiteInterface()->getWobjList(), QStringList());
        QCOMPARE(kiteInterface()->getSpeedList(), QStringList());
        QCOMPARE(kiteInterface()->getZoneList(), QStringList());
        QVERIFY(kiteInterface()->getIOHash().isEmpty());
        QCOMPARE(kiteInterface()->getIOByType(1), QStringList());
        QCOMPARE(kiteInterface()->getIOByType("AO"), QStringList());
        QVERIFY(kiteInterface()->getRegisterHash().isEmpty());
        QVERIFY(kiteInterface()->getRegisterValue().isNull());
    }

    void withoutATreeThereIsNoPoint() {
        for (bool secondForm : {false, true}) {
            int result = 0;
            log().expect("no point find!");
            if (secondForm)
                kiteInterface()->moveToStart(result, "", 1, true, true);
            else
                kiteInterface()->moveToStart(result, "", 1, true);
            QCOMPARE(result, -1);
        }
        QCOMPARE(bus().sent.size(), 0);
    }

    void withoutAVersionStoppingSendsNoNode() {
        kiteInterface()->moveToStop();
        QCOMPARE(bus().sentAs(Verb::Command), QStringList{"move.stop||null"});
    }

    void aPathMayHaveNoAnswer() { QCOMPARE(kiteInterface()->checkPointMoveTo("a", "b"), 0); }

    void withoutATreeProjectsAreMadeAndRemoved() {
        const QTemporaryDir temporary;
        const QString workspace = temporary.path() + "/one/two/workspace";
        QVERIFY(temporary.isValid() && QDir().mkpath(workspace));
        HostSettings::set("workspace", workspace);
        QCOMPARE(kiteInterface()->getProjectList(), QStringList());
        QCOMPARE(kiteInterface()->changeProject("demo"), 0);
        QCOMPARE(kiteInterface()->createProject("demo", "d", true), 0);
        QCOMPARE(kiteInterface()->createProject("other", "d", false), 0);
        QVERIFY(QFile::exists(workspace + "/LOCALHOST/demo"));
        QVERIFY(QFile::exists(workspace + "/LOCALHOST/other/projectinfo.json"));
        log().expect("QString::arg: Argument missing: Remove folder %l failed!, ");
        log().expect("]Remove folder %l failed!");
        RemovalGuard{temporary.path(), workspace}.check("LOCALHOST", "demo");
        QCOMPARE(kiteInterface()->removeProject("demo"), 0);
        QVERIFY(!QFile::exists(workspace + "/LOCALHOST/demo"));
        HostSettings::remove("workspace");
    }
};

QTEST_GUILESS_MAIN(TestRobotNoHost)
#include "tst_robot_nohost.moc"
