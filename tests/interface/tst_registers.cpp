#include "links.h"

#include "brisk/modulemanager.h"

#include <QJsonArray>
#include <QJsonObject>

using Registers = QHash<QString, QStringList>;
Q_DECLARE_METATYPE(Registers)

class TestRegisters : public LinksTest {
    Q_OBJECT

private slots:
    void cleanup() {
        m("orca")->clear(nullptr, false, true);
        end();
    }

    void registersComeByName_data() {
        QTest::addColumn<QJsonValue>("json");
        QTest::addColumn<Registers>("registers");
        const auto row = [](const char* name, const QJsonValue& json, const Registers& registers) {
            QTest::newRow(name) << json << registers;
        };
        const auto named = [](const QJsonValue& name, const QJsonValue& value) {
            return QJsonObject{{"name", name}, {"value", value}};
        };
        row("two", QJsonArray{named("R1", QJsonArray{"1", "2"}), named("r2", QJsonArray{"x"})},
            {{"R1", {"1", "2"}}, {"r2", {"x"}}});
        row("no registers", QJsonArray(), {});
        row("no values", QJsonArray{named("R1", QJsonArray())}, {{"R1", {}}});
        row("numbers", QJsonArray{named("R1", QJsonArray{1, 2.5, true})}, {{"R1", {"1", "2.5", "true"}}});
        row("a single text", QJsonArray{named("R1", "5")}, {{"R1", {"5"}}});
        row("a single number", QJsonArray{named("R1", 5)}, {{"R1", {}}});
        row("an object", QJsonArray{named("R1", QJsonObject{{"a", "1"}})}, {{"R1", {}}});
        row("the later of one name", QJsonArray{named("R1", QJsonArray{"1"}), named("R1", QJsonArray{"2"})},
            {{"R1", {"2"}}});
        row("the case counts", QJsonArray{named("R1", QJsonArray{"1"}), named("r1", QJsonArray{"2"})},
            {{"R1", {"1"}}, {"r1", {"2"}}});
        row("no value", QJsonArray{QJsonObject{{"name", "R1"}}, named("R2", QJsonArray{"2"})}, {{"R2", {"2"}}});
        row("no name", QJsonArray{QJsonObject{{"value", QJsonArray{"1"}}}}, {});
        row("an empty value", QJsonArray{named("R1", QJsonValue())}, {});
        row("the empty name", QJsonArray{named("", QJsonArray{"1"})}, {{"", {"1"}}});
        row("a name that is no text", QJsonArray{named(7, QJsonArray{"1"})}, {{"", {"1"}}});
        row("other elements", QJsonArray{1, "R1", QJsonValue(), QJsonArray{"a"}, named("R1", QJsonArray{"1"})},
            {{"R1", {"1"}}});
        row("an object of registers", QJsonObject{{"a", named("R1", QJsonArray{"1"})}}, {});
        row("a text", "R1", {});
        row("nothing", QJsonValue(), {});
    }
    void registersComeByName() {
        QFETCH(QJsonValue, json);
        m("orca.robot.register._list")->importFromJson(nullptr, json, false, true, true);
        QTEST(kiteInterface()->getRegisterHash(), "registers");
        QCOMPARE(kiteInterface()->getRegisterValue(), m("orca.robot.register._list")->exportToJson(true));
    }

    void theJsonComesAsItIs() {
        const QJsonArray json{QJsonObject{{"name", "R1"}, {"value", QJsonArray{"1", 2}}, {"unit", "mm"}}, 5};
        m("orca.robot.register._list")->importFromJson(nullptr, json, false, true, true);
        QCOMPARE(kiteInterface()->getRegisterValue(), QJsonValue(json));
        m("orca.robot.register._list")->clear(nullptr, false, true);
        QCOMPARE(kiteInterface()->getRegisterValue(), QJsonValue(QJsonArray()));
    }

    void manyValuesStayInOrder() {
        QJsonArray values;
        QStringList texts;
        for (int i = 0; i < 12; ++i) {
            values.append(QString::number(i));
            texts.append(QString::number(i));
        }
        m("orca.robot.register._list")
            ->importFromJson(nullptr, QJsonArray{QJsonObject{{"name", "R1"}, {"value", values}}}, false, true, true);
        QCOMPARE(kiteInterface()->getRegisterHash().value("R1"), texts);
    }

    void aListThatCameAsOneValueIsReadToo() {
        const QJsonArray json{QJsonObject{{"name", "R1"}, {"value", QJsonArray{"1"}}}};
        m("orca.robot.register._list")->setValue(nullptr, json);
        QCOMPARE(kiteInterface()->getRegisterHash(), Registers({{"R1", {"1"}}}));
        QCOMPARE(kiteInterface()->getRegisterValue(), QJsonValue(json));
    }

    void withoutRegistersThereIsNothing() {
        QCOMPARE(kiteInterface()->getRegisterHash(), Registers());
        QVERIFY(kiteInterface()->getRegisterValue().isNull());
        m("orca.robot.register")->setValue(nullptr, QJsonArray{QJsonObject{{"name", "R1"}, {"value", "1"}}});
        QCOMPARE(kiteInterface()->getRegisterHash(), Registers());
        QVERIFY(kiteInterface()->getRegisterValue().isNull());
    }

    void nothingIsSentOrLogged() {
        kiteInterface()->getRegisterHash();
        kiteInterface()->getRegisterValue();
        QCOMPARE(bus().sent.size() + controller().sent.size(), 0);
        QCOMPARE(log().lines(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestRegisters)
#include "tst_registers.moc"
