#include "projectsfixture.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "pendanttest/pendant.h"
#include "program/programstore.h"

#include "helm/managerhelper.h"

#include <QJsonObject>
#include <QRegularExpression>

using kite::kiteInterface;

// Projects on disk, and what of them is in the tree.
class TestProjectDisk : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log = std::make_unique<pendanttest::LogWatch>();
        m_disk = std::make_unique<Disk>();
    }
    void cleanup() {
        m_disk.reset();
        m_log.reset();
    }

    void theCellsProjectIsLaidDownAndNamedByItsReference();
    void variablesAndPointsAreThereAtTheNextStart();
    void whatChangedWithALinkDownIsThereToo();
    void persistentValuesAreThereAtTheNextStart();
    void anotherProjectTakesTheirPlaceAtOnce();
    void twoProjectsSwitchBackAndForth();
    void aCreatedProjectThatIsCurrentIsEmptyAndTakesWhatFollows();
    void aCreatedProjectThatIsNotCurrentChangesNothing();
    void theControllerHasTheRecordsOfTheOpenOne();
    void aProjectThatIsNotThereIsToldAndTakenBack();
    void triggeringReloadsAndNothingElse();
    void aDeletionUnderWayIsOfTheProjectBefore();
    void withALinkDownItIsOpenedWhenBothAreUp();
    void whatChangesBeforeThatIsOfTheProjectBefore();
    void aNameFromBeforeTheLinksIsOpened();
    void whenTheAnswerIsLostNothingIsMixed();
    void whoOpensAnotherWhileOneIsOpenedGetsIt();
    void theLastOneIsOpenedAtTheNextStart();
    void theControllerCanBeAskedForAnother();
    void oneThatIsGoneAtTheNextStartGivesWayToTheCells();
    void theListIsThatOfTheFolders();
    void aRemovedProjectIsGone();
    void theOpenProjectThatIsRemovedIsToldAndNotMadeAgain();
    void oneThatIsMadeInItsPlaceIsEmpty();
    void theProgramFollows();
    void changesToTheProgramOfARemovedProjectDoNotMakeItAgain();
    void whatIsSaidOfTheProjectIsInTheTree();
    void aPendantOfATestKeepsItsProjectsInItsOwnFolder();

private:
    static QString namesOf(const QString& words) { return QString(words).remove(QRegularExpression("#\\d+=")); }
    void expectRemovalLine() {
        m_log->expect("Argument missing");
        m_log->expect("]Remove folder %l failed!");
    }

    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<Disk> m_disk;
};

void TestProjectDisk::theCellsProjectIsLaidDownAndNamedByItsReference() {
    const Session session;
    QCOMPARE(session.open(), QString("virtual/demo"));
    QCOMPARE(m_disk->entries("demo"), (QStringList{"project.json", "projectinfo.json"}));
    QCOMPARE(kiteInterface()->getProjectList(), QStringList{"demo"});
    QVERIFY(session.variables()->cmobjCount() > 5 && session.points()->cmobjCount() > 3);
    QVERIFY(session.messages().isEmpty());
}

void TestProjectDisk::variablesAndPointsAreThereAtTheNextStart() {
    QJsonValue variables, points;
    {
        Session session;
        session.add("mine", 42);
        session.teach("P", 12.5);
        session.variables()->removeChild(session.variables()->c("#0"));
        session.settle();
        variables = session.variables()->exportToJson(true);
        points = session.points()->exportToJson(true);
    }
    const Session session;
    QCOMPARE(session.variables()->exportToJson(true), variables);
    QCOMPARE(session.points()->exportToJson(true), points);
}

void TestProjectDisk::whatChangedWithALinkDownIsThereToo() {
    {
        Session session;
        session.robot.bus(false);
        session.add("mine", 42);
        // As the pendant does at its end.
        const std::unique_ptr<brisk::ModuleObject> unsent = session.mirror.unsent();
        QVERIFY(unsent);
        controller::BusTable* bus = session.robot.controller()->bus();
        bus->command("mirror.put", brisk::standin::contentOf(unsent.get()));
        bus->command("mirror.close", nullptr);
        QVERIFY(!session.mirror.unsent());
    }
    const Session session;
    QVERIFY(session.inWords(session.variables()).contains("=mine"));
}

