#include "editorbench.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

// A person writes a program with the instructions of a plugin, with fingers and keys.
class TestEditorGripper : public EditorTest {
    Q_OBJECT

private slots:
    void aLineIsInsertedAsTheWidgetSaysIt();
    void aLineIsFilledInWithTapsAndKeys();
    void aLineThatTheWidgetRefusesIsNotInsertedAndThePersonIsTold();
    void theLineOfTheCursorIsShownByItsWidget();
    void anEditedLineTakesThePlaceOfTheOld();
    void aRefusedEditLeavesTheLine();
    void revertShowsTheLineAsItIs();
    void everyStepIsUndoneAndDoneAgain();
    void aLineIsMovedAndDeleted();
    void whatWasSavedIsThereInANewPendant();
    void linesOfHostAndPluginStandBesideEachOther();
    void aCommentOfThePersonIsKept();

private:
    static void insertClose(const Editor& editor, double force) {
        QVERIFY(editor.pick("CloseGripper"));
        editor.field<QDoubleSpinBox>("value")->setValue(force);
        QVERIFY(editor.press("acceptLine"));
    }
};

void TestEditorGripper::aLineIsInsertedAsTheWidgetSaysIt() {
    const Editor editor;
    QVERIFY(editor.pick("CloseGripper"));
    QCOMPARE(editor.text("editorTitle"), QString("CloseGripper"));
    QCOMPARE(editor.text("editorPlace"), QString("Becomes the first line"));
    editor.field<QDoubleSpinBox>("value")->setValue(40);
    editor.field<QSpinBox>("wait")->setValue(300);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"CloseGripper force=40N wait=300ms"});
    QCOMPARE(editor.row(), 0);
    QCOMPARE(editor.text("editorPlace"), QString("Line 1"));
    QCOMPARE(problems(), QStringList());
}

void TestEditorGripper::aLineIsFilledInWithTapsAndKeys() {
    const Editor editor;
    QVERIFY(editor.pick("CloseGripper"));
    auto* value = editor.field<QDoubleSpinBox>("value")->findChild<QLineEdit*>();
    QTest::mouseClick(value, Qt::LeftButton);
    QTest::keyClicks(value->window()->focusWidget(), "40");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"CloseGripper force=40N wait=200ms"});
    // The widget of the line that came.
    value = editor.field<QDoubleSpinBox>("value")->findChild<QLineEdit*>();
    QTest::mouseClick(value, Qt::LeftButton);
    QTest::keyClick(value->window()->focusWidget(), Qt::Key_End);
    for (int i = 0; i < QString("40.0").size(); ++i)
        QTest::keyClick(value->window()->focusWidget(), Qt::Key_Backspace);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"CloseGripper force=40N wait=200ms"});
    QCOMPARE(editor.notice(), QString("“CloseGripper” refuses this line."));
    QTest::mouseClick(value, Qt::LeftButton);
    QTest::keyClicks(value->window()->focusWidget(), "7.5");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"CloseGripper force=7.5N wait=200ms"});
}

void TestEditorGripper::aLineThatTheWidgetRefusesIsNotInsertedAndThePersonIsTold() {
    const Editor editor;
    QVERIFY(editor.pick("CloseGripper"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList());
    QCOMPARE(editor.notice(), QString("“CloseGripper” refuses this line."));
    QVERIFY(!editor.field<QLabel>("reason")->text().isEmpty());
    editor.field<QDoubleSpinBox>("value")->setValue(5);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines().size(), 1);
    QCOMPARE(editor.notice(), QString());
}

void TestEditorGripper::theLineOfTheCursorIsShownByItsWidget() {
    write({"OpenGripper width=80mm wait=200ms", "CloseGripper force=12.5N wait=10ms // soft"});
    const Editor editor;
    QCOMPARE(editor.text("editorTitle"), QString("OpenGripper"));
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 80.0);
    editor.select(1);
    QCOMPARE(editor.text("editorTitle"), QString("CloseGripper"));
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 12.5);
    QCOMPARE(editor.field<QSpinBox>("wait")->value(), 10);
    editor.type(Qt::Key_Up);
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 80.0);
}

void TestEditorGripper::anEditedLineTakesThePlaceOfTheOld() {
    write({"Wait 5 ms", "CloseGripper force=12N wait=10ms"});
    const Editor editor;
    editor.select(1);
    editor.field<QDoubleSpinBox>("value")->setValue(60);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Wait 5 ms", "CloseGripper force=60N wait=10ms"}));
    QCOMPARE(editor.row(), 1);
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 60.0);
}

