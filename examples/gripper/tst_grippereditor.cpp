#include "closegrippereditor.h"
#include "opengrippereditor.h"

#include "pendanttest/logwatch.h"

#include <kite/vexbasewidget.h>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>

#include <functional>
#include <memory>

namespace {

/// One of the two editors, in the widget in which the program editor has it.
class Shown {
public:
    explicit Shown(GripperEditor* editor) : wrapper(editor, nullptr) { wrapper.show(); }

    QDoubleSpinBox* value() { return wrapper.findChild<QDoubleSpinBox*>("value"); }
    QSpinBox* wait() { return wrapper.findChild<QSpinBox*>("wait"); }
    QLineEdit* comment() { return wrapper.findChild<QLineEdit*>("comment"); }
    QString reason() { return wrapper.findChild<QLabel*>("reason")->text(); }
    QString fields() {
        return QStringLiteral("%1|%2|").arg(value()->value()).arg(wait()->value()) + onOneLine(comment()->text());
    }

    kite::VexBaseWidget wrapper;
};

/// An instruction: its editor and its form.
struct Instruction {
    std::function<GripperEditor*()> make;
    const LineForm* form;
};

const Instruction closing{[] { return new CloseGripperEditor; }, &closeGripperForm()};
const Instruction opening{[] { return new OpenGripperEditor; }, &openGripperForm()};

// Anything a person or a clipboard may bring into a comment.
QString anyText(QRandomGenerator& dice) {
    static const QStringList pieces{"a",
                                    " ",
                                    "//",
                                    "\"",
                                    "'",
                                    "\\",
                                    "(.*)",
                                    "%1",
                                    "\t",
                                    "\n",
                                    "\r\n",
                                    "?",
                                    "ms",
                                    "wait=",
                                    "N",
                                    "^$",
                                    QString::fromUtf8("夹"),
                                    QString::fromUtf8("ß"),
                                    QString::fromUtf8("🤖"),
                                    QString(QChar(0x2028)),
                                    QString(QChar(0)),
                                    "0.5"};
    QString text;
    for (int count = dice.bounded(12); count > 0; --count)
        text += pieces.at(dice.bounded(pieces.size()));
    return text;
}

} // namespace

Q_DECLARE_METATYPE(Instruction)

class TestGripperEditor : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() { m_log.reset(); }
    void aNewEditorHasNoValueAndAWait_data() { instructions(); }
    void aNewEditorHasNoValueAndAWait();
    void aMissingValueIsRefusedWithAReason_data() { instructions(); }
    void aMissingValueIsRefusedWithAReason();
    void aValueTooSmallIsRefused();
    void anEmptiedFieldIsAMissingValue();
    void settingTheValueTakesTheReasonAway();
    void theSkeletonLeavesTheValueToThePerson_data() { instructions(); }
    void theSkeletonLeavesTheValueToThePerson();
    void aLineIsShownAndChanged();
    void theCommentIsKept_data();
    void theCommentIsKept();
    void aPastedCommentStaysOnOneLine();
    void aPastedCommentLeavesCursorAndUndoAlone();
    void aCommentThatIsNoTextIsRefused_data();
    void aCommentThatIsNoTextIsRefused();
    void aForeignLineIsNotReplaced_data();
    void aForeignLineIsNotReplaced();
    void withoutALineThereIsNothingToReplace();
    void aValueOutOfRangeHasToBeSetAgain();
    void theKeysOfTheFieldsCanBeUsed();
    void everyFieldIsAsHighAsAFinger();
    void whatTheWidgetAcceptsSurvivesTheLine_data();
    void whatTheWidgetAcceptsSurvivesTheLine();
    void anyLineAtAllIsSurvived_data();
    void anyLineAtAllIsSurvived();

private:
    static void instructions();
    static void seeds();

    std::unique_ptr<pendanttest::LogWatch> m_log;
};

void TestGripperEditor::instructions() {
    QTest::addColumn<Instruction>("instruction");
    QTest::newRow("close") << closing;
    QTest::newRow("open") << opening;
}

// The same three each time, and one that nobody tried before.
void TestGripperEditor::seeds() {
    QTest::addColumn<Instruction>("instruction");
    QTest::addColumn<uint>("seed");
    for (const uint seed : {1U, 20240506U, 4711U, uint(QRandomGenerator::global()->generate())}) {
        QTest::addRow("close, seed %u", seed) << closing << seed;
        QTest::addRow("open, seed %u", seed) << opening << seed;
    }
}

