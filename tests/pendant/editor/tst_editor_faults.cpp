#include "editorbench.h"

#include "helm/vexmanager.h"

#include <QDialog>
#include <QTimer>

using helm::VexManager;

// Whatever the widgets of plugins do, it is told and the editor goes on.
class TestEditorFaults : public EditorTest {
    Q_OBJECT

private slots:
    void aWidgetThatCannotBeMadeForANewLineIsTold_data();
    void aWidgetThatCannotBeMadeForANewLineIsTold();
    void aWidgetThatCannotBeMadeForALineIsTold_data() { aWidgetThatCannotBeMadeForANewLineIsTold_data(); }
    void aWidgetThatCannotBeMadeForALineIsTold();
    void aTypeWithoutACreatorIsToldAndNothingIsReported();
    void aHostCreatorThatMakesNothingIsTold();
    void whatACallThrowsIsReported_data();
    void whatACallThrowsIsReported();
    void whatFillingThrowsIsReported();
    void whatReplacingThrowsLeavesTheLine();
    void aContentThatDeletesItselfIsSurvived_data();
    void aContentThatDeletesItselfIsSurvived();
    void aWrapperThatIsDeletedInACallIsSurvived();
    void aLineThatIsLeftDuringACallIsNotWritten_data();
    void aLineThatIsLeftDuringACallIsNotWritten();
    void anInsertionIsGivenUpWhenThePageIsLeft();
    void aLineThatNoProgramCanHoldIsRefused();
    void aLineThatItsOwnPatternDoesNotMatchIsWrittenWithAWarning();
    void anEmptyLineIsNotTaken_data();
    void anEmptyLineIsNotTaken();
    void anEmptyLineThatThePatternMatchesIsTaken();
    void aDialogOfAContentOutlivesTheProject();
    void aContentThatGoesBetweenCallsIsTold_data();
    void aContentThatGoesBetweenCallsIsTold();
    void aContentWithAnotherParentIsCalled();
    void aRefusalWithoutAReasonSaysSo();
    void whatIsNotAppliedIsTold_data();
    void whatIsNotAppliedIsTold();
    void whatIsAppliedIsNotToldOf();
    void aBadPatternIsReportedOnce();
    void widgetsGoWhenTheyAreLeft_data();
    void widgetsGoWhenTheyAreLeft();

private:
    // The editor works as ever.
    static void checkAlive(const Editor& editor) {
        const int count = editor.lines().size();
        if (editor.isEnabled("insertLine") || editor.press("rejectLine"))
            QVERIFY(editor.pick("Wait"));
        QVERIFY(editor.press("acceptLine"));
        QCOMPARE(editor.lines().size(), count + 1);
        QVERIFY(editor.lines().contains("Wait 500 ms"));
    }
    static bool hasProblem(const QString& type, const QString& part) {
        const QStringList found = problems().filter(type + ": ").filter(part);
        return found.size() == 1;
    }
};

void TestEditorFaults::aWidgetThatCannotBeMadeForANewLineIsTold_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("reported");
    QTest::newRow("throws") << "ThrowsMaking"
                            << "Its creator threw: nothing is made here";
    QTest::newRow("throws a number") << "ThrowsNumber"
                                     << "Its creator threw: a value of type int";
    QTest::newRow("empty factory") << "HasNoFactory"
                                   << "Its creator threw: bad_function_call";
}

void TestEditorFaults::aWidgetThatCannotBeMadeForANewLineIsTold() {
    QFETCH(QString, type);
    QFETCH(QString, reported);
    const Editor editor;
    expect(type + ": " + reported);
    QVERIFY(editor.pick(type));
    QVERIFY2(hasProblem(type, reported), qPrintable(problems().join('\n')));
    QCOMPARE(editor.notice(), QString("“%1” could not be opened. The messages say why.").arg(type));
    QVERIFY(!editor.content());
    QVERIFY(!editor.find("acceptLine"));
    QVERIFY(editor.press("rejectLine"));
    checkAlive(editor);
}

void TestEditorFaults::aWidgetThatCannotBeMadeForALineIsTold() {
    QFETCH(QString, type);
    QFETCH(QString, reported);
    write({type, "Wait 1 ms"});
    expect(type + ": " + reported);
    const Editor editor;
    QVERIFY2(hasProblem(type, reported), qPrintable(problems().join('\n')));
    QCOMPARE(editor.notice(), QString("“%1” could not be opened. The messages say why.").arg(type));
    QVERIFY(editor.press("moveLineDown"));
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", type}));
    QCOMPARE(problems().size(), 1);
    checkAlive(editor);
}

