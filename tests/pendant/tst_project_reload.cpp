#include "projectfixture.h"

#include "project/projectmirror.h"

using pendant::ProjectMirror;

// What happens when somebody triggers "orca.project.cur_project".
class TestProjectReload : public QObject {
    Q_OBJECT

private slots:
    void aReloadWaitsForTheEventLoop();
    void severalTriggersAreOneReload();
    void whatIsPendingIsPutFirst();
    void theDeletedRecordsGoAndNothingElse();
    void theRemovalIsNotPutBack();
    void aDeletedRecordThatIsNotThereIsPassedOver();
    void recordsOfAConfirmedNameGoHereAndThere();
    void aRecordThatCameInAfterTheTriggerStays();
    void whenNothingWasDeletedNothingGoes_data();
    void whenNothingWasDeletedNothingGoes();
    void withALinkDownItChangesNothing_data();
    void withALinkDownItChangesNothing();
    void whatAListenerWritesMeanwhileIsPut();
    void aProjectThatIsNamedAnewIsReloadedToo();
};

void TestProjectReload::aReloadWaitsForTheEventLoop() {
    FarSide far;
    far.setProject({"a", "b"});
    far.setDeleted({"#0"});
    const ProjectMirror mirror;
    far.forget();
    triggerReload();
    QVERIFY(far.said().isEmpty());
    QCOMPARE(inWords(variables()), QString("#0=a #1=b"));
    FarSide::settle();
    QCOMPARE(far.said(), QStringList{"mirror.deleted"});
    QCOMPARE(inWords(variables()), QString("#1=b"));
}

void TestProjectReload::severalTriggersAreOneReload() {
    FarSide far;
    far.setProject({"a"});
    far.setDeleted({});
    const ProjectMirror mirror;
    far.forget();
    triggerReload();
    triggerReload();
    FarSide::settle();
    QCOMPARE(far.said(), QStringList{"mirror.deleted"});
    triggerReload();
    FarSide::settle();
    QCOMPARE(far.said(), (QStringList{"mirror.deleted", "mirror.deleted"}));
}

void TestProjectReload::whatIsPendingIsPutFirst() {
    FarSide far;
    far.setProject({"a"});
    far.setDeleted({});
    const ProjectMirror mirror;
    far.forget();
    triggerReload();
    addRecord(variables(), "b");
    FarSide::settle();
    QCOMPARE(far.said(), (QStringList{"mirror.put", "mirror.deleted"}));
    QCOMPARE(far.puts(), QStringList{"var #1=b point"});
}

void TestProjectReload::theDeletedRecordsGoAndNothingElse() {
    FarSide far;
    far.setProject({"a", "b", "a", "d"}, {"a"});
    far.setDeleted({"#0", "#3"});
    const ProjectMirror mirror;
    m("orca.project")->set(nullptr, "var.built", false);
    m("orca.project")->set(nullptr, "other.thing", 1);
    triggerReload();
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#1=b #2=a"));
    QCOMPARE(inWords(points()), QString("#0=a"));
    QVERIFY(!m("orca.project.var.built")->getBool(true));
    QCOMPARE(m("orca.project.other.thing")->getInt(), 1);
    QCOMPARE(m("orca.project.cur_project")->getString(), QString("cell"));
}

void TestProjectReload::theRemovalIsNotPutBack() {
    FarSide far;
    far.setProject({"a", "b"});
    far.setDeleted({"#0"});
    const ProjectMirror mirror;
    variables()->set(nullptr, "#0.name", "changed");
    triggerReload();
    FarSide::settle();
    FarSide::settle();
    QCOMPARE(far.puts(), QStringList{"var #0=changed point"});
    QCOMPARE(inWords(variables()), QString("#1=b"));
}

void TestProjectReload::aDeletedRecordThatIsNotThereIsPassedOver() {
    FarSide far;
    far.setProject({"a"});
    far.setDeleted({"#7", "", "name"}, {"nobody", ""});
    const ProjectMirror mirror;
    triggerReload();
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=a"));
}

