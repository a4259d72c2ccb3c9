#include "gripperline.h"

#include <QTest>

class TestGripperLine : public QObject {
    Q_OBJECT

private slots:
    void aLineIsRead_data();
    void aLineIsRead();
    void anotherLineIsLeftAlone_data();
    void anotherLineIsLeftAlone();
    void aLineIsWritten_data();
    void aLineIsWritten();
    void theSkeletonIsALineWithoutItsValue();
    void theLinesOfOneFormAreNotTheOthers();
    void whatIsWrittenIsReadBack_data();
    void whatIsWrittenIsReadBack();
    void whatNoFieldAllowsMakesNoLineOfTheForm_data();
    void whatNoFieldAllowsMakesNoLineOfTheForm();
    void whatIsReadIsWrittenBack();
    void everyBreakBecomesABlank();
};

Q_DECLARE_METATYPE(GripperLine)

void TestGripperLine::aLineIsRead_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<GripperLine>("line");
    const auto row = [](const char* name, const QString& text, double value, int waitMs, const QString& comment) {
        QTest::newRow(name) << text << GripperLine{value, waitMs, comment, QString()};
    };
    row("plain", "CloseGripper force=40N wait=200ms", 40, 200, "");
    row("a decimal", "CloseGripper force=12.5N wait=0ms", 12.5, 0, "");
    row("blanks and tabs", "\t CloseGripper \t force=40N  wait=200ms \t", 40, 200, "");
    row("a comment", "CloseGripper force=40N wait=200ms // softly", 40, 200, "softly");
    row("a comment without blanks", "CloseGripper force=40N wait=200ms//softly", 40, 200, "softly");
    row("blanks in a comment", "CloseGripper force=40N wait=200ms //  a  b ", 40, 200, " a  b ");
    row("an empty comment", "CloseGripper force=40N wait=200ms //", 40, 200, "");
    row("a comment in a comment", "CloseGripper force=40N wait=200ms // a // \"b\"", 40, 200, "a // \"b\"");
    row("other letters", QString::fromUtf8("CloseGripper force=40N wait=200ms // 轻 sanft 🤖"), 40, 200,
        QString::fromUtf8("轻 sanft 🤖"));
    row("a very long comment", "CloseGripper force=40N wait=200ms // " + QString(1000000, 'x'), 40, 200,
        QString(1000000, 'x'));
    row("the ends of the range", "CloseGripper force=200.0N wait=9999ms", 200, 9999, "");
    row("zeros in front", "CloseGripper force=001.0N wait=0007ms", 1, 7, "");
    row("a value that is not set", "CloseGripper force=?N wait=200ms // ask", 0, 200, "ask");
    row("a value above the range", "CloseGripper force=200.1N wait=300ms // a", 200.1, 300, "a");
    row("a value below the range", "CloseGripper force=0.9N wait=300ms", 0.9, 300, "");
}

void TestGripperLine::aLineIsRead() {
    QFETCH(QString, text);
    QFETCH(GripperLine, line);
    GripperLine read;
    QVERIFY(readLine(closeGripperForm(), text, &read));
    QCOMPARE(read.value, line.value);
    QCOMPARE(read.waitMs, line.waitMs);
    QCOMPARE(read.comment, line.comment);
}

void TestGripperLine::anotherLineIsLeftAlone_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("blanks") << " \t ";
    QTest::newRow("the bare name") << "CloseGripper";
    QTest::newRow("another instruction") << "MoveJ P1";
    QTest::newRow("another case") << "closegripper force=40N wait=200ms";
    QTest::newRow("a longer name") << "CloseGripper2 force=40N wait=200ms";
    QTest::newRow("something before it") << "x CloseGripper force=40N wait=200ms";
    QTest::newRow("something behind it") << "CloseGripper force=40N wait=200ms x";
    QTest::newRow("in a comment") << "// CloseGripper force=40N wait=200ms";
    QTest::newRow("in quotes") << "\"CloseGripper force=40N wait=200ms\"";
    QTest::newRow("no blank") << "CloseGripperforce=40N wait=200ms";
    QTest::newRow("a blank in a word") << "CloseGripper force= 40N wait=200ms";
    QTest::newRow("no unit") << "CloseGripper force=40 wait=200";
    QTest::newRow("another unit") << "CloseGripper force=40mm wait=200ms";
    QTest::newRow("no wait") << "CloseGripper force=40N";
    QTest::newRow("the other order") << "CloseGripper wait=200ms force=40N";
    QTest::newRow("a value twice") << "CloseGripper force=40N force=40N wait=200ms";
    QTest::newRow("no value") << "CloseGripper force=N wait=200ms";
    QTest::newRow("a sign") << "CloseGripper force=-40N wait=200ms";
    QTest::newRow("an exponent") << "CloseGripper force=4e1N wait=200ms";
    QTest::newRow("a comma") << "CloseGripper force=12,5N wait=200ms";
    QTest::newRow("two decimals") << "CloseGripper force=12.55N wait=200ms";
    QTest::newRow("four digits") << "CloseGripper force=0040N wait=200ms";
    QTest::newRow("other digits") << QString::fromUtf8("CloseGripper force=４０N wait=200ms");
    QTest::newRow("half a wait") << "CloseGripper force=40N wait=0.5ms";
    QTest::newRow("a wait that is not set") << "CloseGripper force=40N wait=?ms";
    QTest::newRow("a wait of five digits") << "CloseGripper force=40N wait=10000ms";
    QTest::newRow("half a comment") << "CloseGripper force=40N wait=200ms / softly";
    QTest::newRow("very long") << "CloseGripper " + QString(1000000, ' ') + "force=40N";
    QTest::newRow("very many digits") << "CloseGripper force=" + QString(1000000, '9') + "N wait=200ms";
    QTest::newRow("other letters") << QString::fromUtf8("夹爪 öffnen 🤖");
    QTest::newRow("regular-expression characters") << "^(.*)$\\d+[%1]";
}