void TestEditorGripper::aRefusedEditLeavesTheLine() {
    write({"CloseGripper force=12N wait=10ms"});
    const Editor editor;
    editor.field<QDoubleSpinBox>("value")->setValue(0);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"CloseGripper force=12N wait=10ms"});
    QCOMPARE(editor.notice(), QString("“CloseGripper” refuses this line."));
    QVERIFY(!editor.isEnabled("saveProgram"));
}

void TestEditorGripper::revertShowsTheLineAsItIs() {
    write({"CloseGripper force=12N wait=10ms"});
    const Editor editor;
    editor.field<QDoubleSpinBox>("value")->setValue(0);
    editor.press("acceptLine");
    QVERIFY(editor.press("rejectLine"));
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 12.0);
    QCOMPARE(editor.notice(), QString());
}

void TestEditorGripper::everyStepIsUndoneAndDoneAgain() {
    const Editor editor;
    insertClose(editor, 40);
    editor.field<QDoubleSpinBox>("value")->setValue(50);
    QVERIFY(editor.press("acceptLine"));
    const QString first = "CloseGripper force=40N wait=200ms";
    const QString second = "CloseGripper force=50N wait=200ms";
    QCOMPARE(editor.lines(), QStringList{second});
    editor.type(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.lines(), QStringList{first});
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 40.0);
    QVERIFY(editor.press("undoStep"));
    QCOMPARE(editor.lines(), QStringList());
    QVERIFY(!editor.content());
    QVERIFY(!editor.isEnabled("undoStep"));
    QVERIFY(editor.press("redoStep"));
    editor.type(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(editor.lines(), QStringList{second});
    QCOMPARE(editor.field<QDoubleSpinBox>("value")->value(), 50.0);
    QVERIFY(!editor.isEnabled("redoStep"));
}

void TestEditorGripper::aLineIsMovedAndDeleted() {
    write({"Wait 1 ms", "Wait 2 ms"});
    const Editor editor;
    insertClose(editor, 40);
    const QString close = "CloseGripper force=40N wait=200ms";
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", close, "Wait 2 ms"}));
    QVERIFY(editor.press("moveLineUp"));
    QCOMPARE(editor.lines(), (QStringList{close, "Wait 1 ms", "Wait 2 ms"}));
    QCOMPARE(editor.row(), 0);
    QVERIFY(!editor.isEnabled("moveLineUp"));
    editor.type(Qt::Key_Down, Qt::ControlModifier);
    editor.type(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", "Wait 2 ms", close}));
    QCOMPARE(editor.row(), 2);
    QVERIFY(!editor.isEnabled("moveLineDown"));
    editor.type(Qt::Key_Delete);
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", "Wait 2 ms"}));
    QCOMPARE(editor.row(), 1);
    QVERIFY(editor.press("deleteLine"));
    QVERIFY(editor.press("deleteLine"));
    QCOMPARE(editor.lines(), QStringList());
    QVERIFY(!editor.isEnabled("deleteLine"));
}

void TestEditorGripper::whatWasSavedIsThereInANewPendant() {
    {
        const Editor editor;
        insertClose(editor, 40);
        editor.field<QDoubleSpinBox>("value")->setValue(55);
        QVERIFY(editor.press("acceptLine"));
        editor.press("undoStep");
        QVERIFY(editor.press("saveProgram"));
    }
    QCOMPARE(read(), QString("CloseGripper force=40N wait=200ms\n"));
    const Editor again;
    QCOMPARE(again.lines(), QStringList{"CloseGripper force=40N wait=200ms"});
    QCOMPARE(again.text("editorTitle"), QString("CloseGripper"));
    QCOMPARE(again.field<QDoubleSpinBox>("value")->value(), 40.0);
    QVERIFY(!again.isEnabled("undoStep"));
}

void TestEditorGripper::linesOfHostAndPluginStandBesideEachOther() {
    const Editor editor;
    QVERIFY(editor.pick("Wait"));
    QVERIFY(editor.press("acceptLine"));
    insertClose(editor, 40);
    QVERIFY(editor.pick("Comment"));
    editor.field<QLineEdit>("commentText")->setText("held");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Wait 500 ms", "CloseGripper force=40N wait=200ms", "// held"}));
}

void TestEditorGripper::aCommentOfThePersonIsKept() {
    write({"  CloseGripper force=12N wait=10ms // do not \"drop\" it // ever"});
    const Editor editor;
    editor.field<QDoubleSpinBox>("value")->setValue(13);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"  CloseGripper force=13N wait=10ms // do not \"drop\" it // ever"});
}

PENDANT_TEST_MAIN(TestEditorGripper)
#include "tst_editor_gripper.moc"
