#include "editorbench.h"

#include <QSpinBox>

// What the page shows and does about the file of the program.
class TestEditorSaving : public EditorTest {
    Q_OBJECT

private slots:
    void withoutAProjectThePageSaysSo();
    void aProjectThatLeadsNowhereIsTold();
    void theProgramOfTheProjectIsThereWhenItIsKnown();
    void anotherProjectHasAnotherProgram();
    void whatIsNotSavedIsMarked();
    void savingBySmallKeysWorksToo();
    void aFailureSaysWhatHappenedAndKeepsEverything();
    void changesOfAPendantThatWentDownAreTakenUpAndTold();
    void whatIsToldOnOpeningStaysOnThePage();
    void aNoticeThatIsNoLongerTrueGoes();
    void aProgramThatCannotBeReadIsToldAndTriedAgain();
    void aWindowThatIsMinimisedKeepsItsWidget();

private:
    static void change(const Editor& editor) {
        QVERIFY(editor.pick("Comment"));
        editor.field<QLineEdit>("commentText")->setText("new");
        QVERIFY(editor.press("acceptLine"));
    }
    static QString words(const Editor& editor) {
        QStringList texts;
        for (const QLabel* label : editor.page()->findChildren<QLabel*>()) {
            if (label->isVisible())
                texts << label->text();
        }
        return texts.join('\n');
    }
};

void TestEditorSaving::withoutAProjectThePageSaysSo() {
    m("orca")->clear(nullptr, true, true);
    const Editor editor;
    QVERIFY2(words(editor).contains("No program is open"), qPrintable(words(editor)));
    QVERIFY(!editor.list()->isVisible());
    QVERIFY(!editor.find("insertLine"));
    QVERIFY(!editor.find("saveProgram"));
    QVERIFY(!editor.find("openAgain"));
    QVERIFY(words(editor).contains("on the page “Projects”"));
    editor.type(Qt::Key_Insert);
    QVERIFY(!editor.picker());
}

void TestEditorSaving::aProjectThatLeadsNowhereIsTold() {
    setProject("../elsewhere");
    const Editor editor;
    QVERIFY(!editor.page()->store()->problem().isEmpty());
    QVERIFY2(words(editor).contains(editor.page()->store()->problem()), qPrintable(words(editor)));
}

void TestEditorSaving::theProgramOfTheProjectIsThereWhenItIsKnown() {
    m("orca")->clear(nullptr, true, true);
    write({"Wait 5 ms"});
    const Editor editor;
    setProject("demo");
    QCOMPARE(editor.lines(), QStringList{"Wait 5 ms"});
    QCOMPARE(editor.row(), 0);
    QCOMPARE(editor.field<QSpinBox>("waitTime")->value(), 5);
    QCOMPARE(editor.text("programState"), QString("demo / main"));
}

void TestEditorSaving::anotherProjectHasAnotherProgram() {
    write({"Wait 5 ms"});
    write({"// other", "Wait 6 ms"}, "other");
    const Editor editor;
    editor.press("insertLine");
    setProject("other");
    QCOMPARE(editor.lines(), (QStringList{"// other", "Wait 6 ms"}));
    QVERIFY(!editor.picker());
    QCOMPARE(editor.text("editorTitle"), QString("Comment"));
    setProject("demo");
    QCOMPARE(editor.lines(), QStringList{"Wait 5 ms"});
}

void TestEditorSaving::whatIsNotSavedIsMarked() {
    write({"Wait 5 ms"});
    const Editor editor;
    QVERIFY(!editor.isEnabled("saveProgram"));
    change(editor);
    QCOMPARE(editor.text("programState"), QString::fromUtf8("● demo / main, not saved"));
    QVERIFY(editor.press("saveProgram"));
    QCOMPARE(editor.text("programState"), QString("demo / main"));
    QVERIFY(!editor.isEnabled("saveProgram"));
    QCOMPARE(read(), QString("Wait 5 ms\n// new\n"));
    editor.press("undoStep");
    QVERIFY(editor.isEnabled("saveProgram"));
    editor.press("redoStep");
    QVERIFY(!editor.isEnabled("saveProgram"));
}