void TestGripperEditor::aNewEditorHasNoValueAndAWait() {
    QFETCH(Instruction, instruction);
    Shown shown(instruction.make());
    QCOMPARE(shown.value()->text(), QString());
    QCOMPARE(shown.value()->findChild<QLineEdit*>()->placeholderText(), QString("not set"));
    QCOMPARE(shown.wait()->value(), 200);
    QCOMPARE(shown.comment()->text(), QString());
    QCOMPARE(shown.reason(), QString());
    QCOMPARE(shown.wrapper.ToString(), lineSkeleton(*instruction.form));
}

void TestGripperEditor::aMissingValueIsRefusedWithAReason() {
    QFETCH(Instruction, instruction);
    Shown shown(instruction.make());
    QVERIFY(!shown.wrapper.CheckInsert());
    const QString range = QString("from 1 to %1 %2").arg(instruction.form->most).arg(instruction.form->unit);
    QVERIFY2(shown.reason().contains(range), qPrintable(shown.reason()));
    QVERIFY(shown.wrapper.findChild<QLabel*>("reason")->isVisible());
}

void TestGripperEditor::aValueTooSmallIsRefused() {
    Shown shown(new CloseGripperEditor);
    shown.value()->setValue(0.9);
    QVERIFY(!shown.wrapper.CheckInsert());
    QCOMPARE(shown.reason(), QString("Force: set a value from 1 to 200 N."));
    shown.value()->setValue(1.0);
    QVERIFY(shown.wrapper.CheckInsert());
}

void TestGripperEditor::anEmptiedFieldIsAMissingValue() {
    Shown shown(new CloseGripperEditor);
    shown.value()->setValue(40);
    QVERIFY(shown.wrapper.CheckInsert());
    shown.value()->selectAll();
    QTest::keyClick(shown.value(), Qt::Key_Delete);
    QVERIFY(!shown.wrapper.CheckInsert());
    QVERIFY(!shown.reason().isEmpty());
    QTest::keyClicks(shown.value(), "25");
    QVERIFY(shown.wrapper.CheckInsert());
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=25N wait=200ms"));
}

void TestGripperEditor::settingTheValueTakesTheReasonAway() {
    Shown shown(new OpenGripperEditor);
    QVERIFY(!shown.wrapper.CheckInsert());
    QVERIFY(!shown.reason().isEmpty());
    shown.value()->setValue(80);
    QCOMPARE(shown.reason(), QString());
}

void TestGripperEditor::theSkeletonLeavesTheValueToThePerson() {
    QFETCH(Instruction, instruction);
    Shown shown(instruction.make());
    shown.value()->setValue(40);
    shown.wrapper.FillWith(lineSkeleton(*instruction.form));
    QCOMPARE(shown.fields(), QString("0|200|"));
    QCOMPARE(shown.reason(), QString());
    QVERIFY(!shown.wrapper.CheckInsert());
    QVERIFY(!shown.wrapper.CheckReplace());
    shown.value()->setValue(40);
    QVERIFY(shown.wrapper.CheckInsert());
    QVERIFY(shown.wrapper.CheckReplace());
}

void TestGripperEditor::aLineIsShownAndChanged() {
    Shown shown(new CloseGripperEditor);
    shown.wrapper.FillWith("  CloseGripper force=12.5N   wait=50ms // softly");
    QCOMPARE(shown.fields(), QString("12.5|50|softly"));
    QVERIFY(shown.wrapper.CheckReplace());
    shown.value()->setValue(40);
    shown.wait()->setValue(0);
    QVERIFY(shown.wrapper.CheckReplace());
    QCOMPARE(shown.wrapper.ToString(), QString("  CloseGripper force=40N wait=0ms // softly"));
    shown.wrapper.FillWith("CloseGripper force=40N wait=0ms");
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=40N wait=0ms"));
}

void TestGripperEditor::theCommentIsKept_data() {
    QTest::addColumn<QString>("comment");
    QTest::newRow("words") << " // as hard as the part allows";
    QTest::newRow("blanks") << " //  a  b ";
    QTest::newRow("quotes and slashes") << " // \"a\" // 'b' \\";
    QTest::newRow("other letters") << QString::fromUtf8(" // 轻 – sanft 🤖");
    QTest::newRow("regular-expression characters") << " // ^(.*)$\\d+[%1]";
    QTest::newRow("an instruction") << " // OpenGripper width=80mm wait=200ms";
    QTest::newRow("very long") << " // " + QString(40000, 'x');
    for (const int length : {32765, 32766, 32767, 32768})
        QTest::addRow("a pair behind %d letters", length)
            << " // " + QString(length, 'x') + QString::fromUtf8("🤖") + "tail";
}