void TestProjectDisk::persistentValuesAreThereAtTheNextStart() {
    const QString file = QDir::current().filePath("controller.json");
    QString error;
    {
        Session session(false);
        QVERIFY(session.robot.controller()->keepValuesIn(file, &error));
        session.robot.connectLinks();
        session.add("kept", 1, true);
        session.settle();
        QCOMPARE(session.robot.controller()->persistentVariables()->modify({{"kept", 7}}), QString());
    }
    for (const bool hasFile : {true, false}) {
        Session session(false);
        if (!hasFile)
            QVERIFY(QFile::remove(file));
        QVERIFY(session.robot.controller()->keepValuesIn(file, &error));
        session.robot.connectLinks();
        QCOMPARE(session.inWords(session.variables()).count("=kept"), 1);
        QCOMPARE(session.robot.controller()->persistentVariables()->variable("kept").value.toInt(), 7);
        brisk::ModuleObject* last = session.variables()->cmobjs().last();
        QCOMPARE(last->r("value.[0][0][0]")->getInt(), 7);
    }
}

void TestProjectDisk::anotherProjectTakesTheirPlaceAtOnce() {
    Session session;
    m_disk->make("other");
    QCOMPARE(kiteInterface()->changeProject("other"), 0);
    QCOMPARE(session.open(), QString("virtual/other"));
    QCOMPARE(session.variables()->cmobjCount(), 0);
    QCOMPARE(session.points()->cmobjCount(), 0);
    QVERIFY(m("orca.project.var.default")->c("description"));
    QVERIFY(m("orca.project.point.default")->c("property"));
    QCOMPARE(m_disk->entries("other"), QStringList{"project.json"});
}

void TestProjectDisk::twoProjectsSwitchBackAndForth() {
    Session session;
    const QString demo = session.inWords(session.points());
    const QJsonValue demoVariables = session.variables()->exportToJson(true);
    m_disk->make("a b.c");
    session.open("a b.c");
    session.teach("P1", 1);
    session.teach("P2", 2);
    session.add("count", 3);
    session.open("demo");
    QCOMPARE(session.inWords(session.points()), demo);
    QCOMPARE(session.variables()->exportToJson(true), demoVariables);
    session.teach("Q", 4);
    session.open("a b.c");
    QCOMPARE(session.inWords(session.points()), QString("#0=P1 #1=P2"));
    QCOMPARE(session.points()->r("#1.value.[0][0][0].pose.frame.pos.x")->getDouble(), 2.0);
    QCOMPARE(session.inWords(session.variables()), QString("#0=count"));
    session.settle();
    session.open("demo");
    QVERIFY(session.inWords(session.points()).endsWith("=Q"));
    QVERIFY(session.messages().isEmpty());
}

void TestProjectDisk::aCreatedProjectThatIsCurrentIsEmptyAndTakesWhatFollows() {
    const QString name = QString::fromUtf8("夜班 Prüfung");
    Session session;
    QCOMPARE(kiteInterface()->createProject(name, "half speed", true), 0);
    session.add("first", 1);
    QCOMPARE(session.inWords(session.variables()), QString("#0=first"));
    session.open("demo");
    QVERIFY(!session.inWords(session.variables()).contains("=first"));
    session.open(name);
    QCOMPARE(session.inWords(session.variables()), QString("#0=first"));
    QCOMPARE(m("orca.project.projetc_info.description")->getString(), QString("half speed"));
}

void TestProjectDisk::aCreatedProjectThatIsNotCurrentChangesNothing() {
    Session session;
    const QJsonValue before = m("orca.project")->exportToJson(true);
    QCOMPARE(kiteInterface()->createProject("later", "x", false), 0);
    session.settle();
    QCOMPARE(m("orca.project")->exportToJson(true), before);
    QCOMPARE(m_disk->entries("later"), QStringList{"projectinfo.json"});
}

