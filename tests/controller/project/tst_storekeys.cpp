#include "../contents.h"
#include "records.h"

#include "controller/cellfile.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/virtualcontroller.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using controller::Content;
using controller::VirtualController;

namespace {

/// JSON with single quotes.
QByteArray json(QByteArray text) {
    return text.replace('\'', '"');
}

} // namespace

class TestStoreKeys : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_controller = std::make_unique<VirtualController>();
    }
    void cleanup() { m_controller.reset(); }

    void startingAnswersTheProjectWithWhatIsSaidOfIt() {
        const Content answer = start();
        QCOMPARE(childNames(answer), QString("cur_project cur_func cur_task var point projetc_info"));
        QCOMPARE(answer->c("cur_project")->getString(), QString("virtual/project"));
        QCOMPARE(answer->r("projetc_info.description")->getString("none"), QString());
        QVERIFY(answer->r("projetc_info.create_time")->getString().startsWith("20"));
    }

    void whatIsLoadedAtTheStartIsNamedWithItsFunction() {
        make("other");
        const QByteArray sent = json("{'workspace': '") + workspace().toUtf8() + json("', 'autoload': 'other/main'}");
        QCOMPARE(command("mirror.start", sent)->c("cur_project")->getString(), QString("virtual/other"));
    }

    void openingAnswersTheOtherProjectWithPresentValues() {
        start();
        make("other");
        QFile info(at("other/projectinfo.json"));
        QVERIFY(info.open(QIODevice::WriteOnly));
        info.write(json("{'description': 'half speed', 'create_time': 'then', 'more': [1]}"));
        info.close();
        const Content answer = open("virtual/other");
        QCOMPARE(answer->c("cur_project")->getString(), QString("virtual/other"));
        QCOMPARE(text(controller::copied(brisk::standin::contentOf(answer->c("projetc_info")))),
                 QString::fromUtf8(json("{'create_time':'then','description':'half speed','more':[1]}")));
        command("mirror.put",
                json("{'var': {'#0': {'name': 'n', 'type': 'int', 'pers': true, 'value': {'[0][0][0]': 1}}}}"));
        m_controller->persistentVariables()->modify({{"n", 5}});
        open("virtual/project");
        QCOMPARE(open("virtual/other")->r("var._list.#0.value.[0][0][0]")->getInt(), 5);
        m_controller->persistentVariables()->modify({{"n", 6}});
        QCOMPARE(open("virtual/other")->r("var._list.#0.value.[0][0][0]")->getInt(), 6);
    }

    void whatCannotBeOpenedIsAnsweredWithTheReasonAndNoticedByNobody() {
        start();
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        QVERIFY(refusalOf(open("virtual/none")).contains("virtual/none"));
        QVERIFY(noticed.isEmpty());
        QCOMPARE(m_controller->project()->reference(), QString("virtual/project"));
    }

    void recordsOfAProjectThatIsNotOpenAreRefused() {
        start();
        const QByteArray put = json("{'project': 'virtual/other', 'var': {'#0': {'name': 'n'}}}");
        QVERIFY(refusalOf(command("mirror.put", put)).contains("virtual/other"));
        QCOMPARE(m_controller->project()->variables().size(), 0);
        QCOMPARE(text(command("mirror.put", json("{'project': 'virtual/project', 'var': {'#0': {'name': 'n'}}}"))),
                 QString("null"));
        QCOMPARE(m_controller->project()->variables().size(), 1);
    }

    void theListHasAChildWithANameForEachProject() {
        QCOMPARE(text(m_controller->bus()->get("backup.backup_list", "")), QString("[]"));
        start();
        make("b");
        make("a");
        QCOMPARE(text(m_controller->bus()->get("backup.backup_list", "")),
                 QString::fromUtf8(json("[{'name':'a'},{'name':'b'},{'name':'project'}]")));
        QVERIFY(QDir(at("a")).removeRecursively());
        QCOMPARE(m_controller->bus()->get("backup.backup_list", "")->cmobjCount(), 2);
    }

    void removingTheTasksOfAProjectAnswers() {
        start();
        QCOMPARE(text(command("project.remove_task", json("{'name': 'none'}"))), QString("0"));
        QCOMPARE(text(command("project.remove_task", "null")), QString("0"));
    }

    void theMisspeltRequestAnswersEmptyAndChangesNothing() {
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        setAutoload("project.overview.set_autoload", "demo/main");
        const Content answer = setAutoload("proiect.overview.set_autoload", "");
        QVERIFY(answer && answer->isEmpty());
        QCOMPARE(m_controller->bus()->get("project.autoload", "")->getString(), QString("demo/main"));
        QVERIFY(noticed.isEmpty());
    }

    void theRequestIsDelivered() {
        QSignalSpy delivered(m_controller.get(), &VirtualController::delivered);
        m_controller->bus()->watch(this, "project.autoload", true);
        setAutoload("project.overview.set_autoload", "demo/main");
        QCOMPARE(delivered.size(), 1);
        QCOMPARE(delivered.first().first().toString(), QString("project.autoload"));
    }

    void closingKeepsWhatIsPending() {
        start();
        command("mirror.put", json("{'var': {'#0': {'name': 'pending'}}}"));
        QCOMPARE(text(command("mirror.close", "null")), QString("null"));
        QFile file(at("project/project.json"));
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("pending"));
    }

    void aFailureIsRemarked() {
        QFile file(workspace());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QSignalSpy remarked(m_controller.get(), &VirtualController::remarked);
        QCOMPARE(start()->c("cur_project")->getString(), QString("virtual/project"));
        QCOMPARE(remarked.size(), 1);
    }

    // The values of another project's variables must not come up in the cell's.
    void persistentRecordsGoBackIntoTheirOwnProjectAlone() {
        const QString path = m_folder->filePath("controller.json");
        QString error;
        for (const bool isOther : {true, false}) {
            m_controller = std::make_unique<VirtualController>();
            QVERIFY(m_controller->keepValuesIn(path, &error));
            QCOMPARE(m_controller->project()->variables().size(), 0);
            start();
            make("other");
            open(isOther ? "virtual/other" : "virtual/project");
            command("mirror.put",
                    json("{'var': {'#0': {'name': 'n', 'type': 'int', 'pers': true, 'value': {'[0][0][0]': 1}}}}"));
        }
        m_controller = std::make_unique<VirtualController>();
        QVERIFY(m_controller->keepValuesIn(path, &error));
        QCOMPARE(m_controller->project()->variables().size(), 1);
    }

private:
    QString workspace() const { return m_folder->filePath("workspace"); }
    QString at(const QString& below) const { return workspace() + "/virtual/" + below; }
    void make(const QString& name) const { QVERIFY(QDir().mkpath(at(name))); }
    Content command(const QString& key, const QByteArray& sent) {
        return m_controller->bus()->command(key, content(sent.constData()));
    }
    Content start() {
        const QByteArray sent = json("{'workspace': '") + workspace().toUtf8() + json("'}");
        return command("mirror.start", sent);
    }
    Content open(const QByteArray& reference) {
        const QByteArray sent = json("{'project': '") + reference + json("'}");
        return command("mirror.open", sent);
    }
    Content setAutoload(const QString& request, const QByteArray& path) {
        const QByteArray sent = json("{'autoload_pri_path': '") + path + json("'}");
        return m_controller->requests()->handle(request, content(sent.constData()));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VirtualController> m_controller;
};

QTEST_GUILESS_MAIN(TestStoreKeys)
#include "tst_storekeys.moc"
