#include "../contents.h"
#include "records.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/projectstore.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using controller::PersistentVariables;
using controller::Project;
using controller::ProjectStore;

namespace {

/// JSON with single quotes.
QByteArray json(QByteArray text) {
    return text.replace('\'', '"');
}

controller::ProjectStart cell() {
    controller::ProjectStart start = controller::emptyProject();
    start.name = "demo";
    start.function = "pick";
    start.variables << variableRecord("plain", "int", 1, false) << variableRecord("count", "int", 1);
    start.points << QJsonObject{{"name", "home"}, {"property", "joint"}};
    return start;
}

/// A controller's project as it is after the start, in a workspace.
struct Bench {
    explicit Bench(const QString& workspace, const QString& reference = QString(), const QString& autoload = QString(),
                   const QString& robot = QStringLiteral("R17")) {
        project.setRobot(robot);
        project.start(cell());
        store.start(workspace, reference, autoload);
    }

    void add(const QString& node, const QJsonObject& record) { project.put(underNode(node, record), nullptr, false); }
    QString names() const {
        QStringList names;
        for (const QString& node : project.variables().nodes())
            names << controller::textAt(project.variables().record(node), "name");
        names << "|";
        for (const QString& node : project.points().nodes())
            names << controller::textAt(project.points().record(node), "name");
        return names.join(' ');
    }
    QString failure() const { return failed.isEmpty() ? QString() : failed.last().first().toString(); }

    Project project;
    PersistentVariables variables{&project};
    ProjectStore store{&project, &variables, nullptr, 0};
    QSignalSpy failed{&store, &ProjectStore::failed};
};

} // namespace