void TestProjectDisk::theControllerHasTheRecordsOfTheOpenOne() {
    Session session;
    m_disk->make("other");
    session.open("other");
    session.add("a", 1);
    session.add("b", 2);
    session.settle();
    const controller::Project* project = session.robot.controller()->project();
    QCOMPARE(project->variables().nodes(), (QStringList{"#0", "#1"}));
    QCOMPARE(project->points().size(), 0);
    QCOMPARE(project->reference(), QString("virtual/other"));
}

void TestProjectDisk::aProjectThatIsNotThereIsToldAndTakenBack() {
    Session session;
    const QJsonValue before = session.variables()->exportToJson(true);
    QCOMPARE(kiteInterface()->changeProject("none"), 0);
    QCOMPARE(session.open(), QString("virtual/none"));
    session.settle();
    QCOMPARE(session.open(), QString("virtual/demo"));
    QCOMPARE(session.variables()->exportToJson(true), before);
    QCOMPARE(session.messages().size(), 1);
    QVERIFY(session.messages().first().contains("virtual/none"));
    QCOMPARE(m_disk->entries(QString()), QStringList{"demo"});
    // Each time, not once.
    kiteInterface()->changeProject("none");
    session.settle();
    QCOMPARE(session.messages().size(), 2);
    session.add("still here", 1);
    session.settle();
    QVERIFY(session.robot.controller()->project()->variables().nodes().size() > 5);
}

void TestProjectDisk::triggeringReloadsAndNothingElse() {
    Session session;
    session.robot.forgetTraffic();
    QVERIFY(kiteInterface()->delVarData(QStringList{"press_force"}));
    session.settle();
    QVERIFY(!session.inWords(session.variables()).contains("press_force"));
    for (const brisk::standin::TrafficEntry& entry : session.robot.traffic())
        QVERIFY(entry.key != "mirror.open");
}

void TestProjectDisk::aDeletionUnderWayIsOfTheProjectBefore() {
    Session session;
    m_disk->make("other");
    session.open("other");
    session.add("stays", 1);
    session.open("demo");
    const QString deleted = session.variables()->r("#0.name")->getString();
    QVERIFY(kiteInterface()->delVarData(QStringList{deleted}));
    session.open("other");
    session.settle();
    QCOMPARE(session.inWords(session.variables()), QString("#0=stays"));
    session.open("demo");
    QVERIFY(!session.inWords(session.variables()).contains('=' + deleted + ' '));
}

void TestProjectDisk::withALinkDownItIsOpenedWhenBothAreUp() {
    Session session;
    m_disk->make("other");
    session.robot.controllerLink(false);
    session.open("other");
    session.settle();
    QVERIFY(session.variables()->cmobjCount() > 5);
    session.robot.controllerLink(true);
    QCOMPARE(session.open(), QString("virtual/other"));
    QCOMPARE(session.variables()->cmobjCount(), 0);
}

void TestProjectDisk::whatChangesBeforeThatIsOfTheProjectBefore() {
    Session session;
    m_disk->make("other");
    session.robot.bus(false);
    session.open("other");
    session.add("late", 1);
    session.robot.bus(true);
    QCOMPARE(session.variables()->cmobjCount(), 0);
    session.open("demo");
    QVERIFY(session.inWords(session.variables()).endsWith("=late"));
}

void TestProjectDisk::aNameFromBeforeTheLinksIsOpened() {
    m_disk->make("other");
    Session session(false);
    m("orca.project.cur_project")->setValue(nullptr, "virtual/other");
    session.add("early", 1);
    session.robot.connectLinks();
    QCOMPARE(session.open(), QString("virtual/other"));
    QCOMPARE(session.inWords(session.variables()), QString("#0=early"));
    QCOMPARE(m_disk->entries(QString()), QStringList{"other"});
}

void TestProjectDisk::whenTheAnswerIsLostNothingIsMixed() {
    Session session;
    m_disk->make("other");
    session.robot.embedded()->bus()->setFault(controller::Fault::Null);
    session.open("other");
    session.robot.embedded()->bus()->setFault(controller::Fault::None);
    session.add("of demo", 1);
    session.settle();
    QCOMPARE(session.open(), QString("virtual/demo"));
    QVERIFY(session.messages().value(0).contains("does not answer"));
    session.open("other");
    QCOMPARE(session.variables()->cmobjCount(), 0);
    session.open("demo");
    QVERIFY(session.inWords(session.variables()).endsWith("=of demo"));
}

