#include "registrylines.h"

#include "kite/vexmanager.h"

#include <QMetaMethod>
#include <QRegularExpression>
#include <QTest>

#include <functional>
#include <memory>

using kite::VexManager;

using Operation = std::function<void(VexManager&)>;
Q_DECLARE_METATYPE(Operation)

namespace {

// Something of somebody else's in every container.
const QStringList somebodyElses{"type Other",
                                "group Others|The others",
                                "member Others|Other",
                                "default Other|d",
                                "description Other|t",
                                "extra e",
                                "hidden Other",
                                "icon Other|i",
                                "insert widget Other",
                                "pattern c_Other|^Other$",
                                "property widget Other",
                                "skeleton s_Other|Other",
                                "title Other|The other"};

void fillWithSomebodyElses() {
    helm::VexManager& registry = *helm::VexManager::getVexManager();
    registry.typeKeys << "Other";
    registry.groups << std::make_pair(QString("Others"), QString("The others"));
    registry.groupMembers["Others"] << "Other";
    registry.descriptions["Other"] = "t";
    registry.defaultTexts["Other"] = "d";
    registry.hiddenTypes << "Other";
    registry.patterns["c_Other"] = "^Other$";
    registry.skeletons["s_Other"] = "Other";
    registry.propertyWidgets["Other"] = nullptr;
    registry.insertWidgets["Other"] = nullptr;
    registry.icons["Other"] = "i";
    registry.titles["Other"] = "The other";
    registry.extras << "e";
}

// What came into the registry; a line that went shows as "- line".
QStringList changes(QStringList before, QStringList after) {
    for (int i = 0; i < after.size();) {
        if (before.removeOne(after.at(i)))
            after.removeAt(i);
        else
            ++i;
    }
    for (const QString& line : before)
        after << "- " + line;
    return after;
}

kite::VexContentBase* noContent() {
    return nullptr;
}

// In a factory: tells, when the factory is replaced, what has come to the type A by then that is not "old" any more.
struct Witness {
    Witness(const QString& aName, QStringList* aList) : name(aName), seen(aList) {}
    ~Witness() {
        QStringList lines = changes(somebodyElses, registryLines());
        lines.removeOne("type A");
        lines.removeOne("member G|A");
        lines = lines.filter(QRegularExpression("^(?!(insert|property) widget)(?!.*\\bold$)"));
        *seen << name + lines.join(';');
    }

    static kite::ContentFactory factory(const QString& name, QStringList* seen) {
        const auto witness = std::make_shared<Witness>(name, seen);
        return [witness] { return nullptr; };
    }

    QString name;
    QStringList* seen;
};

} // namespace

// What each operation writes into the host's registry, and that it writes nothing else.
class TestVexManager : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { emptyRegistry(); }
    void anOperationWritesOneThing_data();
    void anOperationWritesOneThing();
    void anOperationTwiceAppendsToListsAndReplacesInHashes_data();
    void anOperationTwiceAppendsToListsAndReplacesInHashes();
    void aLaterTextReplacesTheEarlierOne();
    void listsGrowAtTheirEnd();
    void createDataRegistersAWholeType();
    void createDataMakesNoGroup();
    void createDataLeavesTheDefaultTextEmpty();
    void createDataTwiceReplacesTextsAndAppendsTheTypeAgain();
    void createDataWritesInItsOrder();
    void createDataOverASinglePieceReplacesIt();
    void aPieceAfterCreateDataReplacesItsOwn();
    void theNameGoesIntoThePatternAsItIs_data();
    void theNameGoesIntoThePatternAsItIs();
    void thePatternKnowsTheBareName_data();
    void thePatternKnowsTheBareName();
    void theObjectKeepsNothing();
    void theMetaObjectHasTheFullNameAndNothingOfItsOwn();
};

void TestVexManager::init() {
    fillWithSomebodyElses();
    QCOMPARE(registryLines(), somebodyElses);
}