void TestEditorSaving::savingBySmallKeysWorksToo() {
    const Editor editor;
    change(editor);
    editor.type(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(read(), QString("// new\n"));
}

void TestEditorSaving::aFailureSaysWhatHappenedAndKeepsEverything() {
    const Editor editor;
    change(editor);
    // A folder in the place of the file.
    QVERIFY(QDir().mkpath(fileOf() + "/in the way"));
    expect("pendant: ");
    QVERIFY(editor.press("saveProgram"));
    QVERIFY2(editor.text("programNotice").contains("main.txt"), qPrintable(editor.text("programNotice")));
    QCOMPARE(problems().size(), 1);
    QVERIFY(editor.isEnabled("saveProgram"));
    QCOMPARE(editor.lines(), QStringList{"// new"});
    QVERIFY(QDir(fileOf()).removeRecursively());
    QVERIFY(editor.press("saveProgram"));
    QCOMPARE(editor.text("programNotice"), QString());
    QCOMPARE(read(), QString("// new\n"));
}

void TestEditorSaving::changesOfAPendantThatWentDownAreTakenUpAndTold() {
    write({"Wait 5 ms"});
    {
        const Editor editor;
        change(editor);
    }
    QCOMPARE(read(), QString("Wait 5 ms\n"));
    const Editor again;
    QCOMPARE(again.lines(), (QStringList{"Wait 5 ms", "// new"}));
    QVERIFY2(again.text("programNotice").contains("not saved"), qPrintable(again.text("programNotice")));
    QVERIFY(again.isEnabled("saveProgram"));
    again.press("undoStep");
    QCOMPARE(again.lines(), QStringList{"Wait 5 ms"});
    QCOMPARE(again.text("programNotice"), QString());
}

void TestEditorSaving::whatIsToldOnOpeningStaysOnThePage() {
    write({"Wait 5 ms"});
    QFile unsaved(fileOf() + ".unsaved");
    QVERIFY(unsaved.open(QIODevice::WriteOnly) && unsaved.write("\xff") == 1);
    unsaved.close();
    expect("pendant: ");
    const Editor editor;
    QVERIFY2(editor.text("programNotice").contains(".unreadable"), qPrintable(editor.text("programNotice")));
    setProject("other");
    QCOMPARE(editor.text("programNotice"), QString());
}

void TestEditorSaving::aNoticeThatIsNoLongerTrueGoes() {
    write({"Wait 5 ms"});
    const Editor editor;
    change(editor);
    QVERIFY(QDir().mkpath(fileOf() + ".unsaved/in the way"));
    expect("pendant: ");
    QTRY_VERIFY(editor.text("programNotice").contains(".unsaved"));
    QVERIFY(QDir(fileOf() + ".unsaved").removeRecursively());
    QTRY_COMPARE(editor.text("programNotice"), QString());
}

void TestEditorSaving::aProgramThatCannotBeReadIsToldAndTriedAgain() {
    write({"Wait 5 ms"});
    QVERIFY(QFile::rename("workspace", "away"));
    const Editor editor;
    QVERIFY2(words(editor).contains("The program cannot be read"), qPrintable(words(editor)));
    QVERIFY(editor.press("openAgain"));
    QVERIFY(editor.find("openAgain"));
    QVERIFY(QFile::rename("away", "workspace"));
    QVERIFY(editor.press("openAgain"));
    QCOMPARE(editor.lines(), QStringList{"Wait 5 ms"});
    QVERIFY(!editor.find("openAgain"));
}

void TestEditorSaving::aWindowThatIsMinimisedKeepsItsWidget() {
    write({"Good"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText("Good typed");
    editor.frame.window->showMinimized();
    settle();
    QCOMPARE(living(), 1);
    QCOMPARE(editor.field<QLineEdit>("oddField")->text(), QString("Good typed"));
}

PENDANT_TEST_MAIN(TestEditorSaving)
#include "tst_editor_saving.moc"
