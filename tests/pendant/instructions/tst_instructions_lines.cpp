#include "owngrammars.h"

#include <QTest>

using namespace pendant;

// How the lines of the pendant's own instructions are written.
class TestInstructionLines : public QObject {
    Q_OBJECT

private slots:
    void aLineBelongsToOneInstruction_data();
    void aLineBelongsToOneInstruction();
    void whatIsWrittenOtherwiseBelongsToNone_data();
    void whatIsWrittenOtherwiseBelongsToNone();
    void theWordsOfAnInstructionAreCaseSensitive();
    void aMoveIsTakenApart();
    void whatAMoveDoesNotSayIsEmpty();
    void blanksInFrontAndACommentAreKept_data();
    void blanksInFrontAndACommentAreKept();
    void namesAreQuotedWhereTheyNeedIt_data();
    void namesAreQuotedWhereTheyNeedIt();
    void aValueEndsWhereItsCommentBegins_data();
    void aValueEndsWhereItsCommentBegins();
    void oneBlankAfterTheSlashesBelongsToThem();
    void aLineOfAnyLengthIsRead();
    void aLineThatIsNotReadLeavesThePartsAlone();
};

void TestInstructionLines::aLineBelongsToOneInstruction_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("type");
    const auto row = [](const char* type, const QString& line) { QTest::newRow(qPrintable(line)) << line << type; };
    row("MoveJ", "MoveJ home speed=50%");
    row("MoveJ", "MoveJ home speed=100% zone=999mm tool=gripper wobj=table");
    row("MoveJ", "  MoveJ\t\"part \\\"1\\\"\"  speed=1%  wobj=\"ä ö\"  // down");
    row("MoveJ", "MoveJ speed speed=1%");
    row("MoveL", "MoveL home speed=9999mm/s");
    row("MoveL", QString::fromUtf8("MoveL 位置 speed=5mm/s tool=\"//\""));
    row("Wait", "Wait 0 ms");
    row("Wait", "Wait 9999999ms//long");
    row("SetDO", "SetDO gripper on");
    row("SetDO", QString::fromUtf8("SetDO \"🔧\" off"));
    row("Assign", "Assign a = 1");
    row("Assign", "Assign a=b+1//c");
    row("Assign", "Assign \"a b\" = \"x // y\"");
    row("Assign", "Assign a = b / c");
    row("Comment", "//");
    row("Comment", "   // MoveJ home speed=50%");
    row("Comment", "// a // b");
}

void TestInstructionLines::aLineBelongsToOneInstruction() {
    QFETCH(QString, line);
    QFETCH(QString, type);
    QCOMPARE(typesThatRead(line), QStringList{type});
}

void TestInstructionLines::whatIsWrittenOtherwiseBelongsToNone_data() {
    QTest::addColumn<QString>("line");
    for (const char* line : {"",
                             " ",
                             "MoveJ",
                             "MoveJ home",
                             "MoveJ home speed=50",
                             "MoveJ home speed=0%",
                             "MoveJ home speed=101%",
                             "MoveJ home speed=050%",
                             "MoveJ home speed=50% zone=0mm",
                             "MoveJ home speed=50% zone=1000mm",
                             "MoveJ home speed=50% wobj=a tool=b",
                             "MoveJ 1a speed=50%",
                             "MoveJ \"\" on speed=50% x",
                             "MoveJ \"a speed=50%",
                             "MoveJ home speed=50% zone = 5mm",
                             "MoveJhome speed=50%",
                             "xMoveJ home speed=50%",
                             "MoveJ home speed=50mm/s",
                             "MoveL home speed=50%",
                             "MoveL home speed=0mm/s",
                             "MoveL home speed=10000mm/s",
                             "Wait",
                             "Wait ms",
                             "Wait -5 ms",
                             "Wait 5",
                             "Wait 1.5 ms",
                             "Wait 05 ms",
                             "Wait 10000000 ms",
                             "SetDO gripper",
                             "SetDO gripper 1",
                             "SetDO on",
                             "SetDO a b on",
                             "Assign a",
                             "Assign a =",
                             "Assign = 5",
                             "Assign a = // nothing",
                             "Assign a = \"half",
                             "Assign a b = 5",
                             "/",
                             "/ / a",
                             "Wait 500 ms / a"})
        QTest::newRow(line) << QString(line);
}