void TestProjectDisk::whoOpensAnotherWhileOneIsOpenedGetsIt() {
    Session session;
    m_disk->make("a");
    m_disk->make("b");
    QObject plugin;
    QObject::connect(session.variables(), &brisk::ModuleObject::touched, &plugin, [&] {
        if (session.open() == "virtual/a")
            session.open("b");
    });
    session.open("a");
    session.settle();
    QCOMPARE(session.open(), QString("virtual/b"));
    QCOMPARE(session.robot.controller()->project()->reference(), QString("virtual/b"));
    QVERIFY(session.messages().isEmpty());
}

void TestProjectDisk::theLastOneIsOpenedAtTheNextStart() {
    m_disk->make("other");
    {
        Session session;
        QCOMPARE(m("orca.project.autoload_prj_path")->getString(), QString("demo/main"));
        session.open("other");
        session.add("mine", 1);
        QCOMPARE(m("orca.project.autoload_prj_path")->getString(), QString("other/main"));
    }
    {
        Session session;
        QCOMPARE(session.open(), QString("virtual/other"));
        QCOMPARE(session.inWords(session.variables()), QString("#0=mine"));
        m("orca.project.autoload_prj_path")->setValue(nullptr, "demo/main");
    }
    const Session session;
    QCOMPARE(session.open(), QString("virtual/demo"));
}

void TestProjectDisk::theControllerCanBeAskedForAnother() {
    m_disk->make("other");
    {
        Session session;
        brisk::ModuleObject request("request");
        request.set(nullptr, "autoload_pri_path", "other/main");
        helm::ManagerHelper::instance()->controllerManager()->execRequest("project.overview.set_autoload", &request,
                                                                          true, 1600);
        session.settle();
        QCOMPARE(m("orca.project.autoload_prj_path")->getString(), QString("other/main"));
    }
    const Session session;
    QCOMPARE(session.open(), QString("virtual/other"));
}

void TestProjectDisk::oneThatIsGoneAtTheNextStartGivesWayToTheCells() {
    m_disk->make("other");
    {
        Session session;
        session.open("other");
    }
    expectRemovalLine();
    {
        // Not the one that is loaded at the start, as that says "other/main".
        m("orca.project.autoload_prj_path")->setValue(nullptr, "none/main", false);
        QCOMPARE(m_disk->remove("other"), 0);
    }
    const Session session;
    QCOMPARE(session.open(), QString("virtual/demo"));
    QVERIFY(session.messages().isEmpty());
}

void TestProjectDisk::theListIsThatOfTheFolders() {
    const Session session;
    kiteInterface()->createProject("b", QString(), false);
    kiteInterface()->createProject("a", QString(), false);
    QCOMPARE(kiteInterface()->getProjectList(), (QStringList{"a", "b", "demo"}));
    expectRemovalLine();
    QCOMPARE(m_disk->remove("a"), 0);
    QCOMPARE(kiteInterface()->getProjectList(), (QStringList{"b", "demo"}));
}

void TestProjectDisk::aRemovedProjectIsGone() {
    Session session;
    m_disk->make("other/programs");
    session.open("other");
    session.add("mine", 1);
    session.open("demo");
    expectRemovalLine();
    QCOMPARE(m_disk->remove("other"), 0);
    session.settle();
    QCOMPARE(m_disk->entries(QString()), QStringList{"demo"});
    QVERIFY(session.messages().isEmpty());
    QCOMPARE(kiteInterface()->changeProject("other"), 0);
    session.settle();
    QCOMPARE(session.open(), QString("virtual/demo"));
}

