#include "../contents.h"

#include "controller/project/project.h"
#include "controller/virtualcontroller.h"

#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::Message;
using controller::ProjectStart;
using controller::Verb;
using controller::VirtualController;

namespace {

ProjectStart demo() {
    ProjectStart start = controller::emptyProject();
    for (const char* name : {"a", "b", "c"})
        start.variables << QJsonObject{{"name", name}};
    start.points << QJsonObject{{"name", "home"}};
    return start;
}

} // namespace

class TestProjectKeys : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_controller = std::make_unique<VirtualController>();
        m_controller->project()->start(demo());
        m_controller->project()->refuseToRemove({"c"});
    }

    void theWholeProjectIsRead() {
        const Content project = send(Verb::Get, "mirror.project");
        QCOMPARE(text(project), text(m_controller->project()->content()));
        QCOMPARE(project->r("var._list")->cmobjCount(), 3);
        QVERIFY(!refusalOf(send(Verb::Set, "mirror.project", "1")).isEmpty());
    }

    void whatIsPutIsKept() {
        QVERIFY(!send(Verb::Command, "mirror.put",
                      "{\"var\": {\"#0\": null, \"#12\": {\"name\": \"d\", \"id\": 5}}, "
                      "\"point\": {\"#1\": {\"name\": \"park\"}}}"));
        QCOMPARE(names("var"), "b c d");
        QCOMPARE(names("point"), "home park");
        QVERIFY(!send(Verb::Command, "mirror.put",
                      "{\"var\": {\"#1\": {\"name\": \"b\"}}, \"point\": {}, \"replace\": true}"));
        QCOMPARE(names("var"), "b");
        QCOMPARE(names("point"), "");
    }

    void nothingIsPutWhenANameIsOdd_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("variable") << QByteArray("{\"var\": {\"#5\": {\"name\": \"x\"}, \"x\": {\"name\": \"y\"}}}");
        QTest::newRow("point") << QByteArray("{\"var\": {\"#5\": {\"name\": \"x\"}}, \"point\": {\"#01\": {}}}");
    }

    void nothingIsPutWhenANameIsOdd() {
        QFETCH(QByteArray, json);
        QVERIFY(!refusalOf(send(Verb::Command, "mirror.put", json.constData())).isEmpty());
        QCOMPARE(names("var"), "a b c");
    }

    void nothingAtAllPutsNothing() {
        QVERIFY(!send(Verb::Command, "mirror.put"));
        QCOMPARE(names("var"), "a b c");
    }

    void removedVariablesAreTellingOnce() {
        const Content reply = remove(R"(["a", "x"])");
        QCOMPARE(reply->getInt(-5), 0);
        QCOMPARE(reply->cmobjCount(), 0);
        QCOMPARE(names("var"), "b c");
        QCOMPARE(text(send(Verb::Execute, "mirror.deleted")), "{\"names\":[\"x\"],\"var\":[\"#0\"]}");
        QCOMPARE(text(send(Verb::Execute, "mirror.deleted")), R"({"names":[],"var":[]})");
    }

    void aNameThatComesTwiceIsRemovedOnce() {
        QCOMPARE(remove(R"(["a", "b", "a", "b"])")->getInt(-5), 0);
        QCOMPARE(names("var"), "c");
        QCOMPARE(text(send(Verb::Execute, "mirror.deleted")), "{\"names\":[],\"var\":[\"#0\",\"#1\"]}");
    }

    void oneNameThatIsRefusedKeepsThemAll() {
        QSignalSpy noticed(m_controller.get(), &VirtualController::noticed);
        const Content reply = remove(R"(["a", "c"])");
        QCOMPARE(reply->getInt(-5), 1);
        QCOMPARE(names("var"), "a b c");
        QCOMPARE(text(send(Verb::Execute, "mirror.deleted")), R"({"names":[],"var":[]})");
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toString(), "The cell refuses to remove the variable \"c\".");
        QCOMPARE(reply->c("error")->getString(), noticed.first().first().toString());
    }

    void anotherOperatorIsRefused() {
        const Content reply = send(Verb::Execute, "project.variable", R"({"operator": "rename", "variables": ["a"]})");
        QVERIFY(refusalOf(reply).contains("\"rename\""));
        QVERIFY(!refusalOf(send(Verb::Execute, "project.variable")).isEmpty());
        QCOMPARE(names("var"), "a b c");
    }

private:
    Content send(Verb verb, const QString& key, const char* json = nullptr) {
        Message message;
        message.verb = verb;
        message.key = key;
        message.content = json ? content(json) : nullptr;
        return m_controller->handle(message);
    }

    Content remove(const QByteArray& json) {
        return send(Verb::Execute, "project.variable", R"({"operator": "remove", "variables": )" + json + '}');
    }

    QString names(const char* part) {
        QStringList names;
        const Content project = send(Verb::Get, "mirror.project");
        for (brisk::ModuleObject* record : project->c(part)->c("_list")->cmobjs())
            names << record->c("name")->getString();
        return names.join(' ');
    }

    std::unique_ptr<VirtualController> m_controller;
};

QTEST_GUILESS_MAIN(TestProjectKeys)
#include "tst_projectkeys.moc"