void TestInstructionLines::whatIsWrittenOtherwiseBelongsToNone() {
    QFETCH(QString, line);
    QCOMPARE(typesThatRead(line), QStringList());
}

void TestInstructionLines::theWordsOfAnInstructionAreCaseSensitive() {
    QCOMPARE(typesThatRead("movej home speed=50%"), QStringList());
    QCOMPARE(typesThatRead("WAIT 5 ms"), QStringList());
    QCOMPARE(typesThatRead("SetDO a On"), QStringList());
}

void TestInstructionLines::aMoveIsTakenApart() {
    LineParts parts;
    const QString line = "MoveL \"part 1\" speed=250mm/s zone=10mm tool=gripper wobj=\"the table\"";
    QVERIFY(MoveLine::grammar(MoveLine::Linear).read(line, &parts));
    const MoveLine move = MoveLine::of(MoveLine::Linear, parts);
    QCOMPARE(move.point, QString("part 1"));
    QCOMPARE(move.speed, 250);
    QCOMPARE(move.zoneMm, 10);
    QCOMPARE(move.tool, QString("gripper"));
    QCOMPARE(move.workObject, QString("the table"));
    QCOMPARE(move.text(), line);
}

void TestInstructionLines::whatAMoveDoesNotSayIsEmpty() {
    LineParts parts;
    QVERIFY(MoveLine::grammar(MoveLine::Joint).read("MoveJ home speed=5%", &parts));
    const MoveLine move = MoveLine::of(MoveLine::Joint, parts);
    QCOMPARE(move.zoneMm, 0);
    QVERIFY(move.tool.isEmpty() && move.workObject.isEmpty());
    QCOMPARE(move.text(), QString("MoveJ home speed=5%"));
}

void TestInstructionLines::blanksInFrontAndACommentAreKept_data() {
    QTest::addColumn<QString>("indent");
    QTest::addColumn<QString>("tail");
    QTest::newRow("neither") << ""
                             << "";
    QTest::newRow("blanks") << " \t "
                            << "  ";
    QTest::newRow("comment at once") << ""
                                     << "//x";
    QTest::newRow("comment after blanks") << "\t"
                                          << "   //  x \"y // z ";
}

void TestInstructionLines::blanksInFrontAndACommentAreKept() {
    QFETCH(QString, indent);
    QFETCH(QString, tail);
    for (const QString& text : {QString("MoveJ \"a b\" speed=5% wobj=\"//\""), QString("Wait 5 ms"),
                                QString("SetDO a on"), QString("Assign a = \"b // c\"")}) {
        const QString type = typesThatRead(text).value(0);
        for (const auto& grammar : ownGrammars()) {
            LineParts parts;
            if (grammar.first != type || !grammar.second->read(indent + text + tail, &parts))
                continue;
            QCOMPARE(parts.indent, indent);
            QCOMPARE(parts.tail, tail);
        }
        QCOMPARE(typesThatRead(indent + text + tail), QStringList{type});
    }
}

void TestInstructionLines::namesAreQuotedWhereTheyNeedIt_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    const auto row = [](const QString& name, const QString& written) {
        QTest::newRow(qPrintable(name)) << name << written;
    };
    row("home", "home");
    row("_a1", "_a1");
    row(QString::fromUtf8("Ablageöffnung"), QString::fromUtf8("Ablageöffnung"));
    row(QString::fromUtf8("位置"), QString::fromUtf8("位置"));
    row("", "\"\"");
    row("1a", "\"1a\"");
    row("part 1", "\"part 1\"");
    row("a\"b", "\"a\\\"b\"");
    row("a\\", "\"a\\\\\"");
    row("a.b*c", "\"a.b*c\"");
    row("//", "\"//\"");
    row(QString::fromUtf8("🔧"), QString::fromUtf8("\"🔧\""));
    row("home\n", "\"home\n\"");
}