void TestVexManager::anOperationWritesOneThing_data() {
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QStringList>("written");
    const auto row = [](const char* name, const Operation& operation, const QStringList& written) {
        QTest::newRow(name) << operation << written;
    };
    row("type key", [](VexManager& m) { m.createTypeKey("A"); }, {"type A"});
    row("group", [](VexManager& m) { m.createGroups("G", "Title"); }, {"group G|Title"});
    row("types into a new group",
        [](VexManager& m) {
            m.createTypeToGroup("G", QStringList{"A", "B"});
        },
        {"member G|A", "member G|B"});
    row("a type into a new group", [](VexManager& m) { m.createTypeToGroup("G", "A"); }, {"member G|A"});
    row("no types into a new group", [](VexManager& m) { m.createTypeToGroup("G", QStringList()); },
        {"no member of G"});
    row("no types into a group that is there", [](VexManager& m) { m.createTypeToGroup("Others", QStringList()); }, {});
    row("types into a group that is there",
        [](VexManager& m) {
            m.createTypeToGroup("Others", {"A", "B"});
        },
        {"member Others|A", "member Others|B"});
    row("description", [](VexManager& m) { m.createInsDescribe("A", "text"); }, {"description A|text"});
    row("default text", [](VexManager& m) { m.createInsDefault("A", "text"); }, {"default A|text"});
    row("pattern", [](VexManager& m) { m.createPattern("A", "^A( \\d+)?$"); }, {"pattern c_A|^A( \\d+)?$"});
    row("pattern that is no regular expression", [](VexManager& m) { m.createPattern("A", "("); }, {"pattern c_A|("});
    row("skeleton", [](VexManager& m) { m.createSkeleton("A", "A(?)"); }, {"skeleton s_A|A(?)"});
    row("insert widget", [](VexManager& m) { m.createInsertWidget("A", noContent); }, {"insert widget A"});
    row("property widget", [](VexManager& m) { m.createPropertyWidget("A", noContent); }, {"property widget A"});
    row("empty name", [](VexManager& m) { m.createPattern("", ""); }, {"pattern c_|"});
    row("a name in quotes, with blanks", [](VexManager& m) { m.createTypeKey(" \"A\" // "); }, {"type  \"A\" // "});
    row("a name in other letters", [](VexManager& m) { m.createSkeleton(QString::fromUtf8("夹爪🤖"), "x"); },
        {QString::fromUtf8("skeleton s_夹爪🤖|x")});
    row("a very long name", [](VexManager& m) { m.createTypeKey(QString(100000, 'A')); },
        {"type " + QString(100000, 'A')});
}

void TestVexManager::anOperationWritesOneThing() {
    QFETCH(Operation, operation);
    QFETCH(QStringList, written);
    VexManager manager(nullptr);
    operation(manager);
    QCOMPARE(changes(somebodyElses, registryLines()), written);
}

void TestVexManager::anOperationTwiceAppendsToListsAndReplacesInHashes_data() {
    anOperationWritesOneThing_data();
}

void TestVexManager::anOperationTwiceAppendsToListsAndReplacesInHashes() {
    QFETCH(Operation, operation);
    QFETCH(QStringList, written);
    VexManager manager(nullptr);
    operation(manager);
    operation(manager);
    const QRegularExpression ofAList("^(type|group|member) ");
    QCOMPARE(changes(somebodyElses, registryLines()), written + written.filter(ofAList));
}

void TestVexManager::aLaterTextReplacesTheEarlierOne() {
    VexManager manager(nullptr);
    manager.createInsDescribe("Other", "new");
    manager.createInsDefault("Other", "new");
    manager.createPattern("Other", "new");
    manager.createSkeleton("Other", "new");
    QCOMPARE(changes(somebodyElses, registryLines()),
             QStringList({"default Other|new", "description Other|new", "pattern c_Other|new", "skeleton s_Other|new",
                          "- default Other|d", "- description Other|t", "- pattern c_Other|^Other$",
                          "- skeleton s_Other|Other"}));
}

