#include "helm/vexmanager.h"
#include "program/linetypes.h"
#include "programtexts.h"

#include "pendanttest/logwatch.h"

#include <QSignalSpy>

#include <memory>

using helm::VexManager;
using pendant::LineTypes;

Q_DECLARE_METATYPE(std::function<void()>)

// Which lines belong to which registered instruction type.
class TestProgramTypes : public QObject {
    Q_OBJECT

private slots:
    void init() {
        *registry() = VexManager();
        m_log.reset(new pendanttest::LogWatch);
    }
    void cleanup() { m_log.reset(); }
    void cleanupTestCase() { *registry() = VexManager(); }

    void withNothingRegisteredNoLineHasAType();
    void theFirstRegisteredTypeThatMatchesWins();
    void aTypeRegisteredTwiceStandsWhereItStoodFirst();
    void anEmptyNameIsNoType();
    void aTypeWithoutAPatternHasNoLines();
    void aPatternIsSearchedForAsItIsGiven_data();
    void aPatternIsSearchedForAsItIsGiven();
    void anyNameIsRecognisedByAPatternOfItsOwn_data();
    void anyNameIsRecognisedByAPatternOfItsOwn();
    void aBadPatternMatchesNothingAndIsTold_data();
    void aBadPatternMatchesNothingAndIsTold();
    void aBadPatternIsToldOnceWhileItStays();
    void aPatternThatGivesUpIsNotFoundAndIsToldOnce();
    void aLineThatIsNoTextIsNoneOfAny();
    void anAnswerIsRememberedUntilTheNextReload();
    void itIsStaleWhenSomethingIsRegistered_data();
    void itIsStaleWhenSomethingIsRegistered();
    void itIsNotStaleWhenTheSameIsRegisteredAgain();
    void whatIsRegisteredForATypeIsTold();
    void aWidgetIsThereWhenItsCreatorIs();
    void tenThousandLinesOfAThousandTypes();

private:
    static VexManager* registry() { return VexManager::getVexManager(); }
    static void add(const QString& type, const QString& pattern) {
        registry()->typeKeys << type;
        registry()->patterns["c_" + type] = pattern;
    }
    /// As a plugin registers an instruction that is its bare name.
    static void addName(const QString& type) { add(type, QString("^\\s*%1\\s*(?://.*)?$").arg(type)); }

    std::unique_ptr<pendanttest::LogWatch> m_log;
};

void TestProgramTypes::withNothingRegisteredNoLineHasAType() {
    const LineTypes types;
    QCOMPARE(types.types(), QStringList());
    QCOMPARE(types.typeOf("a"), QString());
    QCOMPARE(types.typeOf(""), QString());
    QCOMPARE(types.typesOf("a"), QStringList());
    QVERIFY(types.badPatterns().isEmpty());
    QVERIFY(!types.isStale());
}

void TestProgramTypes::theFirstRegisteredTypeThatMatchesWins() {
    add("second", "b");
    add("first", "a");
    add("third", "ab");
    const LineTypes types;
    QCOMPARE(types.types(), (QStringList{"second", "first", "third"}));
    QCOMPARE(types.typeOf("ab"), QString("second"));
    QCOMPARE(types.typesOf("ab"), types.types());
    QCOMPARE(types.typeOf("a"), QString("first"));
    QCOMPARE(types.typesOf("a"), QStringList{"first"});
    QCOMPARE(types.typeOf("c"), QString());
    QCOMPARE(types.typesOf("c"), QStringList());
}

void TestProgramTypes::aTypeRegisteredTwiceStandsWhereItStoodFirst() {
    add("one", "x");
    add("two", "a");
    add("one", "a");
    const LineTypes types;
    QCOMPARE(types.types(), (QStringList{"one", "two"}));
    QCOMPARE(types.typesOf("a"), (QStringList{"one", "two"}));
    QCOMPARE(types.typeOf("x"), QString());
}

void TestProgramTypes::anEmptyNameIsNoType() {
    addName("");
    addName("stop");
    const LineTypes types;
    QCOMPARE(types.types(), QStringList{"stop"});
    QCOMPARE(types.typesOf(""), QStringList());
    QCOMPARE(types.typesOf("// a"), QStringList());
}

void TestProgramTypes::aTypeWithoutAPatternHasNoLines() {
    registry()->typeKeys << "none";
    registry()->patterns["none"] = "a";
    registry()->patterns["s_none"] = "a";
    add("empty", "");
    const LineTypes types;
    QCOMPARE(types.types(), (QStringList{"none", "empty"}));
    QCOMPARE(types.typesOf("a"), QStringList());
    QCOMPARE(types.typesOf(""), QStringList());
    QVERIFY(types.badPatterns().isEmpty());
}