void TestProjectDisk::theOpenProjectThatIsRemovedIsToldAndNotMadeAgain() {
    Session session;
    const QString before = session.inWords(session.variables());
    QCOMPARE(m_disk->remove("demo"), 0);
    session.add("late", 1);
    QTRY_COMPARE(session.messages().size(), 1);
    QVERIFY(session.messages().first().contains("virtual/demo"));
    QCOMPARE(m_disk->entries(QString()), QStringList());
    QVERIFY(session.inWords(session.variables()).startsWith(before));
    m_disk->make("other");
    session.open("other");
    session.settle();
    QCOMPARE(session.open(), QString("virtual/other"));
    QCOMPARE(m_disk->entries(QString()), QStringList{"other"});
}

void TestProjectDisk::oneThatIsMadeInItsPlaceIsEmpty() {
    Session session;
    m_disk->make("other");
    session.open("other");
    session.add("old", 1);
    QCOMPARE(m_disk->remove("other"), 0);
    QCOMPARE(kiteInterface()->createProject("other", QString(), true), 0);
    QCOMPARE(session.variables()->cmobjCount(), 0);
    session.add("new", 1);
    session.open("demo");
    session.open("other");
    QCOMPARE(session.inWords(session.variables()), QString("#0=new"));
}

void TestProjectDisk::theProgramFollows() {
    m_disk->make("other/programs");
    QFile file(m_disk->at("other/programs/main.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("// of other\n");
    file.close();
    Session session;
    pendant::ProgramStore store;
    session.settle();
    QCOMPARE(store.place().file(), m_disk->at("demo/programs/main.txt"));
    session.open("other");
    session.settle();
    QCOMPARE(store.place().project(), QString("virtual/other"));
    QCOMPARE(store.program()->lines(), QStringList{"// of other"});
    kiteInterface()->changeProject("none");
    session.settle();
    session.settle();
    QCOMPARE(store.place().project(), QString("virtual/other"));
}

void TestProjectDisk::changesToTheProgramOfARemovedProjectDoNotMakeItAgain() {
    Session session;
    pendant::ProgramStore store(nullptr, 0);
    QStringList failures;
    connect(&store, &pendant::ProgramStore::failed, &store, [&](const QString& what) { failures << what; });
    session.settle();
    store.program()->insert(0, "// mine");
    QTRY_VERIFY(m_disk->entries("demo/programs").contains("main.txt.unsaved"));
    QCOMPARE(m_disk->remove("demo"), 0);
    store.program()->insert(1, "// more");
    QTRY_COMPARE(failures.size(), 1);
    QString error;
    QVERIFY(!store.save(&error) && error.contains("deleted"));
    QCOMPARE(store.program()->lines().size(), 2);
    m_disk->make("other");
    session.open("other");
    session.settle();
    QCOMPARE(store.place().project(), QString("virtual/other"));
    QVERIFY(store.program()->lines().isEmpty());
    QCOMPARE(m_disk->entries(QString()), QStringList{"other"});
}

void TestProjectDisk::whatIsSaidOfTheProjectIsInTheTree() {
    Session session;
    QVERIFY(m("orca.project.projetc_info.create_time")->getString().startsWith("20"));
    kiteInterface()->createProject("other", "says more", false);
    m("orca.project.projetc_info")->set(nullptr, "of_demo", 1);
    session.open("other");
    QCOMPARE(m("orca.project.projetc_info.description")->getString(), QString("says more"));
    QVERIFY(!m("orca.project.projetc_info")->hasCmobj("of_demo"));
}

void TestProjectDisk::aPendantOfATestKeepsItsProjectsInItsOwnFolder() {
    m_log.reset();
    pendanttest::Robot robot;
    robot.loadDefaultCell();
    pendanttest::Pendant pendant;
    QVERIFY(pendant.workspace().startsWith(QDir::currentPath() + '/'));
    QVERIFY(pendant.workspace() != m_disk->workspace());
    robot.connectLinks();
    QVERIFY(QDir(pendant.workspace() + "/virtual/demo").exists());
    QCOMPARE(kiteInterface()->getProjectList(), QStringList{"demo"});
    pendant.start();
    pendant.close();
    QVERIFY(pendant.messages().isEmpty());
}

QTEST_MAIN(TestProjectDisk)
#include "tst_project_disk.moc"
