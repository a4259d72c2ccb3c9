#include "errorline.h"
#include "workspace.h"

#include <QDateTime>

namespace {

const QString badName("Project name unuesful!");

QJsonObject objectOf(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}

} // namespace

/// Projects are listed, made and changed to.
class TestProjects : public WorkspaceTest {
    Q_OBJECT

private slots:
    void theBusListsTheProjects_data() {
        QTest::addColumn<Content>("answer");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char* name, const QVariant& answer, const QStringList& names) {
            QTest::newRow(name) << contentOf(answer) << names;
        };
        const auto named = [](const QJsonValue& name) { return QJsonObject{{"name", name}, {"time", "10:00"}}; };
        row("in order", QJsonArray{named("b"), named("a"), named("b")}, {"b", "a", "b"});
        row("none", QJsonArray(), {});
        row("an object", QJsonObject{{"x", named("b")}, {"y", named("a")}}, {"b", "a"});
        row("without a name", QJsonArray{QJsonObject{{"nam", "b"}}, 5, named(7)}, {"", "", "7"});
        row("empty", QVariant(), {});
        row("a text", "a", {});
        QTest::newRow("nothing at all") << Content() << QStringList();
    }
    void theBusListsTheProjects() {
        QFETCH(Content, answer);
        bus().answerWith(answer);
        follow();
        QTEST(kiteInterface()->getProjectList(), "names");
        QCOMPARE(events(), QStringList{"get backup.backup_list nobody"});
        QCOMPARE(bus().sentAs(Verb::Get), QStringList{"backup.backup_list||null"});
        QCOMPARE(log().lines(), QStringList());
    }

    void withoutAnAnswerThereAreNoProjects() {
        bus().answers = false;
        QCOMPARE(kiteInterface()->getProjectList(), QStringList());
        bus().setUp(false);
        QCOMPARE(kiteInterface()->getProjectList(), QStringList());
        QCOMPARE(bus().sent.size(), 1);
    }

    void someNamesAreRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("_temp") << "_temp";
        QTest::newRow("empty") << "";
        QTest::newRow("null") << QString();
    }
    void someNamesAreRefused() {
        QFETCH(QString, name);
        const QStringList before = workspace().allContent();
        follow();
        log().expect(badName);
        QCOMPARE(kiteInterface()->createProject(name, "d", true), -1);
        verifyErrorLine(log(), folder(), badName);
        log().expect(badName);
        QCOMPARE(kiteInterface()->createProject(name, "d", false), -1);
        log().expect(badName);
        QCOMPARE(kiteInterface()->changeProject(name), -1);
        QCOMPARE(events(), QStringList());
        QCOMPARE(workspace().allContent(), before);
    }

    void namesThatAreAlikeAreTaken_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"_temp2", "_Temp", "a_temp", " _temp", "temp"})
            QTest::newRow(name) << name;
    }
    void namesThatAreAlikeAreTaken() {
        QFETCH(QString, name);
        QCOMPARE(kiteInterface()->createProject(name, "d", false), 0);
        QVERIFY(QDir(workspace().at(name)).exists());
        QCOMPARE(kiteInterface()->changeProject(name), 0);
        QCOMPARE(text("orca.project.cur_project"), "LOCALHOST/" + name);
    }

    void aProjectIsAFolderWithADescription() {
        write("helm.r.id", "R17");
        follow();
        const QDateTime before = now();
        QCOMPARE(kiteInterface()->createProject("demo", "a \"b\" ä", false), 0);
        const QDateTime after = now();
        QCOMPARE(workspace().content(), QStringList({"R17/", "R17/demo/", "R17/demo/projectinfo.json"}));
        const QByteArray json = workspace().readFile("demo/projectinfo.json");
        QVERIFY2(json.contains('\n'), json.constData());
        const QJsonObject info = objectOf(json);
        QCOMPARE(info.keys(), QStringList({"create_time", "description"}));
        QCOMPARE(info["description"], QJsonValue("a \"b\" ä"));
        const QDateTime made = QDateTime::fromString(info["create_time"].toString(), "yyyy-MM-dd hh:mm:ss");
        QVERIFY2(made >= before && made <= after, json.constData());
        QCOMPARE(events(), QStringList());
        QCOMPARE(log().lines(), QStringList());
        QCOMPARE(bus().sent.size() + controller().sent.size(), 0);
    }

    void withoutAnIdTheRobotIsTheLocalHost() {
        QCOMPARE(kiteInterface()->createProject("demo", "", true), 0);
        QVERIFY(QFile::exists(workspace().path() + "/LOCALHOST/demo/projectinfo.json"));
        QCOMPARE(text("orca.project.cur_project"), QString("LOCALHOST/demo"));
        QCOMPARE(kiteInterface()->changeProject("other"), 0);
        QCOMPARE(text("orca.project.cur_project"), QString("LOCALHOST/other"));
    }

    void anEmptyDescriptionIsWrittenToo() {
        kiteInterface()->createProject("demo", "", false);
        const QJsonObject info = objectOf(workspace().readFile("demo/projectinfo.json"));
        QVERIFY(info.contains("description"));
        QCOMPARE(info["description"], QJsonValue(""));
    }

    void aProjectThatIsThereStaysAsItIs() {
        QCOMPARE(kiteInterface()->createProject("demo", "first", false), 0);
        const QByteArray json = workspace().readFile("demo/projectinfo.json");
        follow();
        for (bool setCurrent : {false, true}) {
            log().forgetLines();
            log().expect("Projrct already exists! Path : ");
            QCOMPARE(kiteInterface()->createProject("demo", "second", setCurrent), -2);
            QCOMPARE(log().count("]Projrct already exists! Path : " + workspace().at("demo") + "\x1b"), 1);
        }
        QCOMPARE(workspace().readFile("demo/projectinfo.json"), json);
        QCOMPARE(events(), QStringList());
    }

    void theRecordsNameNoModule() {
        QDir().mkpath(workspace().at("demo"));
        log().expect("Projrct already exists! Path : ");
        kiteInterface()->createProject("demo", "", true);
        verifyErrorLine(log(), folder(), "Projrct already exists! Path : " + workspace().at("demo"));
    }

    void whatIsInTheWayIsAnErrorLine() {
        workspace().makeFile("demo");
        follow();
        log().expect("Path create error! Path : ");
        QCOMPARE(kiteInterface()->createProject("demo", "d", true), -3);
        verifyErrorLine(log(), folder(), "Path create error! Path : " + workspace().at("demo"));
        QCOMPARE(events(), QStringList());
        QCOMPARE(workspace().readFile("demo"), QByteArray("x"));
    }

    void theCurrentOneIsWrittenStepByStep() {
        follow();
        QCOMPARE(kiteInterface()->createProject("demo", "d", true), 0);
        const QString time = objectOf(workspace().readFile("demo/projectinfo.json"))["create_time"].toString();
        QCOMPARE(events(),
                 QStringList({"project.projetc_info.description d nobody",
                              "project.projetc_info.create_time " + time + " nobody", "toolpage.tool toole kite",
                              "toolpage.wobj wobjo kite", "project.cur_project LOCALHOST/demo kite"}));
        QCOMPARE(time.size(), 19);
        QCOMPARE(log().lines(), QStringList());
        QCOMPARE(bus().sent.size() + controller().sent.size(), 0);
    }

    void theFileHasWhatTheHostKeepsOfTheCurrentProject() {
        m("orca.project.projetc_info")->set(nullptr, "author", "host");
        m("orca.project.projetc_info")->set(nullptr, "description", "before");
        kiteInterface()->createProject("other", "kept apart", false);
        QCOMPARE(text("orca.project.projetc_info.description"), QString("before"));
        QCOMPARE(objectOf(workspace().readFile("other/projectinfo.json")).size(), 2);
        kiteInterface()->createProject("demo", "d", true);
        const QJsonObject info = objectOf(workspace().readFile("demo/projectinfo.json"));
        QCOMPARE(info, m("orca.project.projetc_info")->exportToJson(true).toObject());
        QCOMPARE(info["author"], QJsonValue("host"));
        QCOMPARE(info["description"], QJsonValue("d"));
    }

    void theFileIsWrittenBeforeTheProjectIsChangedTo() {
        bool isThere = false;
        const QObject listener;
        connect(m("orca.toolpage.tool"), &ModuleObject::changed, &listener,
                [&] { isThere = QFile::exists(workspace().at("demo/projectinfo.json")); });
        kiteInterface()->createProject("demo", "d", true);
        QVERIFY(isThere);
    }

    void globalToolsAreKeptByAKeyWithAComma_data() {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("comma");
        QTest::addColumn<QString>("kept");
        const auto row = [](const char* tool, const char* comma, const char* kept) {
            QTest::addRow("\"%s\", \"%s\"", tool, comma) << tool << comma << kept;
        };
        row("g_tool_a", "g_tool_a", "g_tool_a");
        row("g_tool_a", "g_tool_", "g_tool_a");
        row("tool1", "g_tool_b", "tool1");
        row("g_tool_a", "", "toole");
        row("g_tool_a", "tool1", "toole");
        row("g_tool_a", "G_tool_a", "toole");
        row("g_tool_a", " g_tool_a", "toole");
        row("tool0", "", "toole");
        row("", "", "toole");
    }
    void globalToolsAreKeptByAKeyWithAComma() {
        QFETCH(QString, tool);
        QFETCH(QString, comma);
        write("orca.toolpage.tool", tool);
        write("orca.toolpage,tool", comma);
        kiteInterface()->createProject("demo", "d", true);
        QTEST(text("orca.toolpage.tool"), "kept");
        QCOMPARE(text("orca.toolpage,tool"), comma);
    }

    void globalWorkObjectsAreKept_data() {
        QTest::addColumn<QString>("wobj");
        QTest::addColumn<QString>("kept");
        for (const char* wobj : {"g_wobj_a", "g_wobj_"})
            QTest::newRow(wobj) << wobj << wobj;
        for (const char* wobj : {"wobj1", "", "G_wobj_a", "g wobj_a", "g_wobj", "a_g_wobj_"})
            QTest::addRow("\"%s\"", wobj) << wobj << "wobjo";
    }
    void globalWorkObjectsAreKept() {
        QFETCH(QString, wobj);
        write("orca.toolpage.wobj", wobj);
        kiteInterface()->createProject("demo", "d", true);
        QTEST(text("orca.toolpage.wobj"), "kept");
    }

    void withoutBeingSetNothingIsSelected() {
        write("orca.toolpage.tool", "t");
        kiteInterface()->createProject("demo", "d", false);
        QCOMPARE(text("orca.toolpage.tool"), QString("t"));
        QCOMPARE(text("orca.project.cur_project"), QString());
    }

    void theNodesMayGoWhenTheyAreWritten() {
        const QObject listener;
        connect(m("orca.project.projetc_info.description"), &ModuleObject::changed, &listener,
                [] { delete m("orca.project.projetc_info"); });
        connect(m("orca.toolpage.tool"), &ModuleObject::changed, &listener, [] { delete m("orca.toolpage.wobj"); });
        QCOMPARE(kiteInterface()->createProject("demo", "d", true), 0);
        QCOMPARE(text("orca.project.cur_project"), QString("LOCALHOST/demo"));
        // The description went with its node; what was written afterwards is there.
        const QByteArray json = workspace().readFile("demo/projectinfo.json");
        QVERIFY2(QJsonDocument::fromJson(json).isObject(), json.constData());
        QCOMPARE(objectOf(json).keys(), QStringList{"create_time"});
        QCOMPARE(objectOf(json), m("orca.project.projetc_info")->exportToJson(true).toObject());
    }

    void theCallersTextsMayGoWhenTheNodesAreWritten() {
        QString name = "demo";
        QString description = "d";
        const QObject listener;
        connect(m("orca.project.projetc_info.description"), &ModuleObject::changed, &listener, [&] {
            name.clear();
            description.clear();
        });
        QCOMPARE(kiteInterface()->createProject(name, description, true), 0);
        QVERIFY(name.isEmpty());
        QCOMPARE(text("orca.project.cur_project"), QString("LOCALHOST/demo"));
        QCOMPARE(objectOf(workspace().readFile("demo/projectinfo.json"))["description"], QJsonValue("d"));
    }

    void changingWritesTheReferenceAndNothingElse() {
        write("helm.r.id", "R17");
        follow();
        QCOMPARE(kiteInterface()->changeProject("nowhere"), 0);
        QCOMPARE(kiteInterface()->changeProject("nowhere"), 0);
        QCOMPARE(kiteInterface()->changeProject("a/../b "), 0);
        QCOMPARE(events(), QStringList({"project.cur_project R17/nowhere kite", "project.cur_project R17/nowhere kite",
                                        "project.cur_project R17/a/../b  kite"}));
        QCOMPARE(workspace().content(), QStringList());
        QCOMPARE(log().lines(), QStringList());
        QCOMPARE(bus().sent.size() + controller().sent.size(), 0);
    }

    void linksAreNotNeeded() {
        bus().setUp(false);
        controller().setUp(false);
        QCOMPARE(kiteInterface()->createProject("demo", "d", true), 0);
        QCOMPARE(kiteInterface()->changeProject("demo"), 0);
        QVERIFY(QFile::exists(workspace().at("demo/projectinfo.json")));
    }

    void namesAreUsedAsTheyAre_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("made");
        const auto row = [](const QString& name, const QString& made) {
            QTest::addRow("\"%s\"", qPrintable(name)) << name << made;
        };
        row("a b", "LOCALHOST/a b/");
        row(" a ", "LOCALHOST/ a /");
        row("a.b", "LOCALHOST/a.b/");
        row("...", "LOCALHOST/.../");
        row(".hidden", "LOCALHOST/.hidden/");
        row("a/b", "LOCALHOST/a/b/");
        row("a//b", "LOCALHOST/a/b/");
        row("/a", "LOCALHOST/a/");
        row("a/", "LOCALHOST/a/");
        row("a/./b", "LOCALHOST/a/b/");
        row("../b", "b/");
        row("../../b", "../b/");
        row("проект 项目 ü", "LOCALHOST/проект 项目 ü/");
        row("a\\b", "LOCALHOST/a\\b/");
        QTest::newRow("a line break") << "a\nb"
                                      << "LOCALHOST/a\nb/";
        row("a\"'$(b)*?", "LOCALHOST/a\"'$(b)*?/");
        row("%1", "LOCALHOST/%1/");
        row("_temp/", "LOCALHOST/_temp/");
        QTest::newRow("longest") << QString(255, 'n') << "LOCALHOST/" + QString(255, 'n') + "/";
        QTest::newRow("longest in bytes")
            << QString(127, QChar(0xe4)) << "LOCALHOST/" + QString(127, QChar(0xe4)) + "/";
    }
    void namesAreUsedAsTheyAre() {
        QFETCH(QString, name);
        QFETCH(QString, made);
        QVERIFY(workspace().guard().isInside(workspace().at(name)));
        // A folder in the path has to be there before ".." leads out of it.
        QVERIFY(QDir().mkpath(workspace().at("")));
        QCOMPARE(kiteInterface()->createProject(name, "d", true), 0);
        const QString path = workspace().path() + "/" + made;
        QVERIFY2(QFile::exists(path + "projectinfo.json"), qPrintable(workspace().allContent().join("\n")));
        QCOMPARE(objectOf(QByteArray(workspace().readFile(name + "/projectinfo.json")))["description"],
                 QJsonValue("d"));
        QCOMPARE(text("orca.project.cur_project"), "LOCALHOST/" + name);
        log().expect("Projrct already exists! Path : ");
        QCOMPARE(kiteInterface()->createProject(name, "e", false), -2);
    }

    void namesOfFoldersThatAreThereAreTaken_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {".", "..", "../..", "/", "./", "a/.."})
            QTest::newRow(name) << name;
    }
    void namesOfFoldersThatAreThereAreTaken() {
        QFETCH(QString, name);
        QDir().mkpath(workspace().at("a"));
        const QStringList before = workspace().allContent();
        log().expect("Projrct already exists! Path : ");
        QCOMPARE(kiteInterface()->createProject(name, "d", false), -2);
        QCOMPARE(workspace().allContent(), before);
    }

    void namesThatAreTooLongAreErrorLines_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("256 letters") << QString(256, 'n');
        QTest::newRow("128 letters of two bytes") << QString(128, QChar(0xe4));
        QTest::newRow("a path of 5000") << QString("n/").repeated(2500);
    }
    void namesThatAreTooLongAreErrorLines() {
        QFETCH(QString, name);
        follow();
        log().expect("Path create error! Path : ");
        QCOMPARE(kiteInterface()->createProject(name, "d", true), -3);
        QCOMPARE(events(), QStringList());
        QVERIFY(!QFile::exists(workspace().at("projectinfo.json")));
        QVERIFY(workspace().content().filter("projectinfo").isEmpty());
    }

    void foldersThatLeadToOneThatCannotBeMadeStay() {
        log().expect("Path create error! Path : ");
        QCOMPARE(kiteInterface()->createProject("a/" + QString(256, 'n'), "d", true), -3);
        QCOMPARE(workspace().content(), QStringList({"LOCALHOST/", "LOCALHOST/a/"}));
        log().expect("Projrct already exists! Path : ");
        QCOMPARE(kiteInterface()->createProject("a", "d", true), -2);
    }

    // The root of the disk has /proc/self, so nothing is made here. That the identifier is heeded is made sure of
    // before, or else a folder would be made at the root.
    void withoutAWorkspaceThePathBeginsAtTheRoot() {
        write("helm.r.id", "proc");
        QVERIFY(QDir("/proc/self").exists());
        kiteInterface()->changeProject("self");
        QCOMPARE(text("orca.project.cur_project"), QString("proc/self"));
        HostSettings::set("workspace", "");
        log().expect("Projrct already exists! Path : ");
        QCOMPARE(kiteInterface()->createProject("self", "d", false), -2);
        QCOMPARE(log().count("Path : /proc/self\x1b"), 1);
    }

    void aWorkspaceIsTakenFromWhereThePendantWorks() {
        HostSettings::set("workspace", "below/here");
        QCOMPARE(kiteInterface()->createProject("demo", "d", false), 0);
        QVERIFY(QFile::exists(folder().path() + "/below/here/LOCALHOST/demo/projectinfo.json"));
        QCOMPARE(workspace().content(), QStringList());
    }

private:
    static QDateTime now() {
        const QDateTime time = QDateTime::currentDateTime();
        return time.addMSecs(-time.time().msec());
    }
};

QTEST_GUILESS_MAIN(TestProjects)
#include "tst_projects.moc"