void TestEditorFaults::aTypeWithoutACreatorIsToldAndNothingIsReported() {
    write({"HasNothing"});
    const Editor editor;
    QCOMPARE(editor.notice(), QString("“HasNothing” brings no widget to edit its lines."));
    QVERIFY(editor.pick("HasNothing"));
    QCOMPARE(editor.notice(), QString("“HasNothing” brings no widget to insert it with."));
    QVERIFY(!editor.find("acceptLine"));
    QVERIFY(editor.press("rejectLine"));
    QCOMPARE(problems(), QStringList());
    checkAlive(editor);
}

void TestEditorFaults::aHostCreatorThatMakesNothingIsTold() {
    const helm::WidgetCreator before = VexManager::getVexManager()->insertWidgets.value("Good");
    VexManager::getVexManager()->insertWidgets["Good"] = [](QWidget*) -> helm::BaseContentWidget* { return nullptr; };
    const Editor editor;
    expect("Good: Its creator made no widget.");
    QVERIFY(editor.pick("Good"));
    QCOMPARE(editor.notice(), QString("“Good” could not be opened. The messages say why."));
    VexManager::getVexManager()->insertWidgets["Good"] = before;
    QVERIFY(editor.press("rejectLine"));
    checkAlive(editor);
}

void TestEditorFaults::whatACallThrowsIsReported_data() {
    QTest::addColumn<QString>("call");
    QTest::newRow("CheckInsert") << "CheckInsert";
    QTest::newRow("ToString") << "ToString";
}

// The widget stays: what it was given can be changed.
void TestEditorFaults::whatACallThrowsIsReported() {
    QFETCH(QString, call);
    const QString type = "Throws" + call;
    const Editor editor;
    QVERIFY(editor.pick(type));
    expect(type + ": " + call + " threw: nothing works in here");
    QVERIFY(editor.press("acceptLine"));
    QVERIFY(hasProblem(type, "threw"));
    QCOMPARE(editor.lines(), QStringList());
    QCOMPARE(editor.notice(), QString("“%1” failed. The messages say why.").arg(type));
    QVERIFY(editor.content());
    checkAlive(editor);
}

void TestEditorFaults::whatFillingThrowsIsReported() {
    write({"ThrowsFillWith"});
    expect("ThrowsFillWith: FillWith threw: nothing works in here");
    const Editor editor;
    QCOMPARE(editor.notice(), QString("“ThrowsFillWith” could not be opened. The messages say why."));
    QVERIFY(!editor.content());
    checkAlive(editor);
}

void TestEditorFaults::whatReplacingThrowsLeavesTheLine() {
    write({"ThrowsCheckReplace"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText("another");
    expect("ThrowsCheckReplace: CheckReplace threw: nothing works in here");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"ThrowsCheckReplace"});
    checkAlive(editor);
}

void TestEditorFaults::aContentThatDeletesItselfIsSurvived_data() {
    QTest::addColumn<QString>("call");
    for (const char* call : {"FillWith", "CheckInsert", "ToString"})
        QTest::newRow(call) << QString(call);
}

void TestEditorFaults::aContentThatDeletesItselfIsSurvived() {
    QFETCH(QString, call);
    const QString type = "Deletes" + call;
    const Editor editor;
    expect(type + ": Its widget deleted itself in " + call);
    QVERIFY(editor.pick(type));
    editor.press("acceptLine");
    QVERIFY(hasProblem(type, "deleted itself"));
    QVERIFY(!editor.content());
    QVERIFY(!editor.notice().isEmpty());
    QCOMPARE(editor.lines(), QStringList());
    checkAlive(editor);
}

void TestEditorFaults::aWrapperThatIsDeletedInACallIsSurvived() {
    // The library's wrapper asks its content for nothing more in CheckInsert.
    const Editor editor;
    QVERIFY(editor.pick("DeletesWrapper"));
    expect("DeletesWrapper: Its widget deleted itself in CheckInsert");
    QVERIFY(editor.press("acceptLine"));
    QVERIFY(!editor.content());
    QCOMPARE(editor.lines(), QStringList());
    checkAlive(editor);
}

void TestEditorFaults::aLineThatIsLeftDuringACallIsNotWritten_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("leaving");
    for (const char* call : {"CheckInsert", "ToString"}) {
        for (const char* leaving : {"page", "project"})
            QTest::newRow(qPrintable(QString(call) + ' ' + leaving)) << QString("Asks") + call << leaving;
    }
}

void TestEditorFaults::aLineThatIsLeftDuringACallIsNotWritten() {
    QFETCH(QString, type);
    QFETCH(QString, leaving);
    Editor editor;
    QVERIFY(editor.pick(type));
    QTimer::singleShot(0, [&] {
        if (leaving == "page")
            editor.leave();
        else
            setProject("another");
        settle();
        // The content is in the call still.
        QCOMPARE(living(), 1);
        qApp->activeModalWidget()->close();
    });
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(living(), 0);
    QCOMPARE(editor.lines(), QStringList());
    editor.show();
    QCOMPARE(problems(), QStringList());
    checkAlive(editor);
}

