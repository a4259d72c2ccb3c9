#include "ordinaryuser.h"
#include "workspace.h"

#include <QScopeGuard>

/// Projects in folders that must not be written, as any user meets them.
class TestProjectsReadOnly : public WorkspaceTest {
    Q_OBJECT

private slots:
    void init() {
        beginWorkspace();
        theUserMustGetIn();
    }

    // What all cases stand on.
    void whatIsReadOnlyBinds() {
        lock(workspace().path());
        const OrdinaryUser user;
        QFile file(workspace().path() + "/file");
        QVERIFY(!file.open(QIODevice::WriteOnly));
        QVERIFY(!QDir().mkdir(workspace().path() + "/folder"));
        QVERIFY(QDir(workspace().path()).exists());
    }

    void inAReadOnlyWorkspaceNothingIsMade() {
        lock(workspace().path());
        follow();
        for (bool setCurrent : {false, true}) {
            log().expect("]Path create error! Path : " + workspace().at("demo") + "\x1b");
            QCOMPARE(create("demo", setCurrent), -3);
        }
        QCOMPARE(workspace().content(), QStringList());
        QCOMPARE(events(), QStringList());
    }

    void inAReadOnlyWorkspaceTheRobotsFolderMayBeWritten() {
        workspace().makeFolder("");
        lock(workspace().path());
        QCOMPARE(create("demo", false), 0);
        QCOMPARE(workspace().content(),
                 QStringList({"LOCALHOST/", "LOCALHOST/demo/", "LOCALHOST/demo/projectinfo.json"}));
    }

    // The description is what is missing then; the project counts as made, and is changed to.
    void aDescriptionThatCannotBeWrittenIsNotMissed() {
        workspace().makeFolder("");
        {
            const mode_t before = umask(0777);
            const auto restored = qScopeGuard([before] { umask(before); });
            QCOMPARE(create("demo", true), 0);
        }
        workspace().openToAll(workspace().at("demo"));
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/demo/"}));
        QCOMPARE(text("orca.project.cur_project"), QString("LOCALHOST/demo"));
        QCOMPARE(log().lines(), QStringList());
    }

    // It returns 0 and says nothing, and the rest is done.
    void aProjectWithReadOnlyContentStaysInPart() {
        workspace().makeFolder("demo/open");
        workspace().makeFolder("demo/locked");
        for (const char* file : {"demo/a.txt", "demo/open/b.txt", "demo/locked/c.txt"})
            workspace().makeFile(file);
        lock(workspace().at("demo/locked"));
        write("orca.project.autoload_prj_path", "demo");
        write("orca.project.autoload_pri_path", "before");
        write("orca.project.cur_project", "LOCALHOST/demo");
        follow();
        QCOMPARE(removeAsUser("demo"), 0);
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/demo/", "LOCALHOST/demo/locked/",
                                                     "LOCALHOST/demo/locked/c.txt"}));
        QCOMPARE(events(), QStringList({"execute project.remove_task nobody", "toolpage.tool tool0 kite",
                                        "toolpage.wobj wobj0 kite", "project,cur_project  kite", "refresh"}));
        QCOMPARE(text("orca.project.autoload_pri_path"), QString("before"));
        QCOMPARE(controller().sent.size(), 0);
        QCOMPARE(log().lines(), QStringList());
    }

    void aReadOnlyProjectStaysWhole() {
        workspace().makeFolder("demo");
        workspace().makeFile("demo/a.txt");
        lock(workspace().at("demo"));
        QCOMPARE(removeAsUser("demo"), 0);
        QCOMPARE(workspace().readFile("demo/a.txt"), QByteArray("x"));
        QCOMPARE(log().lines(), QStringList());
    }

    // What is in the project goes, and the project's own folder stays.
    void inAReadOnlyWorkspaceAProjectIsEmptied() {
        workspace().makeFolder("demo");
        workspace().makeFile("demo/a.txt");
        lock(workspace().at(""));
        QCOMPARE(removeAsUser("demo"), 0);
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/demo/"}));
        QCOMPARE(log().lines(), QStringList());
    }

    void aReadOnlyFileGoesWithItsFolder() {
        workspace().makeFolder("demo");
        workspace().makeFile("demo/a.txt");
        workspace().allow(workspace().at("demo/a.txt"), 0444);
        log().expect("QString::arg: Argument missing: Remove folder %l failed!, ");
        log().expect("]Remove folder %l failed!\x1b");
        QCOMPARE(removeAsUser("demo"), 0);
        QCOMPARE(workspace().content(), QStringList{"LOCALHOST/"});
    }

    void cleanup() {
        for (const QString& path : m_locked)
            workspace().openToAll(path);
        m_locked.clear();
        endWorkspace();
    }

private:
    // Where the user cannot get into the workspace at all, nothing could be made or removed there either, and the cases
    // would pass for another reason than what is read-only.
    void theUserMustGetIn() {
        const QString probe = workspace().path() + "/probe";
        const OrdinaryUser user;
        if (!QDir().mkdir(probe) || !QDir().rmdir(probe))
            qFatal("%s is closed to the user without rights. Set TMPDIR to a folder that everybody can get into.",
                   qPrintable(QDir::tempPath()));
    }
    /// Nobody may write in that folder until the case is over.
    void lock(const QString& path) {
        workspace().allow(path, 0555);
        m_locked.prepend(path);
    }
    static int create(const QString& name, bool setCurrent) {
        const OrdinaryUser user;
        return kiteInterface()->createProject(name, "d", setCurrent);
    }
    int removeAsUser(const QString& name) {
        const OrdinaryUser user;
        return workspace().remove(name);
    }

    QStringList m_locked;
};

QTEST_GUILESS_MAIN(TestProjectsReadOnly)
#include "tst_projects_readonly.moc"