void TestGripperEditor::theCommentIsKept() {
    QFETCH(QString, comment);
    Shown shown(new CloseGripperEditor);
    shown.wrapper.FillWith("CloseGripper force=40N wait=200ms" + comment);
    QVERIFY(shown.wrapper.CheckReplace());
    QCOMPARE(shown.wrapper.ToString(), "CloseGripper force=40N wait=200ms" + comment);
}

void TestGripperEditor::aPastedCommentStaysOnOneLine() {
    Shown shown(new CloseGripperEditor);
    shown.value()->setValue(40);
    shown.comment()->insert("softly\nMoveJ P1");
    QCOMPARE(shown.comment()->displayText(), QString("softly MoveJ P1"));
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=40N wait=200ms // softly MoveJ P1"));
}

// The field does not interfere with what the person is doing in it.
void TestGripperEditor::aPastedCommentLeavesCursorAndUndoAlone() {
    Shown shown(new CloseGripperEditor);
    shown.value()->setValue(40);
    QTest::keyClicks(shown.comment(), "abcd");
    shown.comment()->setCursorPosition(2);
    shown.comment()->insert("x\ny");
    QCOMPARE(shown.comment()->cursorPosition(), 5);
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=40N wait=200ms // abx ycd"));
    shown.comment()->undo();
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=40N wait=200ms // abcd"));
    shown.comment()->redo();
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=40N wait=200ms // abx ycd"));
}

void TestGripperEditor::aCommentThatIsNoTextIsRefused_data() {
    QTest::addColumn<QString>("comment");
    QTest::newRow("first half") << "a" + QString(QChar(0xd83e));
    QTest::newRow("second half") << QString(QChar(0xdd16)) + "a";
    QTest::newRow("after a line break") << "a\nMoveJ P1" + QString(QChar(0xd83e)) + "tail";
}

void TestGripperEditor::aCommentThatIsNoTextIsRefused() {
    QFETCH(QString, comment);
    Shown shown(new CloseGripperEditor);
    shown.wrapper.FillWith("CloseGripper force=40N wait=200ms");
    shown.comment()->setText(comment);
    QVERIFY(!shown.wrapper.CheckInsert());
    QVERIFY(!shown.wrapper.CheckReplace());
    QVERIFY2(shown.reason().startsWith("Comment: "), qPrintable(shown.reason()));
    QVERIFY(!shown.wrapper.ToString().contains('\n'));
    shown.comment()->setText("a");
    QCOMPARE(shown.reason(), QString());
    QVERIFY(shown.wrapper.CheckInsert());
    QVERIFY(shown.wrapper.CheckReplace());
}

void TestGripperEditor::aForeignLineIsNotReplaced_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("nothing") << "";
    QTest::newRow("another instruction") << "OpenGripper width=80mm wait=200ms";
    QTest::newRow("the bare name") << "CloseGripper";
    QTest::newRow("other letters") << QString::fromUtf8("夹爪 öffnen 🤖");
    QTest::newRow("very long") << QString(1000000, 'x');
}

void TestGripperEditor::aForeignLineIsNotReplaced() {
    QFETCH(QString, line);
    Shown shown(new CloseGripperEditor);
    shown.wrapper.FillWith("CloseGripper force=40N wait=50ms // softly");
    shown.wrapper.FillWith(line);
    QCOMPARE(shown.fields(), QString("0|200|"));
    const QString reason = "The line in the program is none of CloseGripper and stays.";
    QCOMPARE(shown.reason(), reason);
    shown.value()->setValue(40);
    QCOMPARE(shown.reason(), reason);
    QVERIFY(!shown.wrapper.CheckReplace());
    QCOMPARE(shown.reason(), reason);
    QVERIFY(shown.wrapper.CheckInsert());
    QCOMPARE(shown.reason(), QString());
}

void TestGripperEditor::withoutALineThereIsNothingToReplace() {
    Shown shown(new CloseGripperEditor);
    shown.value()->setValue(40);
    QVERIFY(!shown.wrapper.CheckReplace());
    QVERIFY(!shown.reason().isEmpty());
}