void TestProgramTypes::aPatternIsSearchedForAsItIsGiven_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("belongs");
    const QString stop("^\\s*stop\\s*(?://.*)?$");
    QTest::newRow("bare name") << stop << "stop" << true;
    QTest::newRow("blanks around") << stop << " \t stop  " << true;
    QTest::newRow("comment") << stop << "stop // for \"now\" // later" << true;
    QTest::newRow("comment without blank") << stop << "stop//" << true;
    QTest::newRow("half a comment") << stop << "stop /" << false;
    QTest::newRow("something behind") << stop << "stop now" << false;
    QTest::newRow("something before") << stop << "//stop" << false;
    QTest::newRow("longer word") << stop << "stopped" << false;
    QTest::newRow("upper case") << stop << "STOP" << false;
    QTest::newRow("empty line") << stop << "" << false;
    QTest::newRow("in the middle") << "stop"
                                   << "do not stop here" << true;
    QTest::newRow("any character") << "^a.b$"
                                   << "a-b" << true;
    QTest::newRow("option in the pattern") << "(?i)^stop$"
                                           << "STOP" << true;
    QTest::newRow("empty line is meant") << "^$"
                                         << "" << true;
    QTest::newRow("outside of the first plane") << "^.$" << QString::fromUtf8("😀") << true;
    QTest::newRow("Chinese") << QString::fromUtf8("^移动\\s*点\\d$") << QString::fromUtf8("移动 点1") << true;
}

void TestProgramTypes::aPatternIsSearchedForAsItIsGiven() {
    QFETCH(QString, pattern);
    QFETCH(QString, line);
    QFETCH(bool, belongs);
    add("type", pattern);
    const LineTypes types;
    QCOMPARE(types.typeOf(line), belongs ? QString("type") : QString());
    QCOMPARE(types.typesOf(line), belongs ? QStringList{"type"} : QStringList());
}

void TestProgramTypes::anyNameIsRecognisedByAPatternOfItsOwn_data() {
    QTest::addColumn<QString>("name");
    // A regular expression has a greatest length.
    for (const auto& odd : oddLines())
        QTest::newRow(odd.first) << odd.second.right(5000);
}

void TestProgramTypes::anyNameIsRecognisedByAPatternOfItsOwn() {
    QFETCH(QString, name);
    addName("before");
    add(name, '^' + QRegularExpression::escape(name) + '$');
    const LineTypes types;
    QVERIFY(types.badPatterns().isEmpty());
    QCOMPARE(types.typeOf(name), name);
    QCOMPARE(types.typeOf(name + '.'), QString());
}

void TestProgramTypes::aBadPatternMatchesNothingAndIsTold_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("what");
    const QString sentence("The pattern is no regular expression: %1, at character %2. No line belongs to this type.");
    QTest::newRow("open group") << "a(b" << sentence.arg("missing closing parenthesis").arg(3);
    QTest::newRow("nothing to repeat") << "*a" << sentence.arg("quantifier does not follow a repeatable item").arg(0);
    QTest::newRow("name unescaped") << "^\\s*move[\\s*(?://.*)?$"
                                    << sentence.arg("missing terminating ] for character class").arg(22);
    const QString tooLong(100000, 'a');
    QTest::newRow("too long") << tooLong << sentence.arg("regular expression is too large").arg(100000);
}

void TestProgramTypes::aBadPatternMatchesNothingAndIsTold() {
    QFETCH(QString, pattern);
    QFETCH(QString, what);
    add("bad", pattern);
    add("good", "a");
    const LineTypes types;
    QSignalSpy told(&types, &LineTypes::patternFailed);
    QCOMPARE(types.typesOf("a" + pattern), QStringList{"good"});
    QCOMPARE(types.badPatterns().size(), 1);
    QCOMPARE(types.badPatterns().at(0).type, QString("bad"));
    QCOMPARE(types.badPatterns().at(0).pattern, pattern);
    QCOMPARE(types.badPatterns().at(0).what, what);
    QTRY_COMPARE(told, (QList<QVariantList>{{"bad", what}}));
}

void TestProgramTypes::aBadPatternIsToldOnceWhileItStays() {
    add("one", "(");
    LineTypes types;
    QSignalSpy told(&types, &LineTypes::patternFailed);
    add("two", "(");
    types.reload();
    types.reload();
    QCOMPARE(types.badPatterns().size(), 2);
    QTRY_COMPARE(told.count(), 2);
    QCOMPARE(told.at(0).at(0).toString() + told.at(1).at(0).toString(), QString("onetwo"));
    registry()->patterns["c_one"] = "[";
    types.reload();
    QTRY_COMPARE(told.count(), 3);
    registry()->patterns["c_one"] = "(";
    registry()->patterns["c_two"] = "a";
    types.reload();
    QTest::qWait(1);
    QCOMPARE(told.count(), 3);
    QCOMPARE(types.badPatterns().size(), 1);
    QCOMPARE(types.typeOf("a"), QString("two"));
}