// The controller has been given them by the time it says that it had none.
void TestProjectReload::recordsOfAConfirmedNameGoHereAndThere() {
    FarSide far;
    far.setProject({"a"}, {"b"});
    far.setDeleted({}, {"b"});
    const ProjectMirror mirror;
    addRecord(variables(), "b");
    addRecord(variables(), "B");
    triggerReload();
    FarSide::settle();
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=a #2=B"));
    QCOMPARE(inWords(points()), QString("#0=b"));
    QCOMPARE(far.puts(), (QStringList{"var #1=b #2=B point", "var #1=- point"}));
}

void TestProjectReload::aRecordThatCameInAfterTheTriggerStays() {
    FarSide far;
    far.setProject({"a"});
    far.setDeleted({}, {"b"});
    const ProjectMirror mirror;
    addRecord(variables(), "b");
    triggerReload();
    addRecord(variables(), "b");
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString("#0=a #2=b"));
}

void TestProjectReload::whenNothingWasDeletedNothingGoes_data() {
    using brisk::standin::contentOf;
    QTest::addColumn<brisk::standin::Content>("answer");
    QTest::newRow("refused") << brisk::standin::refusal("no");
    QTest::newRow("nothing at all") << brisk::standin::Content();
    QTest::newRow("empty") << contentOf(QVariant());
    QTest::newRow("text") << contentOf(QVariant("?"));
    QTest::newRow("empty lists") << contentOf(QVariant(QJsonObject{{"var", QJsonArray()}, {"names", QJsonArray()}}));
    QTest::newRow("texts for lists") << contentOf(QVariant(QJsonObject{{"var", "#0"}, {"names", "a"}}));
}

void TestProjectReload::whenNothingWasDeletedNothingGoes() {
    QFETCH(brisk::standin::Content, answer);
    FarSide far;
    far.setProject({"a"});
    far.answers["mirror.deleted"] = answer;
    const ProjectMirror mirror;
    far.forget();
    triggerReload();
    FarSide::settle();
    QCOMPARE(far.said(), QStringList{"mirror.deleted"});
    QCOMPARE(inWords(variables()), QString("#0=a"));
}

void TestProjectReload::withALinkDownItChangesNothing_data() {
    QTest::addColumn<bool>("isBus");
    QTest::newRow("bus") << true;
    QTest::newRow("controller link") << false;
}

void TestProjectReload::withALinkDownItChangesNothing() {
    QFETCH(bool, isBus);
    FarSide far;
    far.setProject({"a"});
    far.setDeleted({"#0"});
    const ProjectMirror mirror;
    far.forget();
    (isBus ? far.bus : far.controllerLink).setUp(false);
    triggerReload();
    FarSide::settle();
    far.setUp(true);
    FarSide::settle();
    QVERIFY(far.said().isEmpty());
    QCOMPARE(inWords(variables()), QString("#0=a"));
}

void TestProjectReload::whatAListenerWritesMeanwhileIsPut() {
    FarSide far;
    far.setProject({"a", "b"});
    far.setDeleted({"#0"});
    const ProjectMirror mirror;
    const QMetaObject::Connection listener =
        QObject::connect(variables(), &brisk::ModuleObject::removed, [] { addRecord(variables(), "c"); });
    triggerReload();
    FarSide::settle();
    FarSide::settle();
    QObject::disconnect(listener);
    QCOMPARE(inWords(variables()), QString("#1=b #2=c"));
    QCOMPARE(far.puts(), QStringList{"var #2=c point"});
}

void TestProjectReload::aProjectThatIsNamedAnewIsReloadedToo() {
    FarSide far;
    far.setProject({"a"});
    far.setDeleted({"#0"});
    const ProjectMirror mirror;
    m("orca.project")->set(nullptr, "cur_project", "other");
    FarSide::settle();
    QCOMPARE(inWords(variables()), QString());
}

QTEST_GUILESS_MAIN(TestProjectReload)
#include "tst_project_reload.moc"