void TestEditorFaults::anInsertionIsGivenUpWhenThePageIsLeft() {
    Editor editor;
    QVERIFY(editor.pick("Good"));
    editor.leave();
    settle();
    QCOMPARE(living(), 0);
    editor.show();
    QVERIFY(editor.isEnabled("insertLine"));
    QVERIFY(!editor.content());
}

void TestEditorFaults::aLineThatNoProgramCanHoldIsRefused() {
    const helm::WidgetCreator before = VexManager::getVexManager()->insertWidgets.value("Good");
    struct Breaking : helm::BaseContentWidget {
        explicit Breaking(QWidget* parent) : BaseContentWidget(parent) {}
        QString ToString() override { return "Good\nGood"; }
        bool CheckInsert() override { return true; }
    };
    VexManager::getVexManager()->insertWidgets["Good"] = [](QWidget* parent) { return new Breaking(parent); };
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    QVERIFY(editor.press("acceptLine"));
    VexManager::getVexManager()->insertWidgets["Good"] = before;
    QCOMPARE(editor.lines(), QStringList());
    QCOMPARE(editor.notice(), pendant::Program::refusalOf("\n"));
    checkAlive(editor);
}

void TestEditorFaults::aLineThatItsOwnPatternDoesNotMatchIsWrittenWithAWarning() {
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    editor.field<QLineEdit>("oddField")->setText("something else");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"something else"});
    QVERIFY(hasProblem("Good", "something else"));
    QVERIFY2(editor.notice().startsWith("The pattern of “Good” does not match"), qPrintable(editor.notice()));
    QVERIFY(editor.pick("Good"));
    editor.field<QLineEdit>("oddField")->setText("Good again");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(problems().size(), 1);
    QCOMPARE(editor.notice(), QString());
}

void TestEditorFaults::anEmptyLineIsNotTaken_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "  \t";
}

void TestEditorFaults::anEmptyLineIsNotTaken() {
    QFETCH(QString, line);
    write({"Good 1"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText(line);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"Good 1"});
    QCOMPARE(editor.notice(), QString("“Good” made an empty line, which was not taken."));
    QVERIFY(editor.pick("MakesNothing"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"Good 1"});
    QVERIFY(hasProblem("MakesNothing", "empty line"));
    checkAlive(editor);
}

void TestEditorFaults::anEmptyLineThatThePatternMatchesIsTaken() {
    const QString before = VexManager::getVexManager()->patterns.value("c_Good");
    VexManager::getVexManager()->patterns["c_Good"] = "^(Good.*)?$";
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    editor.field<QLineEdit>("oddField")->clear();
    QVERIFY(editor.press("acceptLine"));
    VexManager::getVexManager()->patterns["c_Good"] = before;
    QCOMPARE(editor.lines(), QStringList{""});
}

// Its own button, not a call of the editor, has opened the dialog.
void TestEditorFaults::aDialogOfAContentOutlivesTheProject() {
    write({"Good 1"});
    write({"Wait 1 ms"}, "another");
    const Editor editor;
    const QPointer<QWidget> content(editor.content());
    bool isAliveInDialog = false;
    QTimer::singleShot(0, [&] {
        setProject("another");
        QTest::qWait(200);
        isAliveInDialog = content;
        qApp->activeModalWidget()->close();
    });
    const QPointer<QDialog> dialog(new QDialog(editor.field<QLineEdit>("oddField")));
    dialog->exec();
    QVERIFY(isAliveInDialog);
    QVERIFY(dialog);
    QTRY_VERIFY(!content);
    QVERIFY(!dialog);
    QCOMPARE(living(), 0);
    QCOMPARE(editor.lines(), QStringList{"Wait 1 ms"});
    checkAlive(editor);
}

void TestEditorFaults::aContentThatGoesBetweenCallsIsTold_data() {
    QTest::addColumn<bool>("hasDialog");
    QTest::newRow("nothing else there") << false;
    QTest::newRow("a dialog there") << true;
}

void TestEditorFaults::aContentThatGoesBetweenCallsIsTold() {
    QFETCH(bool, hasDialog);
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    QWidget* content = editor.field<QLineEdit>("oddField")->parentWidget();
    if (hasDialog)
        new QDialog(content->parentWidget());
    delete content;
    settle();
    expect("Good: Its widget deleted itself.");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList());
    QCOMPARE(editor.notice(), QString("“Good” failed. The messages say why."));
    QVERIFY(!editor.find("acceptLine"));
    checkAlive(editor);
}