void TestVexManager::listsGrowAtTheirEnd() {
    VexManager manager(nullptr);
    manager.createTypeKey("A");
    manager.createTypeKey("B");
    manager.createTypeKey("A");
    manager.createGroups("G", "1");
    manager.createGroups("F", "2");
    manager.createGroups("G", "3");
    manager.createTypeToGroup("G", {"B", "A"});
    manager.createTypeToGroup("G", "B");
    const helm::VexManager& registry = *helm::VexManager::getVexManager();
    QCOMPARE(registry.typeKeys, QStringList({"Other", "A", "B", "A"}));
    QCOMPARE(registryLines().filter(QRegularExpression("^group ")),
             QStringList({"group Others|The others", "group G|1", "group F|2", "group G|3"}));
    QCOMPARE(registry.groupMembers.value("G"), QStringList({"B", "A", "B"}));
}

void TestVexManager::createDataRegistersAWholeType() {
    VexManager(nullptr).createData("Motion", "MyMove", "moves", noContent, noContent);
    QCOMPARE(changes(somebodyElses, registryLines()),
             QStringList({"type MyMove", "member Motion|MyMove", "default MyMove|", "description MyMove|moves",
                          "insert widget MyMove", "pattern c_MyMove|^\\s*MyMove\\s*(?://.*)?$",
                          "property widget MyMove", "skeleton s_MyMove|MyMove"}));
}

void TestVexManager::createDataMakesNoGroup() {
    VexManager(nullptr).createData("Motion", "MyMove", "moves", noContent, noContent);
    QCOMPARE(helm::VexManager::getVexManager()->groups.size(), 1);
}

void TestVexManager::createDataLeavesTheDefaultTextEmpty() {
    VexManager manager(nullptr);
    manager.createInsDefault("MyMove", "something");
    manager.createData("Motion", "MyMove", "moves", noContent, noContent);
    QVERIFY(helm::VexManager::getVexManager()->defaultTexts.contains("MyMove"));
    QCOMPARE(helm::VexManager::getVexManager()->defaultTexts.value("MyMove"), QString());
}

void TestVexManager::createDataTwiceReplacesTextsAndAppendsTheTypeAgain() {
    VexManager manager(nullptr);
    manager.createData("Motion", "MyMove", "moves", noContent, noContent);
    manager.createData("Motion", "MyMove", "moves fast", noContent, noContent);
    QCOMPARE(changes(somebodyElses, registryLines()),
             QStringList({"type MyMove", "type MyMove", "member Motion|MyMove", "member Motion|MyMove",
                          "default MyMove|", "description MyMove|moves fast", "insert widget MyMove",
                          "pattern c_MyMove|^\\s*MyMove\\s*(?://.*)?$", "property widget MyMove",
                          "skeleton s_MyMove|MyMove"}));
}

void TestVexManager::createDataWritesInItsOrder() {
    QStringList seen;
    VexManager manager(nullptr);
    manager.createData("G", "A", "old", Witness::factory("insert:", &seen), Witness::factory("property:", &seen));
    manager.createInsDefault("A", "old");
    manager.createPattern("A", "old");
    manager.createSkeleton("A", "old");
    const QStringList before = registryLines();
    manager.createData("G", "A", "new", noContent, noContent);
    QCOMPARE(seen.count(), 2);
    const QString texts = "type A;default A|;description A|new;pattern c_A|^\\s*A\\s*(?://.*)?$;skeleton s_A|A";
    QCOMPARE(seen, QStringList({"insert:" + texts, "property:" + texts}));
    QCOMPARE(changes(before, registryLines()).filter("member "), QStringList{"member G|A"});
}

void TestVexManager::createDataOverASinglePieceReplacesIt() {
    VexManager manager(nullptr);
    manager.createPattern("A", "^A$");
    manager.createSkeleton("A", "A()");
    manager.createData("G", "A", "", noContent, noContent);
    QCOMPARE(helm::VexManager::getVexManager()->patterns.value("c_A"), QString("^\\s*A\\s*(?://.*)?$"));
    QCOMPARE(helm::VexManager::getVexManager()->skeletons.value("s_A"), QString("A"));
}

void TestVexManager::aPieceAfterCreateDataReplacesItsOwn() {
    VexManager manager(nullptr);
    manager.createData("G", "A", "", noContent, noContent);
    const QStringList before = registryLines();
    manager.createPattern("A", "^A \\d+$");
    QCOMPARE(changes(before, registryLines()),
             QStringList({"pattern c_A|^A \\d+$", "- pattern c_A|^\\s*A\\s*(?://.*)?$"}));
}

