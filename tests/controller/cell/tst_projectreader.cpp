#include "controller/cell/projectreader.h"

#include "reading.h"

using controller::Cell;
using controller::ProjectStart;

namespace {

QByteArray project(const QByteArray& members) {
    return "{\"project\": {" + members + "}}";
}

QByteArray variable(const QByteArray& members) {
    return project("\"variables\": [{\"name\": \"a\", \"type\": \"int\", \"value\": 1}, {" + members + "}]");
}

QByteArray point(const QByteArray& members) {
    return project("\"points\": [{\"name\": \"p\", " + members + "}]");
}

QString text(const QJsonValue& json) {
    return QString::fromUtf8(QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact));
}

QJsonObject placeOf(const QJsonObject& record) {
    return record.value("value").toObject().value("[0][0][0]").toObject();
}

} // namespace

class TestProjectReader : public QObject {
    Q_OBJECT

private slots:
    void withoutAProjectThereIsAnEmptyOne() {
        const ProjectStart start = cellIn("{}").project;
        QCOMPARE(start.name, "project");
        QVERIFY(start.variables.isEmpty() && start.points.isEmpty());
        QVERIFY(start.variableTemplate.contains("value") && start.pointTemplate.contains("property"));
    }

    void itsNamesAreRead() {
        const ProjectStart start = cellIn(project(R"("name": "n", "function": "f", "task": "t")")).project;
        QCOMPARE(start.name + start.function + start.task, "nft");
    }

    void aVariableIsItsTemplateWithWhatIsSaid() {
        const ProjectStart start =
            cellIn(project(R"("templates": {"variable": {"scope": "global", "name": "?"}}, "variables": [
                {"name": "a", "type": "int", "value": 3},
                {"name": "b", "type": "QVariantList", "value": [1, 2], "pers": true, "description": "two"}])"))
                .project;
        QCOMPARE(text(start.variables[0]), R"({"description":"","id":0,"name":"a","pers":false,"scope":"global",)"
                                           R"("type":"int","value":{"[0][0][0]":3}})");
        QCOMPARE(text(start.variables[1]), R"({"description":"two","id":1,"name":"b","pers":true,"scope":"global",)"
                                           R"("type":"QVariantList","value":{"[0][0][0]":[1,2]}})");
    }