void TestInstructionLines::namesAreQuotedWhereTheyNeedIt() {
    QFETCH(QString, name);
    QFETCH(QString, written);
    QCOMPARE(LineGrammar::written(name), written);
    QCOMPARE(LineGrammar::nameIn(written), name);
}

void TestInstructionLines::aValueEndsWhereItsCommentBegins_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("value");
    QTest::newRow("alone") << "Assign a = b + 1"
                           << "b + 1";
    QTest::newRow("blanks behind it") << "Assign a = b  "
                                      << "b";
    QTest::newRow("comment") << "Assign a = b  + 1  // c"
                             << "b  + 1";
    QTest::newRow("comment at once") << "Assign a = b//c"
                                     << "b";
    QTest::newRow("a division") << "Assign a = b / c / d"
                                << "b / c / d";
    QTest::newRow("slashes in quotation marks") << "Assign a = \"b // c\" // d"
                                                << "\"b // c\"";
    QTest::newRow("an escaped quotation mark") << "Assign a = \"b \\\" // c\" // d"
                                               << "\"b \\\" // c\"";
}

void TestInstructionLines::aValueEndsWhereItsCommentBegins() {
    QFETCH(QString, line);
    QFETCH(QString, value);
    LineParts parts;
    QVERIFY(AssignLine::grammar().read(line, &parts));
    QCOMPARE(AssignLine::of(parts).value, value);
    QCOMPARE(AssignLine::of(parts).text() + parts.tail, line);
}

void TestInstructionLines::oneBlankAfterTheSlashesBelongsToThem() {
    const auto commentOf = [](const QString& line) {
        LineParts parts;
        CommentLine::grammar().read(line, &parts);
        return CommentLine::of(parts).comment;
    };
    QCOMPARE(commentOf("//a"), QString("a"));
    QCOMPARE(commentOf("// a"), QString("a"));
    QCOMPARE(commentOf("//  a "), QString(" a "));
    QCOMPARE(CommentLine{" a "}.text(), QString("//  a "));
    QCOMPARE(CommentLine{}.text(), QString("//"));
}

// The engine would give up on a line that it tries in a million ways.
void TestInstructionLines::aLineOfAnyLengthIsRead() {
    const QString name = QString("n \\\" / ").repeated(200000);
    QCOMPARE(typesThatRead("MoveJ \"" + name + "\" speed=50%"), QStringList{"MoveJ"});
    QCOMPARE(typesThatRead("MoveJ \"" + name + "\" speed=50"), QStringList());
    QCOMPARE(typesThatRead("Assign a = " + QString("b + \"c\" / ").repeated(200000) + "d"), QStringList{"Assign"});
    QCOMPARE(typesThatRead("Assign a = " + QString("b + \"c\" / ").repeated(200000) + "\""), QStringList());
    QCOMPARE(typesThatRead("//" + QString(1000000, 'x')), QStringList{"Comment"});
    QCOMPARE(typesThatRead(QString(1000000, ' ')), QStringList());
}

void TestInstructionLines::aLineThatIsNotReadLeavesThePartsAlone() {
    LineParts parts;
    QVERIFY(WaitLine::grammar().read("  Wait 5 ms // a", &parts));
    QVERIFY(!WaitLine::grammar().read("Wait", &parts));
    QCOMPARE(parts.indent, QString("  "));
    QCOMPARE(parts.tail, QString(" // a"));
    QCOMPARE(WaitLine::of(parts).timeMs, 5);
}

QTEST_APPLESS_MAIN(TestInstructionLines)
#include "tst_instructions_lines.moc"