void TestVexManager::theNameGoesIntoThePatternAsItIs_data() {
    QTest::addColumn<QString>("type");
    QTest::newRow("a dot") << "Grip.open";
    QTest::newRow("an open bracket") << "Grip(";
    QTest::newRow("alternatives") << "a|b*[c]{2}^$\\d";
    QTest::newRow("a backslash at the end") << "A\\";
    QTest::newRow("a place holder") << "%1";
    QTest::newRow("other place holders") << "%2%L1%99";
    QTest::newRow("nothing") << "";
    QTest::newRow("blanks") << " A B ";
    QTest::newRow("quotes and a comment") << "\"A\" // 'B'";
    QTest::newRow("other letters") << QString::fromUtf8("夹爪 öffnen 🤖");
    QTest::newRow("very long") << QString(100000, '.');
}

void TestVexManager::theNameGoesIntoThePatternAsItIs() {
    QFETCH(QString, type);
    VexManager(nullptr).createData("G", type, "", noContent, noContent);
    QCOMPARE(helm::VexManager::getVexManager()->patterns.value("c_" + type),
             QString("^\\s*" + type + "\\s*(?://.*)?$"));
    QCOMPARE(helm::VexManager::getVexManager()->skeletons.value("s_" + type), type);
}

void TestVexManager::thePatternKnowsTheBareName_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("matches");
    QTest::newRow("the name") << "MyMove"
                              << "MyMove" << true;
    QTest::newRow("blanks around it") << "MyMove"
                                      << " \tMyMove\t " << true;
    QTest::newRow("a comment") << "MyMove"
                               << "MyMove // slowly" << true;
    QTest::newRow("a comment without blanks") << "MyMove"
                                              << "MyMove//" << true;
    QTest::newRow("parameters") << "MyMove"
                                << "MyMove 1" << false;
    QTest::newRow("another case") << "MyMove"
                                  << "mymove" << false;
    QTest::newRow("a longer name") << "MyMove"
                                   << "MyMoves" << false;
    QTest::newRow("in a comment") << "MyMove"
                                  << "// MyMove" << false;
    QTest::newRow("half a comment") << "MyMove"
                                    << "MyMove / slowly" << false;
    QTest::newRow("an empty line") << "MyMove"
                                   << "" << false;
    QTest::newRow("a dot is itself") << "Grip.open"
                                     << "Grip.open" << true;
    QTest::newRow("a dot is any character") << "Grip.open"
                                            << "Grip-open" << true;
    QTest::newRow("an invalid pattern") << "Grip("
                                        << "Grip(" << false;
}

void TestVexManager::thePatternKnowsTheBareName() {
    QFETCH(QString, type);
    QFETCH(QString, line);
    VexManager(nullptr).createData("G", type, "", noContent, noContent);
    const QRegularExpression pattern(helm::VexManager::getVexManager()->patterns.value("c_" + type));
    const bool found = pattern.isValid() && pattern.match(line).hasMatch();
    QTEST(found, "matches");
}

void TestVexManager::theObjectKeepsNothing() {
    QObject parent;
    auto* manager = new VexManager(&parent);
    QCOMPARE(manager->parent(), &parent);
    QCOMPARE(sizeof(VexManager), sizeof(QObject));
    manager->createTypeKey("A");
    delete manager;
    QCOMPARE(helm::VexManager::getVexManager()->typeKeys, QStringList({"Other", "A"}));
    VexManager(nullptr).createTypeKey("B");
    QCOMPARE(helm::VexManager::getVexManager()->typeKeys, QStringList({"Other", "A", "B"}));
}

void TestVexManager::theMetaObjectHasTheFullNameAndNothingOfItsOwn() {
    const QMetaObject& meta = VexManager::staticMetaObject;
    QCOMPARE(meta.className(), "kite::VexManager");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

QTEST_GUILESS_MAIN(TestVexManager)
#include "tst_vexmanager.moc"