void TestProgramTypes::aPatternThatGivesUpIsNotFoundAndIsToldOnce() {
    add("heavy", "^(([a-z])+.)+[A-Z]([a-z])+$");
    add("light", "^a");
    const LineTypes types;
    QSignalSpy told(&types, &LineTypes::patternFailed);
    const QString line(1000, 'a');
    QCOMPARE(types.typeOf(line), QString("light"));
    QCOMPARE(types.typesOf(line), QStringList{"light"});
    QCOMPARE(types.typeOf(line + 'a'), QString("light"));
    QVERIFY(told.isEmpty());
    QTRY_COMPARE(told.count(), 1);
    QTest::qWait(1);
    QCOMPARE(told,
             (QList<QVariantList>{{"heavy", "The pattern gave up on a line of 1000 characters; the line counts as "
                                            "none of this type."}}));
    QVERIFY(types.badPatterns().isEmpty());
    QCOMPARE(types.typeOf("abAb"), QString("heavy"));
}

void TestProgramTypes::aLineThatIsNoTextIsNoneOfAny() {
    add("any", ".");
    const LineTypes types;
    QCOMPARE(types.typeOf(QString(QChar(0xd83d))), QString());
}

void TestProgramTypes::anAnswerIsRememberedUntilTheNextReload() {
    add("a", "^x$");
    LineTypes types;
    QCOMPARE(types.typeOf("x"), QString("a"));
    QCOMPARE(types.typeOf("y"), QString());
    registry()->patterns["c_a"] = "^y$";
    QCOMPARE(types.typeOf("x"), QString("a"));
    types.reload();
    QCOMPARE(types.typeOf("x"), QString());
    QCOMPARE(types.typeOf("y"), QString("a"));
}

void TestProgramTypes::itIsStaleWhenSomethingIsRegistered_data() {
    QTest::addColumn<std::function<void()>>("write");
    const auto row = [](const char* name, const std::function<void()>& write) { QTest::newRow(name) << write; };
    row("type key", [] { registry()->typeKeys << "b"; });
    row("the same type key", [] { registry()->typeKeys << "a"; });
    row("group", [] { registry()->groups << std::make_pair(QString("G"), QString("title")); });
    row("member", [] { registry()->groupMembers["G"] << "a"; });
    row("description", [] { registry()->descriptions["a"] = "b"; });
    row("hidden", [] { registry()->hiddenTypes << "a"; });
    row("pattern", [] { registry()->patterns["c_a"] = "b"; });
    row("skeleton", [] { registry()->skeletons["s_a"] = "b"; });
    row("icon", [] { registry()->icons["a"] = "b"; });
    row("title", [] { registry()->titles["a"] = "b"; });
}

void TestProgramTypes::itIsStaleWhenSomethingIsRegistered() {
    QFETCH(std::function<void()>, write);
    add("a", "a");
    LineTypes types;
    QVERIFY(!types.isStale());
    write();
    QVERIFY(types.isStale());
    types.reload();
    QVERIFY(!types.isStale());
}

void TestProgramTypes::itIsNotStaleWhenTheSameIsRegisteredAgain() {
    add("a", "a");
    const LineTypes types;
    registry()->patterns["c_a"] = "a";
    registry()->typeKeys.append("b");
    registry()->typeKeys.removeLast();
    QVERIFY(!types.isStale());
}

void TestProgramTypes::whatIsRegisteredForATypeIsTold() {
    add("a", "^a");
    registry()->descriptions["a"] = "does a";
    registry()->skeletons["s_a"] = "a()";
    registry()->icons["a"] = "tool";
    registry()->titles["a"] = "An a";
    add("b", "b");
    const LineTypes types;
    QCOMPARE((QStringList{types.title("a"), types.description("a"), types.icon("a"), types.skeleton("a"),
                          types.pattern("a")}),
             (QStringList{"An a", "does a", "tool", "a()", "^a"}));
    QCOMPARE((QStringList{types.title("b"), types.description("b"), types.icon("b"), types.skeleton("b")}),
             (QStringList{"b", "", "", ""}));
    QCOMPARE(types.pattern("none"), QString());
}

void TestProgramTypes::aWidgetIsThereWhenItsCreatorIs() {
    QVERIFY(!LineTypes::hasInsertWidget("a") && !LineTypes::hasPropertyWidget("a"));
    registry()->insertWidgets["a"] = [](QWidget*) { return nullptr; };
    QVERIFY(LineTypes::hasInsertWidget("a") && !LineTypes::hasPropertyWidget("a"));
    registry()->propertyWidgets["a"] = [](QWidget*) { return nullptr; };
    registry()->insertWidgets["a"] = helm::WidgetCreator();
    QVERIFY(!LineTypes::hasInsertWidget("a") && LineTypes::hasPropertyWidget("a"));
}

void TestProgramTypes::tenThousandLinesOfAThousandTypes() {
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names << QString("Move%1").arg(i, 4, 10, QLatin1Char('0'));
    for (const QString& name : names)
        add(name, '^' + name + "\\(\\d+\\)$");
    const LineTypes types;
    for (int i = 0; i < 10000; ++i) {
        const QString name = names.at(i * 7 % 1000);
        QCOMPARE(types.typeOf(QString("%1(%2)").arg(name).arg(i)), name);
    }
}

QTEST_GUILESS_MAIN(TestProgramTypes)
#include "tst_program_types.moc"