void TestGripperLine::anotherLineIsLeftAlone() {
    QFETCH(QString, text);
    GripperLine line{17, 18, "mine", "  "};
    QVERIFY(!readLine(closeGripperForm(), text, &line));
    QCOMPARE(line.value, 17.0);
    QCOMPARE(line.waitMs, 18);
    QCOMPARE(line.comment, QString("mine"));
}

void TestGripperLine::aLineIsWritten_data() {
    QTest::addColumn<GripperLine>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << GripperLine{40, 200, "", ""} << "OpenGripper width=40mm wait=200ms";
    QTest::newRow("a decimal") << GripperLine{12.5, 0, "", ""} << "OpenGripper width=12.5mm wait=0ms";
    QTest::newRow("a comment") << GripperLine{40, 200, "wide", ""} << "OpenGripper width=40mm wait=200ms // wide";
    QTest::newRow("a comment of a blank") << GripperLine{40, 200, " ", ""} << "OpenGripper width=40mm wait=200ms //  ";
    QTest::newRow("no value") << GripperLine{0, 200, "", ""} << "OpenGripper width=?mm wait=200ms";
    QTest::newRow("a comment of two lines")
        << GripperLine{40, 200, "a\nMoveJ P1", ""} << "OpenGripper width=40mm wait=200ms // a MoveJ P1";
    QTest::newRow("two decimals") << GripperLine{12.34, 200, "", ""} << "OpenGripper width=12.3mm wait=200ms";
}

void TestGripperLine::aLineIsWritten() {
    QFETCH(GripperLine, line);
    QTEST(writeLine(openGripperForm(), line), "text");
}

void TestGripperLine::theSkeletonIsALineWithoutItsValue() {
    for (const LineForm& form : {closeGripperForm(), openGripperForm()}) {
        GripperLine line{17, 18, "mine", "  "};
        QVERIFY(readLine(form, lineSkeleton(form), &line));
        QCOMPARE(line.value, 0.0);
        QVERIFY(!isInRange(form, line.value));
    }
}

void TestGripperLine::theLinesOfOneFormAreNotTheOthers() {
    GripperLine line;
    QVERIFY(!readLine(openGripperForm(), lineSkeleton(closeGripperForm()), &line));
    QVERIFY(!readLine(closeGripperForm(), lineSkeleton(openGripperForm()), &line));
}

void TestGripperLine::whatIsWrittenIsReadBack_data() {
    QTest::addColumn<double>("tenths");
    for (const double tenths : {0.0, 1.0, 10.0, 11.0, 333.0, 999.0, 1000.0, 1200.0, 9999.0})
        QTest::addRow("%g", tenths) << tenths;
}

// Waits all over the range, with values in and out of it.
void TestGripperLine::whatIsWrittenIsReadBack() {
    QFETCH(double, tenths);
    const LineForm& form = openGripperForm();
    for (int waitMs = 0; waitMs <= longestWaitMs; waitMs += 9) {
        const double value = tenths / 10.0;
        GripperLine read;
        QVERIFY(readLine(form, writeLine(form, {value, waitMs, "c", " \t"}), &read));
        QCOMPARE(read.value, value);
        QCOMPARE(read.waitMs, waitMs);
        QCOMPARE(read.comment, QString("c"));
        QCOMPARE(read.indent, QString(" \t"));
    }
}

void TestGripperLine::whatNoFieldAllowsMakesNoLineOfTheForm_data() {
    QTest::addColumn<GripperLine>("line");
    QTest::newRow("value of four digits") << GripperLine{1000.0, 200, "", ""};
    QTest::newRow("value that is rounded up to four digits") << GripperLine{999.96, 200, "", ""};
    QTest::newRow("wait of five digits") << GripperLine{40, longestWaitMs + 1, "", ""};
    QTest::newRow("negative wait") << GripperLine{40, -1, "", ""};
    QTest::newRow("half of a surrogate pair") << GripperLine{40, 200, QChar(0xd83e), ""};
}

void TestGripperLine::whatNoFieldAllowsMakesNoLineOfTheForm() {
    QFETCH(GripperLine, line);
    GripperLine read;
    QVERIFY(!readLine(openGripperForm(), writeLine(openGripperForm(), line), &read));
}

void TestGripperLine::whatIsReadIsWrittenBack() {
    const LineForm& form = closeGripperForm();
    for (int tenths = 10; tenths <= 2000; ++tenths) {
        const QString number =
            tenths % 10 ? QString("%1.%2").arg(tenths / 10).arg(tenths % 10) : QString::number(tenths / 10);
        const QString text = "\t CloseGripper force=" + number + "N wait=200ms //  softly ";
        GripperLine read;
        QVERIFY(readLine(form, text, &read));
        QCOMPARE(writeLine(form, read), text);
    }
}

void TestGripperLine::everyBreakBecomesABlank() {
    QString text = QStringLiteral("a_b");
    for (const int code : {0x0, 0xa, 0xb, 0xc, 0xd, 0x85, 0x2028, 0x2029}) {
        text[1] = QChar(code);
        QCOMPARE(onOneLine(text), QString("a b"));
        QCOMPARE(onOneLine(text + QChar(0xd83e)), "a b" + QString(QChar(0xd83e)));
    }
    for (const int code : {0x9, 0x20, 0x41, 0x2027, 0x202a, 0xd83e}) {
        text[1] = QChar(code);
        QCOMPARE(onOneLine(text), text);
    }
}

QTEST_GUILESS_MAIN(TestGripperLine)
#include "tst_gripperline.moc"
