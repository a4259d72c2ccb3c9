#include "framefixture.h"
#include "owngrammars.h"

#include "helm/vexmanager.h"
#include "instructions/builtins.h"
#include "program/linetypes.h"

using helm::VexManager;
using pendant::BuiltIns;

// The pendant's own instructions in the host's registry.
class TestInstructionRegistry : public QObject {
    Q_OBJECT

private slots:
    void init();
    void eachInstructionHasAllThatTheEditorNeeds_data();
    void eachInstructionHasAllThatTheEditorNeeds();
    void theyStandInGroupsWithTitles();
    void aSecondObjectEntersNothing();
    void whatAPluginEnteredBeforeStays();
    void aSkeletonBelongsToNoOtherInstruction();
    void textsFollowTheLanguage();
    void whatAPluginHasPutInTheirPlaceStays();
    void theWindowEntersThemAndAsksForThemInItsLanguage();

private:
    static VexManager* registry() { return VexManager::getVexManager(); }
    static pendant::Application* application() { return static_cast<pendant::Application*>(qApp); }
};

void TestInstructionRegistry::init() {
    application()->setLanguage("en");
    *registry() = VexManager();
}

void TestInstructionRegistry::eachInstructionHasAllThatTheEditorNeeds_data() {
    QTest::addColumn<QString>("type");
    for (const auto& grammar : ownGrammars())
        QTest::newRow(qPrintable(grammar.first)) << grammar.first;
}

void TestInstructionRegistry::eachInstructionHasAllThatTheEditorNeeds() {
    QFETCH(QString, type);
    const BuiltIns builtIns;
    QCOMPARE(registry()->typeKeys.count(type), 1);
    QVERIFY(QRegularExpression(registry()->patterns.value("c_" + type)).isValid());
    QVERIFY(!registry()->patterns.value("c_" + type).isEmpty());
    QVERIFY(!registry()->skeletons.value("s_" + type).isEmpty());
    QVERIFY(!registry()->titles.value(type).isEmpty());
    QVERIFY(!registry()->descriptions.value(type).isEmpty());
    QVERIFY(QFile::exists(":/pendant/icons/" + registry()->icons.value(type) + ".svg"));
    QVERIFY(registry()->defaultTexts.contains(type));
    QWidget parent;
    for (const auto& creator : {registry()->insertWidgets.value(type), registry()->propertyWidgets.value(type)}) {
        QVERIFY(creator);
        const helm::BaseContentWidget* widget = creator(&parent);
        QCOMPARE(widget->parentWidget(), &parent);
    }
}

void TestInstructionRegistry::theyStandInGroupsWithTitles() {
    const BuiltIns builtIns;
    const pendant::LineTypes types;
    QStringList groups;
    for (const pendant::InstructionGroup& group : types.groups())
        groups << group.title + ": " + group.types.join(", ");
    QCOMPARE(groups,
             (QStringList{"Motion: MoveJ, MoveL", "Logic: Wait, Assign, Comment", "Inputs and outputs: SetDO"}));
    QVERIFY(types.badPatterns().isEmpty());
}

void TestInstructionRegistry::aSecondObjectEntersNothing() {
    const BuiltIns first;
    const QStringList keys = registry()->typeKeys;
    const BuiltIns second;
    QCOMPARE(registry()->typeKeys, keys);
    QCOMPARE(registry()->groups.size(), 3);
    QCOMPARE(registry()->groupMembers.value("Motion").size(), 2);
}

void TestInstructionRegistry::whatAPluginEnteredBeforeStays() {
    registry()->typeKeys << "Glue";
    registry()->groupMembers["Motion"] << "Glue";
    const BuiltIns builtIns;
    QCOMPARE(registry()->typeKeys.first(), QString("Glue"));
    QCOMPARE(registry()->groupMembers.value("Motion"), (QStringList{"Glue", "MoveJ", "MoveL"}));
}

void TestInstructionRegistry::aSkeletonBelongsToNoOtherInstruction() {
    const BuiltIns builtIns;
    for (const auto& grammar : ownGrammars()) {
        const QStringList types = typesThatRead(registry()->skeletons.value("s_" + grammar.first));
        QVERIFY(types.isEmpty() || types == QStringList{grammar.first});
    }
}

void TestInstructionRegistry::textsFollowTheLanguage() {
    BuiltIns builtIns;
    QCOMPARE(registry()->titles.value("MoveJ"), QString("Joint move"));
    const QString described = registry()->descriptions.value("MoveJ");
    application()->setLanguage("de");
    builtIns.retranslate();
    QVERIFY(registry()->titles.value("MoveJ") != "Joint move");
    QVERIFY(registry()->descriptions.value("MoveJ") != described);
    QCOMPARE(registry()->groups.at(0), (std::pair<QString, QString>("Motion", "Bewegung")));
    application()->setLanguage("en");
    builtIns.retranslate();
    QCOMPARE(registry()->titles.value("MoveJ"), QString("Joint move"));
    QCOMPARE(registry()->descriptions.value("MoveJ"), described);
    QCOMPARE(registry()->groups.at(0).second, QString("Motion"));
}

void TestInstructionRegistry::whatAPluginHasPutInTheirPlaceStays() {
    BuiltIns builtIns;
    registry()->descriptions["Wait"] = "Waits as a plugin says";
    registry()->groups[1].second = "A plugin's";
    application()->setLanguage("de");
    builtIns.retranslate();
    QCOMPARE(registry()->descriptions.value("Wait"), QString("Waits as a plugin says"));
    QCOMPARE(registry()->groups.at(1).second, QString("A plugin's"));
}

void TestInstructionRegistry::theWindowEntersThemAndAsksForThemInItsLanguage() {
    const Frame frame;
    QCOMPARE(registry()->typeKeys.size(), ownGrammars().size());
    application()->setLanguage("de");
    Frame::settle();
    QCOMPARE(registry()->groups.at(0).second, QString("Bewegung"));
}

PENDANT_TEST_MAIN(TestInstructionRegistry)
#include "tst_instructions_registry.moc"
