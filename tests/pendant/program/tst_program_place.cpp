#include "brisk/modulemanager.h"
#include "program/programplace.h"

#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include <QDir>
#include <QSettings>
#include <QTest>

#include <memory>

using pendant::ProgramPlace;

// Where a program lies.
class TestProgramPlace : public QObject {
    Q_OBJECT

private slots:
    // The host opens its settings file once.
    void initTestCase() { m_folder.reset(new pendanttest::WorkingFolder); }
    void cleanupTestCase() { m_folder.reset(); }
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() {
        m_log.reset();
        m("orca")->clear(nullptr, true, true);
    }

    void itIsInTheFolderOfTheProject_data();
    void itIsInTheFolderOfTheProject();
    void aNameThatLeadsElsewhereIsNoPlace_data();
    void aNameThatLeadsElsewhereIsNoPlace();
    void aProjectInAFolderIsAPlaceOfItsOwn();
    void theTreeNamesIt();
    void theSettingNamesTheWorkspace();

private:
    static QString here() { return QDir::currentPath(); }

    std::unique_ptr<pendanttest::WorkingFolder> m_folder;
    std::unique_ptr<pendanttest::LogWatch> m_log;
};

void TestProgramPlace::itIsInTheFolderOfTheProject_data() {
    QTest::addColumn<QString>("workspace");
    QTest::addColumn<QString>("project");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("file");
    const auto row = [](const char* name, const QString& workspace, const QString& project, const QString& function,
                        const QString& file) { QTest::newRow(name) << workspace << project << function << file; };
    row("plain", "/w", "demo", "pick", "/w/demo/programs/pick.txt");
    row("no function", "/w", "demo", "", "/w/demo/programs/main.txt");
    row("project in a folder", "/w", "LOCALHOST/demo", "main", "/w/LOCALHOST/demo/programs/main.txt");
    row("relative workspace", "work", "demo", "main", here() + "/work/demo/programs/main.txt");
    row("blanks", "/w", "my demo", "pick and place", "/w/my demo/programs/pick and place.txt");
    row("dots that lead nowhere", "/w", "...", "..a", "/w/.../programs/..a.txt");
    row("Chinese", "/w", QString::fromUtf8("演示"), QString::fromUtf8("主"),
        QString::fromUtf8("/w/演示/programs/主.txt"));
    row("places for values", "/%1", "%1", "%2", "/%1/%1/programs/%2.txt");
}

void TestProgramPlace::itIsInTheFolderOfTheProject() {
    QFETCH(QString, workspace);
    QFETCH(QString, project);
    QFETCH(QString, function);
    QFETCH(QString, file);
    const ProgramPlace place(workspace, project, function);
    QVERIFY2(place.isValid(), qPrintable(place.problem()));
    QCOMPARE(place.problem(), QString());
    QCOMPARE(place.file(), file);
    QCOMPARE(place.unsavedFile(), file + ".unsaved");
    QCOMPARE(place.project(), project);
    QCOMPARE(place.name(), function.isEmpty() ? QString("main") : function);
}

void TestProgramPlace::aNameThatLeadsElsewhereIsNoPlace_data() {
    QTest::addColumn<QString>("project");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no project") << ""
                                << "main"
                                << "No project is open.";
    for (const char* project : {"..", ".", "/", "/etc", "a/", "a//b", "../a", "a/..", "a/../..", "a/./b"}) {
        const QString problem = QString("The project's name “%1” leads out of the workspace.").arg(project);
        QTest::addRow("project %s", project) << project << "main" << problem;
    }
    for (const char* function : {"..", ".", "/", "/etc/passwd", "a/b", "../a"}) {
        const QString problem = QString("The program's name “%1” leads out of the project.").arg(function);
        QTest::addRow("function %s", function) << "demo" << function << problem;
    }
    const QString cut = QString("a") + QChar(QChar::Null);
    QTest::newRow("null in the project") << cut << ""
                                         << "The project's name “" + cut + "” leads out of the workspace.";
    QTest::newRow("null in the function") << "a" << cut << "The program's name “" + cut + "” leads out of the project.";
}

void TestProgramPlace::aNameThatLeadsElsewhereIsNoPlace() {
    QFETCH(QString, project);
    QFETCH(QString, function);
    QFETCH(QString, problem);
    const ProgramPlace place("/w", project, function);
    QVERIFY(!place.isValid());
    QCOMPARE(place.problem(), problem);
    QCOMPARE(place.file(), QString());
    QCOMPARE(place.unsavedFile(), QString());
}

void TestProgramPlace::aProjectInAFolderIsAPlaceOfItsOwn() {
    const ProgramPlace place("/w", "a", "main");
    QVERIFY(place == ProgramPlace("/w", "a", ""));
    QVERIFY(place != ProgramPlace("/w", "b", "main"));
    QVERIFY(place != ProgramPlace("/w", "a", "b"));
    QVERIFY(place != ProgramPlace("/x", "a", "main"));
    QVERIFY(ProgramPlace() == ProgramPlace("", "", ""));
    QVERIFY(ProgramPlace("/w", "../a", "") != ProgramPlace("/w", "../b", ""));
}

void TestProgramPlace::theTreeNamesIt() {
    QCOMPARE(ProgramPlace::ofTree().problem(), QString("No project is open."));
    m("orca.project.cur_project")->setValue(nullptr, "demo");
    QCOMPARE(ProgramPlace::ofTree().file(), here() + "/workspace/demo/programs/main.txt");
    m("orca.project.cur_func")->setValue(nullptr, "pick");
    QCOMPARE(ProgramPlace::ofTree().file(), here() + "/workspace/demo/programs/pick.txt");
}

void TestProgramPlace::theSettingNamesTheWorkspace() {
    m("orca.project.cur_project")->setValue(nullptr, "demo");
    QVERIFY(!ProgramPlace::ofTree().file().isEmpty());
    QSettings settings("settings.ini", QSettings::IniFormat);
    settings.setValue("workspace", "/somewhere/else");
    QCOMPARE(ProgramPlace::ofTree().file(), QString("/somewhere/else/demo/programs/main.txt"));
    settings.setValue("workspace", "");
    QCOMPARE(ProgramPlace::ofTree().file(), here() + "/workspace/demo/programs/main.txt");
}

QTEST_GUILESS_MAIN(TestProgramPlace)
#include "tst_program_place.moc"
