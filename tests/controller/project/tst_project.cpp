#include "../contents.h"

#include "controller/project/project.h"

#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::emptyProject;
using controller::Project;
using controller::ProjectStart;
using controller::textAt;

namespace {

ProjectStart demo() {
    ProjectStart start = emptyProject();
    start.name = "demo";
    for (const char* name : {"a", "b", "a"})
        start.variables << QJsonObject{{"name", name}, {"type", "int"}};
    start.points << QJsonObject{{"name", "home"}};
    return start;
}

} // namespace

class TestProject : public QObject {
    Q_OBJECT

private slots:
    void anEmptyProjectHasTemplatesAndNoRecords() {
        const Content content = Project().content();
        QCOMPARE(childNames(content), "cur_project cur_func cur_task var point");
        QCOMPARE(content->c("cur_project")->getString(), "LOCALHOST/project");
        QVERIFY(content->r("var.default.name"));
        QVERIFY(content->r("var.default.value.[0][0][0]"));
        QVERIFY(content->r("point.default.property"));
        QVERIFY(content->r("var._list")->isList());
        QVERIFY(content->r("point._list")->isList());
        QVERIFY(content->r("point.hot_update.points")->isList());
        QVERIFY(content->r("point.hot_update.operate"));
        QVERIFY(content->r("var.built")->getBool());
    }

    void itStartsWithTheRecordsOfItsStart() {
        Project project;
        project.start(demo());
        QCOMPARE(
            text(brisk::standin::contentOf(project.content()->r("var._list"))),
            "[{\"name\":\"a\",\"type\":\"int\"},{\"name\":\"b\",\"type\":\"int\"},{\"name\":\"a\",\"type\":\"int\"}]");
        QCOMPARE(project.points().nodes(), QStringList{"#0"});
    }

    void anotherStartLeavesNothingOfTheFirst() {
        Project project;
        project.start(demo());
        project.removeVariables({"x"});
        project.start(emptyProject());
        QCOMPARE(project.variables().size() + project.points().size(), 0);
        QVERIFY(project.takeDeleted().names.isEmpty());
    }

    void whatIsPutReplacesAddsAndTakesAway() {
        Project project;
        project.start(demo());
        QSignalSpy one(&project, &Project::variableChanged);
        QSignalSpy all(&project, &Project::changed);
        project.put(content("{\"#1\": {\"name\": \"c\"}, \"#2\": null, \"#9\": {\"name\": \"d\"}, \"#8\": null}"),
                    content("{\"#0\": {\"name\": \"park\"}}"), false);
        QCOMPARE(project.variables().nodes(), (QStringList{"#0", "#1", "#9"}));
        QCOMPARE(textAt(project.variables().record("#1"), "name"), "c");
        QCOMPARE(textAt(project.points().record("#0"), "name"), "park");
        QCOMPARE(one.size(), 3);
        QCOMPARE(all.size(), 1);
    }

    void withReplaceWhatIsNotNamedGoes() {
        Project project;
        project.start(demo());
        project.put(content("{\"#1\": {\"name\": \"c\"}}"), nullptr, true);
        QCOMPARE(project.variables().nodes(), QStringList{"#1"});
        QCOMPARE(project.points().size(), 0);
    }

    void everyVariableOfANameIsRemoved() {
        Project project;
        project.start(demo());
        project.removeVariables({"a", "x", "a"});
        QCOMPARE(project.variables().nodes(), QStringList{"#1"});
        const Project::Deleted deleted = project.takeDeleted();
        QCOMPARE(deleted.nodes, (QStringList{"#0", "#2"}));
        QCOMPARE(deleted.names, QStringList{"x"});
        QVERIFY(project.takeDeleted().nodes.isEmpty());
        QVERIFY(project.takeDeleted().names.isEmpty());
    }

    void whatThePendantTakesAwayIsNotDeletedByTheController() {
        Project project;
        project.start(demo());
        project.put(content("{\"#0\": null}"), nullptr, false);
        QVERIFY(project.takeDeleted().nodes.isEmpty());
    }

    void theFirstNameThatIsRefusedIsTold() {
        Project project;
        project.refuseToRemove({"b", "c"});
        QCOMPARE(project.refusedOf({"a", "c", "b"}), "c");
        QCOMPARE(project.refusedOf({"a"}), QString());
    }
};

QTEST_GUILESS_MAIN(TestProject)
#include "tst_project.moc"