void TestGripperEditor::aValueOutOfRangeHasToBeSetAgain() {
    Shown shown(new CloseGripperEditor);
    shown.wrapper.FillWith("CloseGripper force=900N wait=50ms // softly");
    QCOMPARE(shown.fields(), QString("0|50|softly"));
    QCOMPARE(shown.reason(), QString("The line says 900 N. Force: set a value from 1 to 200 N."));
    QVERIFY(!shown.wrapper.CheckReplace());
    QCOMPARE(shown.reason(), QString("Force: set a value from 1 to 200 N."));
    shown.wrapper.FillWith("CloseGripper force=0.5N wait=50ms");
    QCOMPARE(shown.reason(), QString("The line says 0.5 N. Force: set a value from 1 to 200 N."));
    shown.value()->setValue(200);
    QCOMPARE(shown.reason(), QString());
    QVERIFY(shown.wrapper.CheckReplace());
}

void TestGripperEditor::theKeysOfTheFieldsCanBeUsed() {
    Shown shown(new CloseGripperEditor);
    QTest::keyClick(shown.value(), Qt::Key_Up);
    QTest::keyClick(shown.value(), Qt::Key_Up);
    QTest::keyClick(shown.wait(), Qt::Key_Down);
    QTest::keyClicks(shown.comment(), "softly");
    QCOMPARE(shown.wrapper.ToString(), QString("CloseGripper force=10N wait=150ms // softly"));
}

void TestGripperEditor::everyFieldIsAsHighAsAFinger() {
    Shown shown(new CloseGripperEditor);
    for (QWidget* field : {static_cast<QWidget*>(shown.value()), static_cast<QWidget*>(shown.wait()),
                           static_cast<QWidget*>(shown.comment())})
        QVERIFY2(field->height() >= 56, qPrintable(field->objectName()));
}

void TestGripperEditor::whatTheWidgetAcceptsSurvivesTheLine() {
    QFETCH(Instruction, instruction);
    QFETCH(uint, seed);
    QRandomGenerator dice(seed);
    const QRegularExpression pattern(linePattern(*instruction.form));
    Shown written(instruction.make());
    Shown read(instruction.make());
    int accepted = 0;
    for (int i = 0; i < 500; ++i) {
        written.value()->setValue(dice.bounded(instruction.form->most * 1.2) - 5.0);
        written.wait()->setValue(dice.bounded(12000) - 1000);
        written.comment()->setText(anyText(dice));
        if (!written.wrapper.CheckInsert())
            continue;
        ++accepted;
        const QString line = written.wrapper.ToString();
        QVERIFY2(pattern.match(line).hasMatch(), qPrintable(line));
        QCOMPARE(line, onOneLine(line));
        read.wrapper.FillWith(line);
        QVERIFY2(read.wrapper.CheckReplace(), qPrintable(line));
        QCOMPARE(read.fields(), written.fields());
        QCOMPARE(read.wrapper.ToString(), line);
    }
    QVERIFY(accepted > 300 && accepted < 500);
}

// A line of the form with a few letters taken out, put in or exchanged.
void TestGripperEditor::anyLineAtAllIsSurvived() {
    QFETCH(Instruction, instruction);
    QFETCH(uint, seed);
    QRandomGenerator dice(seed);
    Shown shown(instruction.make());
    for (int i = 0; i < 500; ++i) {
        QString line = writeLine(*instruction.form, {40, 200, anyText(dice), QString()});
        for (int changes = dice.bounded(3); changes > 0; --changes)
            line.replace(dice.bounded(line.size()), dice.bounded(3), anyText(dice).left(2));
        shown.wrapper.FillWith(line);
        GripperLine expected;
        const bool isOurs = readLine(*instruction.form, line, &expected);
        const bool isInForm = isInRange(*instruction.form, expected.value);
        QCOMPARE(shown.wrapper.CheckReplace(), isOurs && isInForm);
        QCOMPARE(shown.fields(), QStringLiteral("%1|%2|").arg(isInForm ? expected.value : 0.0).arg(expected.waitMs) +
                                     onOneLine(expected.comment));
    }
}

void TestGripperEditor::anyLineAtAllIsSurvived_data() {
    seeds();
}

void TestGripperEditor::whatTheWidgetAcceptsSurvivesTheLine_data() {
    seeds();
}

QTEST_MAIN(TestGripperEditor)
#include "tst_grippereditor.moc"