void TestEditorFaults::aContentWithAnotherParentIsCalled() {
    QWidget elsewhere;
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    auto* field = editor.field<QLineEdit>("oddField");
    field->setText("Good elsewhere");
    field->parentWidget()->setParent(&elsewhere);
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"Good elsewhere"});
}

void TestEditorFaults::aRefusalWithoutAReasonSaysSo() {
    write({"Good"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText("refuse");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.notice(), QString("“Good” refuses this line. The instruction gives no reason."));
    QVERIFY(editor.pick("Assign"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.notice(), QString("“Assign” refuses this line."));
}

void TestEditorFaults::whatIsNotAppliedIsTold_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("leaving");
    QTest::addColumn<QString>("told");
    const QString line = "Not applied: what was entered in line 1 is not in the program.";
    QTest::newRow("line") << ""
                          << "line" << line;
    QTest::newRow("page") << ""
                          << "page" << line;
    QTest::newRow("insertion") << ""
                               << "picker" << line;
    QTest::newRow("new line") << "Good"
                              << "page"
                              << "Not inserted: the line of “Good” that was begun.";
}

void TestEditorFaults::whatIsNotAppliedIsTold() {
    QFETCH(QString, type);
    QFETCH(QString, leaving);
    QFETCH(QString, told);
    write({"Good 1", "Wait 1 ms"});
    Editor editor;
    QVERIFY(type.isEmpty() || editor.pick(type));
    QVERIFY(!editor.find("lineUnapplied"));
    QTest::keyClicks(editor.field<QLineEdit>("oddField"), "2");
    settle();
    QCOMPARE(editor.find("lineUnapplied") != nullptr, type.isEmpty());
    if (leaving == "line")
        editor.select(1);
    if (leaving == "picker")
        editor.press("insertLine");
    if (leaving == "page") {
        editor.leave();
        settle();
        editor.show();
    }
    QCOMPARE(editor.text("programNotice"), told);
    QVERIFY(!editor.find("lineUnapplied"));
    QCOMPARE(editor.lines(), (QStringList{"Good 1", "Wait 1 ms"}));
}

void TestEditorFaults::whatIsAppliedIsNotToldOf() {
    write({"Good 1", "Wait 1 ms"});
    const Editor editor;
    QTest::keyClicks(editor.field<QLineEdit>("oddField"), "2");
    settle();
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines().first(), QString("Good 12"));
    QCOMPARE(editor.text("programNotice"), QString());
    // Typed and taken back: it is as it was.
    QTest::keyClicks(editor.field<QLineEdit>("oddField"), "3");
    QTest::keyClick(editor.field<QLineEdit>("oddField"), Qt::Key_Backspace);
    settle();
    QVERIFY(!editor.find("lineUnapplied"));
    editor.select(1);
    QCOMPARE(editor.text("programNotice"), QString());
}

void TestEditorFaults::aBadPatternIsReportedOnce() {
    const QString before = VexManager::getVexManager()->patterns.value("c_Bare");
    VexManager::getVexManager()->patterns["c_Bare"] = "^Bare(";
    write({"Bare", "Bare"});
    expect("Bare: ");
    Editor editor;
    QVERIFY(hasProblem("Bare", "missing closing parenthesis"));
    editor.select(1);
    editor.leave();
    editor.show();
    editor.press("insertLine");
    editor.press("cancelPicking");
    QCOMPARE(problems().size(), 1);
    QCOMPARE(editor.text("editorTitle"), QString("No instruction knows this line"));
    VexManager::getVexManager()->patterns["c_Bare"] = before;
}

void TestEditorFaults::widgetsGoWhenTheyAreLeft_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"line", "page", "project", "picker", "deleted", "undone", "cancel"})
        QTest::newRow(how) << QString(how);
}

void TestEditorFaults::widgetsGoWhenTheyAreLeft() {
    QFETCH(QString, how);
    write({"Good 1", "Wait 1 ms"});
    Editor editor;
    QCOMPARE(living(), 1);
    if (how == "line")
        editor.select(1);
    if (how == "page")
        editor.leave();
    if (how == "project")
        setProject("another");
    if (how == "picker")
        editor.press("insertLine");
    if (how == "deleted")
        editor.press("deleteLine");
    if (how == "undone") {
        editor.field<QLineEdit>("oddField")->setText("// comment");
        editor.press("acceptLine");
    }
    if (how == "cancel") {
        editor.select(1);
        editor.pick("Good");
        QCOMPARE(living(), 1);
        editor.type(Qt::Key_Escape);
    }
    settle();
    QCOMPARE(living(), 0);
}

PENDANT_TEST_MAIN(TestEditorFaults)
#include "tst_editor_faults.moc"
