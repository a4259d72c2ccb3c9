#include "errorline.h"
#include "workspace.h"

namespace {

const QString notFailed("]Remove folder %l failed!\x1b");

} // namespace

/// Projects are removed. A removal that works is told by an error line, of which Qt warns that it has no place for the
/// folder.
class TestProjectsRemove : public WorkspaceTest {
    Q_OBJECT

private slots:
    void init() {
        beginWorkspace();
        controller().answerWith(contentOf(QVariant()));
    }

    void theFixtureKeepsRemovalsInTheTemporaryFolder_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isSafe");
        for (const char* name : {"demo", "nowhere/nothing", "real", "inner", "inner/a", ".", "..", "../../.."})
            QTest::newRow(name) << name << true;
        for (const char* name : {"../../../..", "../../../../../a", "outer", "outer/a", "outer/nowhere", "top",
                                 "nowhere/../../../../../.."})
            QTest::newRow(name) << name << false;
    }
    void theFixtureKeepsRemovalsInTheTemporaryFolder() {
        QFETCH(QString, name);
        QFETCH(bool, isSafe);
        workspace().makeFile("real/a.txt");
        QVERIFY(QFile::link(workspace().at("real"), workspace().at("inner")));
        QVERIFY(QFile::link(QDir::tempPath(), workspace().at("outer")));
        QVERIFY(QFile::link(workspace().guard().temporary, workspace().at("top")));
        const RemovalGuard guard = workspace().guard();
        QCOMPARE(guard.danger(guard.workspace, "LOCALHOST", name).isEmpty(), isSafe);
    }

    void theFixtureRemovesInItsOwnWorkspaceAlone() {
        const RemovalGuard guard = workspace().guard();
        QVERIFY(guard.danger(guard.workspace, "R17", "demo").isEmpty());
        for (const char* set : {"", "/", "/tmp", "one/two/workspace"})
            QVERIFY2(!guard.danger(set, "R17", "demo").isEmpty(), set);
        QVERIFY(!guard.danger(guard.workspace + "/", "R17", "demo").isEmpty());
        QVERIFY(!(RemovalGuard{"", guard.workspace}.danger(guard.workspace, "R17", "demo").isEmpty()));
        QVERIFY(!(RemovalGuard{"/", guard.workspace}.danger(guard.workspace, "R17", "demo").isEmpty()));
        QVERIFY(QDir(guard.workspace).removeRecursively());
        QVERIFY(!guard.danger(guard.workspace, "R17", "demo").isEmpty());
        QVERIFY(QFile::link(QDir::tempPath(), guard.workspace));
        QVERIFY(!guard.danger(guard.workspace, "R17", "demo").isEmpty());
    }

    void someNamesAreRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("_temp") << "_temp";
        QTest::newRow("empty") << "";
        QTest::newRow("null") << QString();
    }
    void someNamesAreRefused() {
        QFETCH(QString, name);
        workspace().makeFile("_temp/a.txt");
        workspace().makeFile("demo/a.txt");
        const QStringList before = workspace().allContent();
        follow();
        log().expect("Project name unuesful!");
        QCOMPARE(workspace().remove(name), -1);
        verifyErrorLine(log(), folder(), "Project name unuesful!");
        QCOMPARE(events(), QStringList());
        QCOMPARE(workspace().allContent(), before);
    }

    void aProjectGoesStepByStep() {
        workspace().makeFile("demo/a.txt");
        workspace().makeFile("other/a.txt");
        write("orca.project.cur_project", "LOCALHOST/demo");
        follow();
        expectSuccess();
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(events(), QStringList({"execute project.remove_task nobody", "toolpage.tool tool0 kite",
                                        "toolpage.wobj wobj0 kite", "project,cur_project  kite", "refresh"}));
        QCOMPARE(bus().sentAs(Verb::Execute), QStringList{R"(project.remove_task||{"name":"demo"})"});
        QVERIFY(bus().sent.at(0).wantsAnswer);
        QCOMPARE(bus().sent.size(), 1);
        QCOMPARE(controller().sent.size(), 0);
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/other/", "LOCALHOST/other/a.txt"}));
        QCOMPARE(text("orca.project.cur_project"), QString("LOCALHOST/demo"));
        QCOMPARE(m("orca.project,cur_project")->value(), QVariant(""));
    }

    void theBusIsToldBeforeTheFolderGoes() {
        workspace().makeFile("demo/a.txt");
        bool wasThere = false;
        bus().reply = [&](const Message&) {
            wasThere = QFile::exists(workspace().at("demo/a.txt"));
            return brisk::standin::refusal("no");
        };
        expectSuccess();
        QCOMPARE(workspace().remove("demo"), 0);
        QVERIFY(wasThere);
        QVERIFY(!QFile::exists(workspace().at("demo")));
    }

    // The caller's text may be one that somebody changes while the bus answers.
    void theNameMayGoWhileTheBusAnswers() {
        workspace().makeFile("demo/a.txt");
        write("orca.project.autoload_prj_path", "demo/main");
        QString name = "demo";
        bus().reply = [&](const Message&) {
            name.clear();
            return Content();
        };
        QCOMPARE(workspace().remove(name), 0);
        QVERIFY(name.isEmpty());
        QCOMPARE(controller().sentAs(Verb::Request), QStringList{"proiect.overview.set_autoload||null"});
        QCOMPARE(log().lines(), QStringList());
    }

    void theNodesMayGoWhenTheyAreWritten_data() {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("gone");
        const auto row = [](const char* written, const char* gone) {
            QTest::addRow("%s, %s", written, gone) << written << gone;
        };
        for (const char* key : {"orca.project.autoload_pri_path", "orca.toolpage.tool", "orca.toolpage.wobj",
                                "orca.project,cur_project", "orca.project.refresh_project"}) {
            row(key, key);
            row(key, "orca");
            row(key, "orca.project");
            row(key, "orca.toolpage");
        }
    }
    void theNodesMayGoWhenTheyAreWritten() {
        QFETCH(QString, written);
        QFETCH(QString, gone);
        workspace().makeFile("demo/a.txt");
        write("orca.project.autoload_prj_path", "demo/main");
        write("orca.project.cur_project", "LOCALHOST/demo");
        int heard = 0;
        const QObject listener;
        connect(m(written), &ModuleObject::changed, &listener, [&] {
            ++heard;
            delete m(gone);
        });
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(heard, 1);
        QVERIFY(!QFile::exists(workspace().at("demo")));
        // What comes after that is done all the same.
        if (written == "orca.project.autoload_pri_path")
            QCOMPARE(text("orca.toolpage.tool"), QString("tool0"));
        if (written == "orca.project.autoload_pri_path" || written == "orca.toolpage.tool")
            QCOMPARE(text("orca.toolpage.wobj"), QString("wobj0"));
        QCOMPARE(log().lines(), QStringList());
    }

    void theRequestMayGoWhenItIsPrepared() {
        write("orca.project.autoload_prj_path", "demo/main");
        const QObject listener;
        connect(autoloadRequest()->child("autoload_pri_path"), &ModuleObject::changed, &listener,
                [] { autoloadRequest()->clear(nullptr, true, true); });
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(controller().sentAs(Verb::Request), QStringList{"proiect.overview.set_autoload||null"});
    }

    void successIsAnErrorLine() {
        workspace().makeFile("demo/a.txt");
        expectSuccess();
        workspace().remove("demo");
        QCOMPARE(log().count(notFailed), 1);
        QCOMPARE(log().lines().size(), 2); // with Qt's warning
        const QStringList file = folder().logLines();
        QCOMPARE(file.size(), 1);
        QVERIFY2(file.at(0).startsWith("[E|") && file.at(0).endsWith("]Remove folder %l failed!"),
                 qPrintable(file.at(0)));
    }

    void aProjectThatIsNotThereCountsAsRemoved() {
        follow();
        expectSuccess();
        QCOMPARE(workspace().remove("nowhere"), 0);
        QCOMPARE(events(), QStringList({"execute project.remove_task nobody", "toolpage.tool tool0 kite",
                                        "toolpage.wobj wobj0 kite", "refresh"}));
    }

    void allThatIsInItGoes() {
        for (const char* name : {"demo/a.txt", "demo/.hidden", "demo/sub/deep/b", "demo/sub/c", "demo/читай"})
            workspace().makeFile(name);
        workspace().allow(workspace().at("demo/sub/c"), 0444);
        workspace().makeFile("kept");
        QVERIFY(QFile::link(workspace().at("kept"), workspace().at("demo/link")));
        QVERIFY(QFile::link(workspace().path(), workspace().at("demo/sub/link")));
        QVERIFY(QFile::link("nowhere", workspace().at("demo/broken")));
        expectSuccess();
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/kept"}));
    }

    // What the link leads to is emptied, and the link stays.
    void aProjectThatIsALinkIsEmptied() {
        workspace().makeFile("real/a.txt");
        QVERIFY(QFile::link(workspace().at("real"), workspace().at("demo")));
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/demo", "LOCALHOST/real/"}));
        QCOMPARE(log().lines(), QStringList());
    }

    // A file of that name is no folder, and stays.
    void aFileOfThatNameIsNoProject() {
        workspace().makeFile("demo");
        expectSuccess();
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(workspace().readFile("demo"), QByteArray("x"));
    }

    void theOneLoadedAtTheStartIsReset() {
        workspace().makeFile("demo/a.txt");
        write("orca.project.autoload_prj_path", "demo/main/task0");
        write("orca.project.autoload_pri_path", "before");
        follow();
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(events(),
                 QStringList({"execute project.remove_task nobody", "request.autoload_pri_path  nobody",
                              "request proiect.overview.set_autoload nobody", "project.autoload_pri_path  nobody",
                              "toolpage.tool tool0 kite", "toolpage.wobj wobj0 kite", "refresh"}));
        QCOMPARE(controller().sentAs(Verb::Request), QStringList{"proiect.overview.set_autoload||null"});
        QVERIFY(controller().sent.at(0).wantsAnswer && !controller().sent.at(0).content);
        QCOMPARE(text("orca.project.autoload_prj_path"), QString("demo/main/task0"));
        QCOMPARE(autoloadRequest()->c("autoload_pri_path")->value(), QVariant(""));
        QCOMPARE(m("orca.project.autoload_pri_path")->value(), QVariant(""));
        QCOMPARE(log().lines(), QStringList());
    }

    void theFirstPartOfThePathNamesTheOneLoadedAtTheStart_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isReset");
        const auto row = [](const char* path, const char* name, bool isReset) {
            QTest::addRow("\"%s\", \"%s\"", path, name) << path << name << isReset;
        };
        row("demo", "demo", true);
        row("demo/", "demo", true);
        row("demo/a/b", "demo", true);
        row("Demo", "demo", false);
        row("demo2", "demo", false);
        row("/demo", "demo", false);
        row("LOCALHOST/demo", "demo", false);
        row("LOCALHOST/demo", "LOCALHOST", true);
        row("a/b", "a/b", false);
        row("", "demo", false);
    }
    void theFirstPartOfThePathNamesTheOneLoadedAtTheStart() {
        QFETCH(QString, path);
        QFETCH(QString, name);
        QFETCH(bool, isReset);
        write("orca.project.autoload_prj_path", path);
        write("orca.project.autoload_pri_path", "before");
        if (!isReset)
            expectSuccess();
        QCOMPARE(workspace().remove(name), 0);
        QCOMPARE(controller().sent.size(), isReset ? 1 : 0);
        QCOMPARE(text("orca.project.autoload_pri_path"), QString(isReset ? "" : "before"));
        QCOMPARE(log().count("Remove folder"), isReset ? 0 : 2);
    }

    void thePathIsClearedWhereTheControllerGivesANode_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("isCleared");
        QTest::newRow("an empty answer") << "" << true;
        QTest::newRow("a refusal") << "refusal" << true;
        QTest::newRow("no answer") << "silent" << true;
        QTest::newRow("the link is down") << "down" << true;
        QTest::newRow("nothing at all") << "null" << false;
    }
    void thePathIsClearedWhereTheControllerGivesANode() {
        QFETCH(QString, fault);
        QFETCH(bool, isCleared);
        write("orca.project.autoload_prj_path", "demo");
        write("orca.project.autoload_pri_path", "before");
        controller().answerWith(fault == "refusal" ? brisk::standin::refusal("no") : contentOf(QVariant()));
        if (fault == "null")
            controller().answerWith(Content());
        controller().answers = fault != "silent";
        controller().setUp(fault != "down");
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(text("orca.project.autoload_pri_path"), QString(isCleared ? "" : "before"));
        QCOMPARE(autoloadRequest()->c("autoload_pri_path")->value(), QVariant(""));
    }

    void theControllerMayTake1600Milliseconds() {
        write("orca.project.autoload_prj_path", "demo");
        int timeoutMs = 0;
        WaitingLink link(&timeoutMs);
        QCOMPARE(workspace().remove("demo"), 0);
        QVERIFY2(timeoutMs > 1300 && timeoutMs <= 1600, qPrintable(QString::number(timeoutMs)));
    }

    void globalToolsAreKeptAndWorkObjectsAreNot_data() {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("wobj");
        QTest::addColumn<QString>("keptTool");
        QTest::addColumn<QString>("keptWobj");
        const auto row = [](const char* tool, const char* wobj, const char* keptTool, const char* keptWobj) {
            QTest::addRow("\"%s\", \"%s\"", tool, wobj) << tool << wobj << keptTool << keptWobj;
        };
        row("g_tool_a", "g_wobj_x", "g_tool_a", "wobj0");
        row("g_tool_", "g wobj_x", "g_tool_", "g wobj_x");
        row("tool1", "wobj1", "tool0", "wobj0");
        row("G_tool_a", "g wobj", "tool0", "wobj0");
        row("g_tool", " g wobj_", "tool0", "wobj0");
        row("", "", "tool0", "wobj0");
    }
    void globalToolsAreKeptAndWorkObjectsAreNot() {
        QFETCH(QString, tool);
        QFETCH(QString, wobj);
        write("orca.toolpage.tool", tool);
        write("orca.toolpage,tool", "g_tool_comma");
        write("orca.toolpage.wobj", wobj);
        expectSuccess();
        workspace().remove("demo");
        QTEST(text("orca.toolpage.tool"), "keptTool");
        QTEST(text("orca.toolpage.wobj"), "keptWobj");
        QCOMPARE(text("orca.toolpage,tool"), QString("g_tool_comma"));
    }

    void theCurrentProjectIsClearedByAKeyWithAComma_data() {
        QTest::addColumn<QString>("current");
        QTest::addColumn<bool>("isCleared");
        QTest::newRow("that one") << "R17/demo" << true;
        QTest::newRow("another") << "R17/other" << false;
        QTest::newRow("of another robot") << "LOCALHOST/demo" << false;
        QTest::newRow("another case") << "R17/Demo" << false;
        QTest::newRow("only the name") << "demo" << false;
        QTest::newRow("none") << "" << false;
    }
    void theCurrentProjectIsClearedByAKeyWithAComma() {
        QFETCH(QString, current);
        QFETCH(bool, isCleared);
        write("helm.r.id", "R17");
        write("orca.project.cur_project", current);
        write("orca.project,cur_project", "before");
        expectSuccess();
        workspace().remove("demo");
        QCOMPARE(text("orca.project,cur_project"), QString(isCleared ? "" : "before"));
        QCOMPARE(text("orca.project.cur_project"), current);
    }

    void withTheLinksDownTheFolderGoesAllTheSame() {
        workspace().makeFile("demo/a.txt");
        bus().setUp(false);
        controller().setUp(false);
        expectSuccess();
        QCOMPARE(workspace().remove("demo"), 0);
        QVERIFY(!QFile::exists(workspace().at("demo")));
        QCOMPARE(bus().sent.size() + controller().sent.size(), 0);
    }

    void namesAreUsedAsTheyAre_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("gone");
        const auto row = [](const QString& name, const QString& gone) {
            QTest::addRow("\"%s\"", qPrintable(name)) << name << gone;
        };
        row("a b", "a b/");
        row(" a ", " a /");
        row("a.b", "a.b/");
        row("...", ".../");
        row("a/b", "a/b/");
        row("a//b", "a/b/");
        row("/a", "a/");
        row("a/", "a/");
        row("проект 项目 ü", "проект 项目 ü/");
        QTest::newRow("a line break") << "a\nb"
                                      << "a\nb/";
        row("a\"'$(b)*?", "a\"'$(b)*?/");
        QTest::newRow("longest") << QString(255, 'n') << QString(255, 'n') + "/";
    }
    void namesAreUsedAsTheyAre() {
        QFETCH(QString, name);
        QFETCH(QString, gone);
        workspace().makeFile("kept/file");
        workspace().makeFile(gone + "file");
        expectSuccess();
        QCOMPARE(workspace().remove(name), 0);
        QVERIFY(!QFile::exists(workspace().at(gone)));
        QVERIFY(QFile::exists(workspace().at("kept/file")));
        QCOMPARE(contentNames(), QStringList{name});
    }

    void namesThatAreTooLongAreNotThere_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("256 letters") << QString(256, 'n');
        QTest::newRow("a path of 5000") << QString("n/").repeated(2500);
    }
    void namesThatAreTooLongAreNotThere() {
        QFETCH(QString, name);
        workspace().makeFile("n/file");
        expectSuccess();
        QCOMPARE(workspace().remove(name), 0);
        QVERIFY(QFile::exists(workspace().at("n/file")));
    }

    // "." is the folder of the robot: all its projects go.
    void theNameOfOneDotRemovesAllProjects() {
        workspace().makeFile("demo/a.txt");
        workspace().makeFile("../R17/demo/a.txt");
        expectSuccess();
        QCOMPARE(workspace().remove("."), 0);
        QCOMPARE(workspace().content(), QStringList({"R17/", "R17/demo/", "R17/demo/a.txt"}));
    }

    // ".." is the workspace. Where other robots have folders in it, some of them may stay: the path to them leads
    // through the folder of this one, and once that is gone they are not found.
    void theNameOfTwoDotsRemovesTheWorkspace() {
        workspace().makeFile("demo/a.txt");
        expectSuccess();
        QCOMPARE(workspace().remove(".."), 0);
        QCOMPARE(workspace().allContent(), QStringList({"one/", "one/two/"}));
    }

    // And so on upwards, which is why the workspace lies three folders deep here.
    void moreDotsRemoveWhatIsAboveTheWorkspace() {
        workspace().makeFile("demo/a.txt");
        expectSuccess();
        QCOMPARE(workspace().remove("../.."), 0);
        QCOMPARE(workspace().allContent(), QStringList{"one/"});
    }

    // "ROBOT/.." is looked for through the robot's folder.
    void withoutTheRobotsFolderDotsLeadNowhere() {
        expectSuccess();
        QCOMPARE(workspace().remove(".."), 0);
        QVERIFY(QFile::exists(workspace().path()));
    }

    void dotsInAPathLeadToAnotherProject() {
        workspace().makeFile("demo/a.txt");
        workspace().makeFile("other/a.txt");
        expectSuccess();
        QCOMPARE(workspace().remove("demo/../other"), 0);
        QVERIFY(QFile::exists(workspace().at("demo/a.txt")));
        QVERIFY(!QFile::exists(workspace().at("other")));
    }

    void whatIsMadeCanBeRemovedAndMadeAgain() {
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(kiteInterface()->createProject("demo", "d", true), 0);
            expectSuccess();
            QCOMPARE(workspace().remove("demo"), 0);
        }
        QCOMPARE(workspace().content(), QStringList{"LOCALHOST/"});
    }

private:
    // A far side that never answers, and says how long it was waited for.
    class WaitingLink : public pendanttest::FakeLink {
    public:
        explicit WaitingLink(int* timeoutMs) : FakeLink(Channel::controller()), m_timeoutMs(timeoutMs) {}
        bool receive(brisk::standin::Answer*, int timeoutMs) override {
            *m_timeoutMs = timeoutMs;
            return false;
        }

    private:
        int* m_timeoutMs;
    };

    void expectSuccess() {
        log().expect("QString::arg: Argument missing: Remove folder %l failed!, " + workspace().path());
        log().expect(notFailed);
    }
    /// The names that the bus was told.
    QStringList contentNames() {
        QStringList names;
        for (const Message& message : bus().sent)
            names << message.content->c("name")->getString();
        return names;
    }
};

QTEST_GUILESS_MAIN(TestProjectsRemove)
#include "tst_projects_remove.moc"
