#include "projectfixture.h"

#include "project/projectmirror.h"

using pendant::ProjectMirror;

// The project in the tree and the one behind the links.
class TestProjectMirror : public QObject {
    Q_OBJECT

private slots:
    void init() { m("helm.r.version")->setValue(nullptr, QVariant()); }

    void theVersionOfTheHostIsSaid();
    void aVersionThatIsThereStays();

    void theProjectIsLoadedWhenBothLinksAreUp();
    void loadingPutsNothing();
    void aProjectThatIsThereIsNotLoadedAgain();
    void anAnswerThatIsNoProjectChangesNothing_data();
    void anAnswerThatIsNoProjectChangesNothing();
    void recordsFromBeforeTheProjectStayAndArePut();
    void recordsFromBeforeGiveWayToThoseOfTheirName();
    void recordsThatAreNumberedAnewAreAllPut();
    void whoHearsOfTheLinksFindsTheProject();

    void aChangedRecordIsPutOnceAtTheEndOfTheTurn();
    void anEqualValueIsPutToo();
    void aNewRecordIsPut();
    void aRecordThatGoesIsPutAway();
    void aRecordThatCameAndWentIsNotPut();
    void anotherRecordOfTheSameNodeIsPut();
    void aListThatIsImportedAnewPutsAwayWhatItLacks();
    void aClearedListPutsAllAway();
    void aListThatIsMadeAnewReplacesAll();
    void pointsArePutLikeVariables();
    void otherPartsOfTheProjectAreNotPut();
    void manyNewRecordsComeInTheirOrder();

    void withALinkDownNothingIsPut_data();
    void withALinkDownNothingIsPut();
    void whatChangedMeanwhileReplacesAll();
    void whenNothingChangedNothingIsPut();
};

void TestProjectMirror::theVersionOfTheHostIsSaid() {
    const ProjectMirror mirror;
    QCOMPARE(m("helm.r.version")->getString(), QString("3.1.0"));
}

void TestProjectMirror::aVersionThatIsThereStays() {
    m("helm.r.version")->setValue(nullptr, "2.3.4");
    const ProjectMirror mirror;
    QCOMPARE(m("helm.r.version")->getString(), QString("2.3.4"));
}

void TestProjectMirror::theProjectIsLoadedWhenBothLinksAreUp() {
    FarSide far;
    far.setProject({"a", "b"}, {"p"});
    far.setUp(false);
    const ProjectMirror mirror;
    far.bus.setUp(true);
    QVERIFY(far.said().isEmpty());
    far.controllerLink.setUp(true);
    QCOMPARE(far.said(), QStringList{"mirror.project"});
    QCOMPARE(inWords(variables()), QString("#0=a #1=b"));
    QCOMPARE(inWords(points()), QString("#0=p"));
    QCOMPARE(m("orca.project.cur_project")->getString(), QString("cell"));
    QCOMPARE(m("orca.project.cur_func")->getString(), QString("main"));
    QCOMPARE(m("orca.project.cur_task")->getString(), QString("task0"));
    QVERIFY(m("orca.project.var.built")->getBool());
    QCOMPARE(m("orca.project.point.default.name")->getString(), QString("p"));
    QCOMPARE(variables()->r("#1.value.[0][0][0]")->getInt(), 1);
}

void TestProjectMirror::loadingPutsNothing() {
    FarSide far;
    far.setProject({"a", "b"}, {"p"});
    const ProjectMirror mirror;
    FarSide::settle();
    QCOMPARE(far.said(), QStringList{"mirror.project"});
}

void TestProjectMirror::aProjectThatIsThereIsNotLoadedAgain() {
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    far.forget();
    far.setProject({"b"});
    far.setUp(false);
    far.setUp(true);
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=a"));
    QVERIFY(far.said().isEmpty());
}

void TestProjectMirror::anAnswerThatIsNoProjectChangesNothing_data() {
    QTest::addColumn<QJsonValue>("answer");
    QTest::newRow("nothing") << QJsonValue();
    QTest::newRow("text") << QJsonValue("?");
    QTest::newRow("list") << QJsonValue(QJsonArray{"a"});
    QTest::newRow("object without a name") << QJsonValue(QJsonObject{{"var", QJsonObject{{"_list", QJsonArray{"a"}}}}});
}

