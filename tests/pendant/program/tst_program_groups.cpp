#include "helm/vexmanager.h"
#include "program/linetypes.h"

#include "pendanttest/logwatch.h"

#include <QTest>

#include <memory>

using helm::VexManager;
using pendant::InstructionGroup;
using pendant::LineTypes;

// The groups that the picker offers.
class TestProgramGroups : public QObject {
    Q_OBJECT

private slots:
    void init() {
        *registry() = VexManager();
        m_log.reset(new pendanttest::LogWatch);
    }
    void cleanup() { m_log.reset(); }
    void cleanupTestCase() { *registry() = VexManager(); }

    void withNothingRegisteredThereAreNone();
    void groupsStandInTheOrderOfTheirTitles();
    void theFirstTitleOfAGroupHolds();
    void aGroupWithoutATitleHasItsKey();
    void typesInNoGroupStandUnderOther();
    void typesThatAreHiddenAreLeftOut();
    void aTypeMayStandInSeveralGroups();
    void aMemberThatIsNoRegisteredTypeIsOfferedToo();
    void anEmptyNameIsNoType();

private:
    static VexManager* registry() { return VexManager::getVexManager(); }
    /// "key (title): type type".
    static QStringList inWords() {
        QStringList words;
        for (const InstructionGroup& group : LineTypes().groups())
            words << QString("%1 (%2): %3").arg(group.key, group.title, group.types.join(' '));
        return words;
    }

    std::unique_ptr<pendanttest::LogWatch> m_log;
};

void TestProgramGroups::withNothingRegisteredThereAreNone() {
    QCOMPARE(inWords(), QStringList());
    registry()->groups << std::make_pair(QString("G"), QString("Group"));
    QCOMPARE(inWords(), QStringList());
}

void TestProgramGroups::groupsStandInTheOrderOfTheirTitles() {
    registry()->groups = {{"Z", "Last of all"}, {"A", "First of all"}};
    registry()->groupMembers["A"] = QStringList{"c", "a", "c", "b", "a"};
    registry()->groupMembers["Z"] = QStringList{"z"};
    QCOMPARE(inWords(), (QStringList{"Z (Last of all): z", "A (First of all): c a b"}));
}

void TestProgramGroups::theFirstTitleOfAGroupHolds() {
    registry()->groups = {{"A", "One"}, {"B", "Two"}, {"A", "Three"}};
    registry()->groupMembers["A"] = QStringList{"a"};
    registry()->groupMembers["B"] = QStringList{"b"};
    QCOMPARE(inWords(), (QStringList{"A (One): a", "B (Two): b"}));
}

void TestProgramGroups::aGroupWithoutATitleHasItsKey() {
    registry()->groups = {{"T", "Titled"}, {"E", ""}};
    for (const char* key : {"U", "T", "C", "E"})
        registry()->groupMembers[key] = QStringList{QString(key).toLower()};
    QCOMPARE(inWords(), (QStringList{"T (Titled): t", "E (E): e", "C (C): c", "U (U): u"}));
}

void TestProgramGroups::typesInNoGroupStandUnderOther() {
    registry()->typeKeys = QStringList{"b", "a", "g", "b"};
    registry()->groupMembers["G"] = QStringList{"g"};
    QCOMPARE(inWords(), (QStringList{"G (G): g", " (Other): b a"}));
}

void TestProgramGroups::typesThatAreHiddenAreLeftOut() {
    registry()->typeKeys = QStringList{"a", "b", "c", "g"};
    registry()->groupMembers["G"] = QStringList{"a", "b"};
    registry()->groupMembers["H"] = QStringList{"g"};
    registry()->hiddenTypes = {"b", "c", "g"};
    QCOMPARE(inWords(), QStringList{"G (G): a"});
}

void TestProgramGroups::aTypeMayStandInSeveralGroups() {
    registry()->typeKeys = QStringList{"a"};
    registry()->groupMembers["G"] = QStringList{"a"};
    registry()->groupMembers["H"] = QStringList{"a"};
    QCOMPARE(inWords(), (QStringList{"G (G): a", "H (H): a"}));
}

void TestProgramGroups::aMemberThatIsNoRegisteredTypeIsOfferedToo() {
    registry()->groupMembers["G"] = QStringList{"a"};
    QCOMPARE(inWords(), QStringList{"G (G): a"});
    QCOMPARE(LineTypes().types(), QStringList());
}

void TestProgramGroups::anEmptyNameIsNoType() {
    registry()->typeKeys = QStringList{""};
    registry()->groupMembers["G"] = QStringList{""};
    QCOMPARE(inWords(), QStringList());
}

QTEST_GUILESS_MAIN(TestProgramGroups)
#include "tst_program_groups.moc"