    void aJointPointHoldsItsAxes() {
        const ProjectStart start = cellIn(R"({"robot": {"external": [
            {"name": "E1", "min": 0, "max": 9, "speed": 5, "along": "y"}]}, "tools": {"torch": {"z": 100}},
            "project": {"points": [{"name": "p", "joints": [1, 2, 3, 4, 5, 6], "external": [7], "tool": "torch"}]}})")
                                       .project;
        QCOMPARE(start.points[0].value("property").toString(), "joint");
        QCOMPARE(start.points[0].value("id").toInt(-1), 0);
        QCOMPARE(text(placeOf(start.points[0])), R"({"coord":{"tool":"torch","wobj":"world"},)"
                                                 R"("extern_pos":[7,0,0,0,0,0],"inner_pos":[1,2,3,4,5,6,0]})");
    }

    void aCartesianPointHoldsThePoseThere() {
        const ProjectStart start = cellIn(R"({"tools": {"torch": {"z": 100}}, "wobjs": {"table": {"x": 900, "z": 400}},
            "project": {"function": "f", "task": "t", "points": [{"name": "p", "property": "cart",
            "joints": [0, 0, 0, 0, 90, 0], "tool": "torch", "wobj": "table", "description": "d"}]}})")
                                       .project;
        const QJsonObject place = placeOf(start.points[0]);
        QCOMPARE(text(place.value("pose").toObject().value("frame").toObject().value("pos")),
                 R"({"x":70,"y":0,"z":655})");
        QCOMPARE(text(place.value("conf")), R"({"cf1":0,"cf2":0,"cf3":0,"cf4":0,"cf5":1,"cf6":0,"cf7":0,"cfx":0})");
        QCOMPARE(place.value("external_joint").toArray().size(), 6);
        QCOMPARE(text(place.value("coord")), R"({"tool":"torch","wobj":"table"})");
        QVERIFY(!place.contains("inner_pos") && !place.contains("extern_pos"));
        const QJsonObject record = start.points[0];
        QCOMPARE(record.value("property").toString(), "cart");
        QCOMPARE(record.value("func").toString() + record.value("task").toString(), "ft");
        QCOMPARE(record.value("description").toString(), "d");
    }

    void persistentVariablesAndRefusalsAreRead() {
        const Cell cell = cellIn(R"({"pers": {"shift": {"type": "QString", "value": "early"}},
                                     "refuse": {"remove": ["a", "b"]}})");
        QCOMPARE(cell.persistent.size(), 1);
        QCOMPARE(cell.persistent[0].name, "shift");
        QCOMPARE(cell.persistent[0].type, "QString");
        QCOMPARE(cell.persistent[0].value.toString(), "early");
        QCOMPARE(cell.refusedRemovals, (QStringList{"a", "b"}));
    }

    void aMistakeIsNamedWithItsPlace_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("mistake");
        QTest::newRow("no object") << QByteArray(R"({"project": []})") << "project: Write an object: {\"name\": ...}.";
        QTest::newRow("name is a number") << project("\"name\": 5") << "project.name: Write a text.";
        QTest::newRow("variables are an object")
            << project("\"variables\": {}") << "project.variables: Write an array: [...].";
        QTest::newRow("no variable") << project("\"variables\": [5]")
                                     << "project.variables[0]: Write an object: {\"name\": ...}.";
        QTest::newRow("no name") << variable(R"("type": "int", "value": 1)")
                                 << "project.variables[1].name: Add a text.";
        QTest::newRow("empty name") << variable(R"("name": "", "type": "int", "value": 1)")
                                    << "project.variables[1].name: Give it a name.";
        QTest::newRow("the same name") << variable(R"("name": "a", "type": "int", "value": 1)")
                                       << "project.variables[1].name: There is one of this name already.";
        QTest::newRow("no type") << variable(R"("name": "b", "value": 1)") << "project.variables[1].type: Add a text.";
        QTest::newRow("no value") << variable(R"("name": "b", "type": "bool")")
                                  << "project.variables[1].value: Add true or false.";
        QTest::newRow("another value") << variable(R"("name": "b", "type": "int", "value": 1.5)")
                                       << "project.variables[1].value: Write a whole number.";
        QTest::newRow("odd member") << variable(R"("name": "b", "type": "int", "value": 1, "persistent": true)")
                                    << "project.variables[1].persistent: This is not known here. There may be "
                                       "\"name\", \"type\", \"value\", \"pers\", \"description\".";
        QTest::newRow("pers is a number") << variable(R"("name": "b", "type": "int", "value": 1, "pers": 1)")
                                          << "project.variables[1].pers: Write true or false.";
        QTest::newRow("odd template") << project(R"("templates": {"tool": {}})")
                                      << "project.templates.tool: This is not known here. There may be \"variable\", "
                                         "\"point\".";
        QTest::newRow("template is a list")
            << project(R"("templates": {"point": []})") << "project.templates.point: Write an object: {\"name\": ...}.";
        QTest::newRow("no joints") << point("\"property\": \"cart\"")
                                   << "project.points[0].joints: Add an array: [...].";
        QTest::newRow("too few joints") << point("\"joints\": [1, 2]")
                                        << "project.points[0].joints: Write a number for each of 6 axes.";
        QTest::newRow("beyond a limit") << point("\"joints\": [0, 0, 0, 0, 126, 0]")
                                        << "project.points[0].joints[4]: It must be from -125 to 125.";
        QTest::newRow("no external axes") << point(R"("joints": [0, 0, 0, 0, 0, 0], "external": [0])")
                                          << "project.points[0].external: Write a number for each of 0 axes.";
        QTest::newRow("odd property") << point(R"("property": "pose", "joints": [0, 0, 0, 0, 0, 0])")
                                      << "project.points[0].property: Write \"joint\" or \"cart\".";
        QTest::newRow("no such tool")
            << point(R"("joints": [0, 0, 0, 0, 0, 0], "tool": "x")")
            << "project.points[0]: The controller knows no tool \"x\". There are \"flange\", \"tool0\".";
        QTest::newRow("no type of a listed one")
            << QByteArray(R"({"pers": {"a": {"value": 1}}})") << "pers.a.type: Add a text.";
        QTest::newRow("another value of a listed one")
            << QByteArray(R"({"pers": {"a": {"type": "int", "value": "1"}}})") << "pers.a.value: Write a whole number.";
        QTest::newRow("no name of a listed one")
            << QByteArray(R"({"pers": {"": {"type": "int", "value": 1}}})") << "pers[\"\"]: Give it a name.";
        QTest::newRow("odd refusal") << QByteArray(R"({"refuse": {"move": []}})")
                                     << "refuse.move: This is not known here. There may be \"remove\".";
        QTest::newRow("refused by number")
            << QByteArray(R"({"refuse": {"remove": ["a", 5]}})") << "refuse.remove[1]: Write a text.";
    }

    void aMistakeIsNamedWithItsPlace() {
        QFETCH(QByteArray, json);
        QTEST(mistakeIn(json), "mistake");
    }
};

QTEST_GUILESS_MAIN(TestProjectReader)
#include "tst_projectreader.moc"
