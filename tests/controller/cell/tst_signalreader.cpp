#include "reading.h"

#include "controller/io/iosignal.h"

using controller::IoSignal;
using controller::SignalType;

namespace {

void row(const char* title, const QByteArray& json, const char* mistake) {
    QTest::newRow(title) << json << QString(mistake);
}
void signalRow(const char* title, const QByteArray& members, const char* mistake) {
    row(title, R"({"signals": [{"name": "a", )" + members + "}]}", mistake);
}

void mistakesOfSignals() {
    row("no list", R"({"signals": {}})", "signals: Write an array: [...].");
    row("no name", R"({"signals": [{"type": "DI"}]})", "signals[0].name: Add a text.");
    row("empty name", R"({"signals": [{"name": "", "type": "DI"}]})", "signals[0].name: Give it a name.");
    row("dot", R"({"signals": [{"name": "a.b", "type": "DI"}]})",
        "signals[0].name: Write a name without dots that does not begin with \"#\": it becomes part of a key.");
    row("item of a list", R"({"signals": [{"name": "#0", "type": "DI"}]})",
        "signals[0].name: Write a name without dots that does not begin with \"#\": it becomes part of a key.");
    row("twice", R"({"signals": [{"name": "a", "type": "DI"}, {"name": "a", "type": "DO"}]})",
        "signals[1].name: There is one of this name already.");
    signalRow("type", R"("type": "di")",
              "signals[0].type: Write one of \"DI\", \"DO\", \"GI\", \"GO\", \"AI\", \"AO\".");
    signalRow("no type", R"("value": true)", "signals[0].type: Add a text.");
    signalRow("misspelt", R"("type": "DI", "vale": true)",
              "signals[0].vale: This is not known here. There may be \"name\", \"type\", \"value\", \"min\", \"max\", "
              "\"course\".");
    signalRow("value", R"("type": "DI", "value": 1)", "signals[0].value: Write true or false.");
    signalRow("value of a group", R"("type": "GO", "value": 0.5)",
              "signals[0].value: Write a whole number from 0 to 65535.");
    signalRow("value past the end", R"("type": "AI", "value": 10.5)", "signals[0].value: Write a number from 0 to 10.");
    signalRow("limits of a bit", R"("type": "DO", "max": 1)",
              "signals[0]: A digital signal has no \"min\" and no \"max\".");
    signalRow("upside down", R"("type": "AO", "min": 5, "max": 5)", "signals[0].min: It must be less than \"max\".");
    signalRow("half a limit", R"("type": "GI", "max": 2.5)", "signals[0].max: Write a whole number.");
    signalRow("far limit", R"("type": "GI", "max": 3000000000)",
              "signals[0].max: It must be from -2147483647 to 2147483647.");
}

void mistakesOfCourses() {
    signalRow("value and course", R"("type": "DI", "value": true, "course": {"pulse": {"onS": 1, "periodS": 2}})",
              "signals[0].course: Write either \"value\" or \"course\".");
    signalRow("wave of a bit", R"("type": "DI", "course": {"wave": {"min": 0, "max": 1, "periodS": 2}})",
              "signals[0].course: A digital signal follows a \"pulse\".");
    signalRow("pulse of a number", R"("type": "AI", "course": {"pulse": {"onS": 1, "periodS": 2}})",
              "signals[0].course: A pulse is for digital signals. Write a \"wave\" or a \"count\".");
    signalRow("pulse that is on", R"("type": "DI", "course": {"pulse": {"onS": 2, "periodS": 2}})",
              "signals[0].course.pulse.onS: It must be less than \"periodS\".");
    signalRow("no course", R"("type": "AI", "course": 5)",
              "signals[0].course: Write {\"wave\": {...}}, {\"count\": {...}} or {\"pulse\": {...}}.");
}

void mistakesOfTheOthers() {
    row("register without a value", R"({"registers": [{"name": "a"}]})", "registers[0].value: Add an array: [...].");
    row("register of numbers", R"({"registers": [{"name": "a", "value": ["1", 2]}]})",
        "registers[0].value[1]: Write a text.");
    row("register twice", R"({"registers": [{"name": "a", "value": []}, {"name": "a", "value": []}]})",
        "registers[1].name: There is one of this name already.");
    row("speed without a value", R"({"speeds": [{"name": "a"}]})", "speeds[0].value: Add a value.");
    row("zone twice", R"({"zones": [{"name": "a", "value": 1}, {"name": "a", "value": 2}]})",
        "zones[1].name: There is one of this name already.");
    row("zone misspelt", R"({"zones": [{"nam": "a", "value": 1}]})",
        "zones[0].nam: This is not known here. There may be \"name\", \"value\", \"description\".");
    row("scope of a tool", R"({"tools": {"a": {"scope": "local"}}})",
        "tools.a.scope: Write one of \"system\", \"project\", \"global\".");
    row("scope of a work object", R"({"wobjs": {"a": {"scope": 1}}})", "wobjs.a.scope: Write a text.");
    row("scope of the foot", R"({"robot": {"foot": {"scope": "system"}}})",
        "robot.foot.scope: This is not known here. There may be \"x\", \"y\", \"z\", \"a\", \"b\", \"c\", \"on\".");
    row("everyone's tool", R"({"tools": {"tool0": {}}})",
        "tools.tool0: Every robot has tools \"tool0\", \"flange\". Choose another name.");
    row("everyone's work object", R"({"wobjs": {"wobj0": {}}})",
        "wobjs.wobj0: Every cell has work objects \"wobj0\", \"world\". Choose another name.");
}

} // namespace