// Every folder lies in the workspace, three levels down in the test's own temporary folder.
class TestProjectStore : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        if (!m_folder->isValid() || !workspace().startsWith(QDir::tempPath() + '/'))
            qFatal("There is no temporary folder for the workspace.");
    }

    void theCellsProjectIsLaidDownAtTheFirstStart() {
        const Bench bench(workspace());
        QVERIFY2(bench.failed.isEmpty(), qPrintable(bench.failure()));
        QCOMPARE(entries("R17/demo"), (QStringList{"project.json", "projectinfo.json"}));
        QCOMPARE(bench.store.names(), QStringList{"demo"});
        QCOMPARE(bench.store.folder(), at("R17/demo"));
        const QByteArray info = read("R17/demo/projectinfo.json");
        QVERIFY2(info.contains("\"create_time\": \"20") && info.contains("\"description\": \"\""), info.constData());
    }

    void withoutAnIdentifierTheRobotIsLocalhost() {
        const Bench bench(workspace(), QString(), QString(), QString());
        QCOMPARE(entries("LOCALHOST"), QStringList{"demo"});
        QCOMPARE(text(controller::Content(bench.project.content())).contains("\"cur_project\":\"LOCALHOST/demo\""),
                 true);
    }

    void whatChangedIsThereAtTheNextStart() {
        {
            Bench bench(workspace());
            bench.add("#7", variableRecord("added", "double", 2.5, false));
            bench.project.put(
                nullptr, content(json("{'#4': {'name': 'P', 'value': {'[0][0][0]': {'x': [1, 2.5]}}}}").constData()),
                false);
            bench.project.removeVariables({"plain"});
        }
        const Bench bench(workspace());
        QCOMPARE(bench.names(), QString("count added | home P"));
        QCOMPARE(bench.project.variables().nodes(), (QStringList{"#0", "#1"}));
        QCOMPARE(text(bench.project.points().record("#1")),
                 QString::fromUtf8(json("{'name':'P','value':{'[0][0][0]':{'x':[1,2.5]}}}")));
        const controller::Content opened = bench.project.content();
        QCOMPARE(opened->c("cur_func")->getString(), QString("pick"));
        QCOMPARE(opened->r("var.default.description")->getString(), QString());
    }

    void theOrderOfManyRecordsIsKept() {
        QStringList expected{"plain", "count"};
        {
            Bench bench(workspace());
            for (int i = 2; i < 25; ++i) {
                bench.add('#' + QString::number(i), variableRecord('v' + QString::number(i), "int", i, false));
                expected << 'v' + QString::number(i);
            }
        }
        QCOMPARE(Bench(workspace()).names(), expected.join(' ') + " | home");
    }

    void aChangeIsWrittenFromTheEventLoop() {
        Bench bench(workspace());
        bench.add("#7", variableRecord("added", "int", 2, false));
        QVERIFY(!read("R17/demo/project.json").contains("added"));
        QTRY_VERIFY(read("R17/demo/project.json").contains("added"));
    }

    void persistentValuesAreKeptWithTheirPresentValue() {
        {
            Bench bench(workspace());
            bench.variables.modify({{"count", 9}});
        }
        const Bench bench(workspace());
        QCOMPARE(bench.variables.variable("count").value.toInt(), 9);
        QCOMPARE(controller::textAt(bench.project.variables().record("#1"), "value.[0][0][0]"), QString("9"));
    }

    void twoProjectsKeepTheirOwn() {
        make("R17/other");
        Bench bench(workspace());
        QCOMPARE(bench.store.open("R17/other"), QString());
        QCOMPARE(bench.names(), QString("|"));
        QCOMPARE(bench.project.reference(), QString("R17/other"));
        QCOMPARE(bench.variables.names(), QStringList());
        bench.add("#0", variableRecord("theirs", "int", 1));
        QCOMPARE(bench.store.open("R17/demo"), QString());
        QCOMPARE(bench.names(), QString("plain count | home"));
        bench.variables.modify({{"count", 4}});
        QCOMPARE(bench.store.open("R17/other"), QString());
        QCOMPARE(bench.names(), QString("theirs |"));
        QCOMPARE(bench.store.open("R17/demo"), QString());
        QCOMPARE(bench.variables.variable("count").value.toInt(), 4);
        QVERIFY(bench.failed.isEmpty());
    }

    // Whoever answers for its deletion means records of the project that is open no more.
    void whatWasDeletedOfTheOneBeforeIsForgotten() {
        make("R17/other");
        Bench bench(workspace());
        bench.project.removeVariables({"plain", "nobody"});
        bench.store.open("R17/other");
        const Project::Deleted deleted = bench.project.takeDeleted();
        QVERIFY(deleted.nodes.isEmpty() && deleted.names.isEmpty());
    }

    void theOpenOneIsNotOpenedAgain() {
        Bench bench(workspace());
        bench.add("#7", variableRecord("added", "int", 2, false));
        QCOMPARE(bench.store.open("R17/demo"), QString());
        QCOMPARE(bench.project.variables().nodes().last(), QString("#7"));
    }

    void namesAreFoldersAsTheyStand_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("blanks") << "night shift ";
        QTest::newRow("dots") << "a.b..c";
        QTest::newRow("hidden") << ".hidden";
        QTest::newRow("umlauts") << QString::fromUtf8("Prüfstück");
        QTest::newRow("Chinese") << QString::fromUtf8("项目一");
        QTest::newRow("like the reserved one") << "_temp2";
        QTest::newRow("backslash") << "a\\b";
        QTest::newRow("longest") << QString(255, 'x');
    }
    void namesAreFoldersAsTheyStand() {
        QFETCH(QString, name);
        make("R17/" + name);
        Bench bench(workspace());
        QCOMPARE(bench.store.open("R17/" + name), QString());
        bench.add("#0", variableRecord("v", "int", 1, false));
        bench.store.save();
        QVERIFY(read("R17/" + name + "/project.json").contains("\"v\""));
        QCOMPARE(bench.store.names().size(), 2);
        QVERIFY(bench.store.names().contains(name));
    }

    void whatIsNoneOfTheRobotsProjectsIsRefused_data() {
        QTest::addColumn<QString>("reference");
        for (const char* reference :
             {"", "R17", "R17/", "R17/.", "R17/..", "R17/../R18/theirs", "R18/theirs", "/R17/demo", "R17/_temp",
              "R17/demo/programs", "R17//demo", "R17/none", "R17/a file"})
            QTest::newRow(reference) << reference;
        QTest::newRow("too long") << "R17/" + QString(256, 'x');
        QTest::newRow("null") << QString("R17/demo") + QChar::Null;
    }
    void whatIsNoneOfTheRobotsProjectsIsRefused() {
        QFETCH(QString, reference);
        make("R17/_temp");
        make("R18/theirs");
        make("R17/demo/programs");
        QFile file(at("R17/a file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        Bench bench(workspace(), "R17/demo");
        const QStringList before = allEntries();
        const QString why = bench.store.open(reference);
        QVERIFY2(why.endsWith('.'), qPrintable(why));
        QCOMPARE(bench.project.reference(), QString("R17/demo"));
        QCOMPARE(allEntries(), before);
    }

    void listedAreTheFoldersOfThisRobotInOrder() {
        for (const char* name : {"R17/b", "R17/B", "R17/a 1", "R17/_temp", "R18/x", "R17/.git"})
            make(name);
        QFile file(at("R17/file.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const Bench bench(workspace());
        QCOMPARE(bench.store.names(), (QStringList{".git", "B", "a 1", "b", "demo"}));
    }

    void theOneThatWasOpenLastIsOpenedAtTheStart() {
        make("R17/other");
        {
            Bench bench(workspace(), QString(), "other");
            QCOMPARE(bench.project.reference(), QString("R17/other"));
            QVERIFY(!QFile::exists(at("R17/demo")));
        }
        Bench named(workspace(), "R17/other", "none");
        QCOMPARE(named.project.reference(), QString("R17/other"));
        Bench gone(workspace(), QString(), "none");
        QCOMPARE(gone.project.reference(), QString("R17/demo"));
        QVERIFY(gone.failed.isEmpty());
    }

    void oneThatCannotBeOpenedAtTheStartIsToldAndTheCellsIsOpened() {
        Bench bench(workspace(), "R17/none");
        QCOMPARE(bench.project.reference(), QString("R17/demo"));
        QVERIFY2(bench.failure().contains("R17/none"), qPrintable(bench.failure()));
        QCOMPARE(entries("R17"), QStringList{"demo"});
    }

    void theCellsSectionIsForANewProjectOfItsNameAlone() {
        make("R17/demo");
        QCOMPARE(Bench(workspace()).names(), QString("plain count | home"));
        write("R17/demo/project.json", json("{'variables': [], 'points': [], 'templates': {}}"));
        QCOMPARE(Bench(workspace()).names(), QString("|"));
        QVERIFY(QFile::remove(at("R17/demo/project.json")));
        QCOMPARE(Bench(workspace()).names(), QString("plain count | home"));
    }

    void aFileThatIsNoProjectIsToldAndLeftAlone_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("{");
        QTest::newRow("list") << QByteArray("[]");
        QTest::newRow("no lists") << QByteArray("{}");
        QTest::newRow("no templates") << (json("{'variables': [], 'points': []}"));
        QTest::newRow("text for a record") << (json("{'variables': ['a'], 'points': [], 'templates': {}}"));
        QTest::newRow("empty record") << (json("{'variables': [], 'points': [{}], 'templates': {}}"));
    }
    void aFileThatIsNoProjectIsToldAndLeftAlone() {
        QFETCH(QByteArray, bytes);
        make("R17/bad");
        write("R17/bad/project.json", bytes);
        write("R17/demo/project.json", bytes);
        {
            Bench bench(workspace());
            QVERIFY2(bench.failure().contains(at("R17/demo/project.json")), qPrintable(bench.failure()));
            QVERIFY(bench.store.open("R17/bad").contains("project.json"));
            bench.add("#7", variableRecord("added", "int", 2, false));
            bench.store.save();
            QCOMPARE(bench.names(), QString("plain count added | home"));
        }
        QCOMPARE(read("R17/demo/project.json"), bytes);
        QCOMPARE(read("R17/bad/project.json"), bytes);
    }

    void aFileInThePlaceOfAFolderIsTold_data() {
        QTest::addColumn<QString>("place");
        QTest::newRow("workspace") << "";
        QTest::newRow("robot") << "R17";
        QTest::newRow("project") << "R17/demo";
    }
    void aFileInThePlaceOfAFolderIsTold() {
        QFETCH(QString, place);
        const QString path = place.isEmpty() ? workspace() : at(place);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
        file.close();
        Bench bench(workspace());
        QCOMPARE(bench.failed.size(), 1);
        QVERIFY(QFileInfo(path).isFile());
        QCOMPARE(bench.names(), QString("plain count | home"));
        bench.add("#7", variableRecord("added", "int", 2, false));
        QCOMPARE(bench.store.save(), QString());
    }

    void whatCannotBeWrittenIsToldAndKeepsTheProjectOpen() {
        make("R17/other");
        Bench bench(workspace());
        bench.add("#7", variableRecord("added", "int", 2, false));
        QVERIFY(QFile::remove(at("R17/demo/project.json")));
        make("R17/demo/project.json/in the way");
        QTRY_COMPARE(bench.failed.size(), 1);
        QVERIFY2(bench.failure().contains(at("R17/demo/project.json")), qPrintable(bench.failure()));
        QVERIFY(!bench.store.open("R17/other").isEmpty());
        QCOMPARE(bench.project.reference(), QString("R17/demo"));
        QVERIFY(QDir(at("R17/demo/project.json")).removeRecursively());
        write("R17/demo/project.json", "{}");
        QCOMPARE(bench.store.open("R17/other"), QString());
        QVERIFY(read("R17/demo/project.json").contains("added"));
    }

    void aDeletedProjectIsNotMadeAgain_data() {
        QTest::addColumn<bool>("isAnnounced");
        QTest::newRow("announced") << true;
        QTest::newRow("behind its back") << false;
    }
    void aDeletedProjectIsNotMadeAgain() {
        QFETCH(bool, isAnnounced);
        Bench bench(workspace());
        if (isAnnounced)
            bench.store.expectRemoval("demo");
        QVERIFY(QDir(at("R17/demo")).removeRecursively());
        if (!isAnnounced)
            bench.add("#7", variableRecord("added", "int", 2, false));
        QTRY_COMPARE(bench.failed.size(), 1);
        QVERIFY2(bench.failure().contains("R17/demo"), qPrintable(bench.failure()));
        bench.add("#8", variableRecord("more", "int", 2, false));
        QCOMPARE(bench.store.save(), QString());
        QCOMPARE(bench.failed.size(), 1);
        QCOMPARE(entries("R17"), QStringList());
        QVERIFY(bench.names().contains("more"));
    }

    void aProjectMadeInThePlaceOfADeletedOneIsAnother() {
        Bench bench(workspace(), QString(), QString());
        make("R17/other");
        bench.store.open("R17/other");
        bench.add("#0", variableRecord("old", "int", 1));
        bench.store.save();
        QVERIFY(QDir(at("R17/other")).removeRecursively());
        make("R17/other");
        bench.add("#1", variableRecord("late", "int", 1));
        QCOMPARE(bench.store.save(), QString());
        QCOMPARE(bench.failed.size(), 1);
        QCOMPARE(entries("R17/other"), QStringList());
        QCOMPARE(bench.store.open("R17/other"), QString());
        QCOMPARE(bench.names(), QString("|"));
        QCOMPARE(entries("R17/other"), QStringList{"project.json"});
    }

    void theRemovalOfAnotherOneIsNoMatter() {
        make("R17/other");
        Bench bench(workspace());
        bench.store.expectRemoval("other");
        QVERIFY(QDir(at("R17/other")).removeRecursively());
        QTest::qWait(1);
        QVERIFY(bench.failed.isEmpty());
    }

    void afterItIsClosedNothingIsKept() {
        Bench bench(workspace());
        bench.add("#7", variableRecord("added", "int", 2, false));
        QCOMPARE(bench.store.close(), QString());
        QVERIFY(read("R17/demo/project.json").contains("added"));
        bench.add("#8", variableRecord("afterwards", "int", 2, false));
        QCOMPARE(bench.store.save(), QString());
        QVERIFY(!read("R17/demo/project.json").contains("afterwards"));
        QCOMPARE(bench.store.names(), QStringList());
        QVERIFY(!bench.store.open("R17/demo").isEmpty());
    }

    void aRobotWhoseIdentifierLeadsElsewhereKeepsNothing() {
        for (const char* robot : {"..", "a/b", "."}) {
            Bench bench(workspace(), QString(), QString(), robot);
            QCOMPARE(bench.failed.size(), 1);
            QVERIFY(!QFile::exists(workspace()));
        }
    }

private:
    QString workspace() const { return m_folder->path() + "/one/two/workspace"; }
    QString at(const QString& below) const { return workspace() + '/' + below; }
    void make(const QString& below) const { QVERIFY(QDir().mkpath(at(below))); }
    QByteArray read(const QString& below) const {
        QFile file(at(below));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    void write(const QString& below, const QByteArray& bytes) const {
        QVERIFY(QDir().mkpath(QFileInfo(at(below)).path()));
        QFile file(at(below));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    QStringList entries(const QString& below) const {
        return QDir(at(below)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    QStringList allEntries() const {
        QStringList all;
        for (const QString& robot : entries(QString())) {
            for (const QString& name : entries(robot))
                all << robot + '/' + name + ' ' + entries(robot + '/' + name).join(' ');
        }
        return all;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestProjectStore)
#include "tst_projectstore.moc"