void TestProjectMirror::anAnswerThatIsNoProjectChangesNothing() {
    QFETCH(QJsonValue, answer);
    FarSide far;
    far.setAnswer("mirror.project", answer);
    addRecord(variables(), "mine");
    const ProjectMirror mirror;
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=mine"));
    QVERIFY(far.puts().isEmpty());
}

void TestProjectMirror::recordsFromBeforeTheProjectStayAndArePut() {
    FarSide far;
    far.setProject({"a", "b"}, {"p"});
    far.setUp(false);
    const ProjectMirror mirror;
    addRecord(variables(), "mine");
    addRecord(points(), "taught");
    far.setUp(true);
    QCOMPARE(inWords(variables()), QString("#0=a #1=b #2=mine"));
    QCOMPARE(inWords(points()), QString("#0=p #1=taught"));
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #2=mine point #1=taught"});
}

void TestProjectMirror::recordsFromBeforeGiveWayToThoseOfTheirName() {
    FarSide far;
    far.setProject({"a", "b"});
    far.setUp(false);
    const ProjectMirror mirror;
    addRecord(variables(), "b");
    variables()->set(nullptr, "#0.value.[0][0][0]", 77);
    far.setUp(true);
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=a #1=b"));
    QCOMPARE(variables()->r("#1.value.[0][0][0]")->getInt(), 1);
    QVERIFY(far.puts().isEmpty());
}

void TestProjectMirror::recordsThatAreNumberedAnewAreAllPut() {
    FarSide far;
    far.setProject({"a", "b"});
    brisk::ModuleObject* list = far.answers["mirror.project"]->r("var._list");
    list->removeChild(list->c("#0"));
    const ProjectMirror mirror;
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=b"));
    QCOMPARE(far.puts(), QStringList{"var #0=b point replace"});
}

void TestProjectMirror::whoHearsOfTheLinksFindsTheProject() {
    FarSide far;
    far.setProject({"a"});
    far.setUp(false);
    const ProjectMirror mirror;
    QStringList found;
    QObject plugin;
    helm::ManagerHelper* host = helm::ManagerHelper::instance();
    QObject::connect(host->controllerManager(), &helm::ControllerManager::rcConnected, &plugin,
                     [&] { found << "signal " + inWords(variables()); });
    host->taskNetworkManager()->registerTask(
        helm::TaskOnConnect, &plugin, "test",
        [&](const helm::TaskNetworkManager::Done&) { found << "task " + inWords(variables()); }, {});
    far.setUp(true);
    found.sort();
    QCOMPARE(found, (QStringList{"signal #0=a", "task #0=a"}));
}

void TestProjectMirror::aChangedRecordIsPutOnceAtTheEndOfTheTurn() {
    FarSide far;
    far.setProject({"a", "b", "c"});
    const ProjectMirror mirror;
    far.forget();
    variables()->set(nullptr, "#1.value.[0][0][0]", 5);
    variables()->set(nullptr, "#1.name", "renamed");
    QVERIFY(far.said().isEmpty());
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #1=renamed point"});
    QCOMPARE(far.bus.sent.last().content->r("var.#1.value.[0][0][0]")->getInt(), 5);
    FarSide::settle();
    QCOMPARE(far.puts().size(), 1);
}

void TestProjectMirror::anEqualValueIsPutToo() {
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    variables()->set(nullptr, "#0.value.[0][0][0]", 0);
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=a point"});
}

void TestProjectMirror::aNewRecordIsPut() {
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    addRecord(variables(), "b");
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #1=b point"});
}

void TestProjectMirror::aRecordThatGoesIsPutAway() {
    FarSide far;
    far.setProject({"a", "b"});
    const ProjectMirror mirror;
    variables()->removeChild(variables()->c("#0"));
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=- point"});
}