// The sections "signals", "registers", "speeds" and "zones", and the scopes of tools and work objects.
class TestSignalReader : public QObject {
    Q_OBJECT

private slots:
    void aCellWithoutTheSectionsHasNone() {
        const controller::Cell cell = cellIn("{}");
        QVERIFY(cell.ioSignals.isEmpty());
        QVERIFY(cell.registers.isEmpty());
        QVERIFY(cell.motionNames.variables.isEmpty());
        QVERIFY(cell.motionNames.toolScopes.isEmpty());
    }

    void theSixTypesAreReadInOrder() {
        const controller::Cell cell = cellIn(R"({"signals": [
            {"name": "z", "type": "DI", "value": true}, {"name": "y", "type": "DO"},
            {"name": "x", "type": "GI", "value": 65535}, {"name": "w", "type": "GO", "min": 5, "max": 9},
            {"name": "v", "type": "AI", "value": 9.75}, {"name": "u", "type": "AO", "min": -1, "max": 1, "value": 1}]})");
        QStringList names;
        QList<int> types;
        QVariantList values;
        for (const IoSignal& signal : cell.ioSignals) {
            names << signal.name;
            types << int(signal.type);
            values << signal.value;
        }
        QCOMPARE(names, (QStringList{"z", "y", "x", "w", "v", "u"}));
        QCOMPARE(types, (QList<int>{1, 2, 3, 4, 5, 6}));
        QCOMPARE(values, (QVariantList{true, false, 65535, 5, 9.75, 1.0}));
        QCOMPARE(cell.ioSignals.at(3).minimum, 5.0);
        QCOMPARE(cell.ioSignals.at(3).maximum, 9.0);
    }

    void aSignalMayFollowACourse() {
        const controller::Cell cell = cellIn(R"({"signals": [
            {"name": "a", "type": "DI", "course": {"pulse": {"onS": 1, "periodS": 3}}},
            {"name": "b", "type": "AI", "course": {"wave": {"min": 2, "max": 4, "periodS": 2}}},
            {"name": "c", "type": "GI", "course": {"count": {"from": 7, "everyS": 1}}}]})");
        QCOMPARE(cell.ioSignals.at(0).course(1999), QVariant(false));
        QCOMPARE(cell.ioSignals.at(0).course(2000), QVariant(true));
        QCOMPARE(cell.ioSignals.at(1).course(1000), QVariant(4.0));
        QCOMPARE(cell.ioSignals.at(2).course(2000), QVariant(9));
    }

    void registersAreListsOfTexts() {
        const controller::Cell cell =
            cellIn(R"({"registers": [{"name": "b", "value": ["1", ""]}, {"name": "a", "value": []}]})");
        QCOMPARE(cell.registers.size(), 2);
        QCOMPARE(cell.registers.at(0).name, QString("b"));
        QCOMPARE(cell.registers.at(0).values, (QStringList{"1", ""}));
        QVERIFY(cell.registers.at(1).values.isEmpty());
    }

    void aSpeedAndAZoneMayHaveTheSameName() {
        const controller::Cell cell =
            cellIn(R"({"zones": [{"name": "a", "value": 1}], "speeds": [{"name": "a", "value": 2}]})");
        QCOMPARE(cell.motionNames.variables.size(), 2);
        QCOMPARE(cell.motionNames.variables.at(0).value("type").toString(), QString("speed"));
        QCOMPARE(cell.motionNames.variables.at(1).value("type").toString(), QString("zone"));
    }

    void scopesAreThoseOfTheProjectWhenTheyAreLeftOut() {
        const controller::Cell cell = cellIn(R"({"tools": {"a": {}, "b": {"scope": "global"}},
            "wobjs": {"c": {"scope": "system"}, "d": {"scope": "project"}}})");
        QCOMPARE(cell.motionNames.toolScopes.value("a"), controller::Scope::Project);
        QCOMPARE(cell.motionNames.toolScopes.value("b"), controller::Scope::Global);
        QCOMPARE(cell.motionNames.wobjScopes.value("c"), controller::Scope::System);
        QCOMPARE(cell.motionNames.wobjScopes.value("d"), controller::Scope::Project);
        QVERIFY(cell.robot.tools.contains("b") && cell.robot.wobjs.contains("c"));
    }

    void theFirstMistakeIsNamedWithItsPlace_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("mistake");
        mistakesOfSignals();
        mistakesOfCourses();
        mistakesOfTheOthers();
    }

    void theFirstMistakeIsNamedWithItsPlace() {
        QFETCH(QByteArray, json);
        QTEST(mistakeIn(json), "mistake");
    }
};

QTEST_GUILESS_MAIN(TestSignalReader)
#include "tst_signalreader.moc"