void TestProjectMirror::aRecordThatCameAndWentIsNotPut() {
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    variables()->removeChild(variables()->c(addRecord(variables(), "b")));
    FarSide::settle();
    QVERIFY(far.puts().isEmpty());
}

void TestProjectMirror::anotherRecordOfTheSameNodeIsPut() {
    FarSide far;
    far.setProject({"a", "b"});
    const ProjectMirror mirror;
    variables()->clear(nullptr, true, true);
    QCOMPARE(addRecord(variables(), "c"), QString("#0"));
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=c #1=- point"});
}

void TestProjectMirror::aListThatIsImportedAnewPutsAwayWhatItLacks() {
    FarSide far;
    far.setProject({"a", "b", "c"});
    const ProjectMirror mirror;
    variables()->removeChild(variables()->c("#0"));
    FarSide::settle();
    far.forget();
    variables()->importFromJson(nullptr, variables()->exportToJson(true), true, true, true);
    QCOMPARE(inWords(variables()), QString("#0=b #1=c"));
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=b #1=c #2=- point"});
}

void TestProjectMirror::aClearedListPutsAllAway() {
    FarSide far;
    far.setProject({"a", "b"});
    const ProjectMirror mirror;
    variables()->clear(nullptr, true, true);
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=- #1=- point"});
}

void TestProjectMirror::aListThatIsMadeAnewReplacesAll() {
    FarSide far;
    far.setProject({"a", "b"}, {"p"});
    const ProjectMirror mirror;
    m("orca.project")->removeChild(m("orca.project.var"));
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var point #0=p replace"});
    far.forget();
    addRecord(variables(), "c");
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=c point"});
}

void TestProjectMirror::pointsArePutLikeVariables() {
    FarSide far;
    far.setProject({"a"}, {"p", "q"});
    const ProjectMirror mirror;
    points()->removeChild(points()->c("#0"));
    points()->set(nullptr, "#1.value.[0][0][0].pose.frame.pos.x", 12.5);
    addRecord(points(), "r");
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var point #0=- #1=q #2=r"});
}

void TestProjectMirror::otherPartsOfTheProjectAreNotPut() {
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    far.forget();
    m("orca.project")->set(nullptr, "var.built", false);
    m("orca.project")->set(nullptr, "cur_func", "other");
    m("orca.project")->set(nullptr, "point.hot_update.operate", "add");
    FarSide::settle();
    QVERIFY(far.said().isEmpty());
}

void TestProjectMirror::manyNewRecordsComeInTheirOrder() {
    FarSide far;
    far.setProject({});
    const ProjectMirror mirror;
    QString expected = "var";
    for (int i = 0; i < 12; ++i)
        expected += QString(" %1=v").arg(addRecord(variables(), "v"));
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{expected + " point"});
}

void TestProjectMirror::withALinkDownNothingIsPut_data() {
    QTest::addColumn<bool>("isBus");
    QTest::newRow("bus") << true;
    QTest::newRow("controller link") << false;
}

void TestProjectMirror::withALinkDownNothingIsPut() {
    QFETCH(bool, isBus);
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    (isBus ? far.bus : far.controllerLink).setUp(false);
    addRecord(variables(), "b");
    FarSide::settle();
    QVERIFY(far.puts().isEmpty());
}

void TestProjectMirror::whatChangedMeanwhileReplacesAll() {
    FarSide far;
    far.setProject({"a", "b"}, {"p"});
    const ProjectMirror mirror;
    far.setUp(false);
    variables()->removeChild(variables()->c("#0"));
    addRecord(points(), "q");
    FarSide::settle();
    far.setUp(true);
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #1=b point #0=p #1=q replace"});
}

void TestProjectMirror::whenNothingChangedNothingIsPut() {
    FarSide far;
    far.setProject({"a"});
    const ProjectMirror mirror;
    far.forget();
    far.setUp(false);
    far.setUp(true);
    FarSide::settle();
    QVERIFY(far.said().isEmpty());
}

QTEST_GUILESS_MAIN(TestProjectMirror)
#include "tst_project_mirror.moc"
