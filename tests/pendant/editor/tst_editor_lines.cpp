#include "editorbench.h"

#include <QIdentityProxyModel>
#include <QScrollBar>
#include <QSpinBox>

// The lines of the program on the page: what is shown of them, the cursor, the keys.
class TestEditorLines : public EditorTest {
    Q_OBJECT

private slots:
    void withoutLinesThePageSaysWhatWouldBeHere();
    void aLineOfNoInstructionIsShownAsSuch();
    void anEmptyLineIsNoWarning();
    void aLineOfAnyKindIsShown_data();
    void aLineOfAnyKindIsShown();
    void theFirstRegisteredTypeShowsTheLineAndTheOthersAreNamed();
    void anInsertionStandsBelowTheCursor();
    void theCursorMayMoveDuringAnInsertion();
    void aSkeletonThatIsALineFillsTheWidget();
    void aSkeletonThatIsNoLineIsShownAlone();
    void checksComeBeforeTheLineIsAskedFor();
    void aLineOfAnotherTypeOpensItsWidget();
    void equalLinesHaveWidgetsOfTheirOwn();
    void aLineThatIsMovedKeepsItsWidget();
    void keysChangeTheProgramOnlyWhereTheToolsDo();
    void undoInAFieldIsTheFieldsOwn();
    void toolsSayWhatUndoTakesBack();
    void aLongWidgetScrolls();
    void theReasonOfARefusalComesOntoALowScreen();
    void tenThousandLinesAreLookedAtOnlyOnTheScreen();
    void everythingFitsOnTheScreen_data();
    void everythingFitsOnTheScreen();
};

void TestEditorLines::withoutLinesThePageSaysWhatWouldBeHere() {
    const Editor editor;
    const QWidget* empty = editor.find("emptyState");
    QVERIFY(empty);
    QVERIFY(empty->findChildren<QLabel*>().at(1)->text().contains("Insert"));
    QVERIFY(!editor.list()->isVisible());
    QVERIFY(editor.isEnabled("insertLine"));
    for (const char* tool : {"deleteLine", "moveLineUp", "moveLineDown", "undoStep", "redoStep", "saveProgram"})
        QVERIFY2(!editor.isEnabled(tool), tool);
}

void TestEditorLines::aLineOfNoInstructionIsShownAsSuch() {
    write({"Unheard of // a plugin's"});
    const Editor editor;
    QCOMPARE(editor.text("editorTitle"), QString("No instruction knows this line"));
    QVERIFY(editor.text("unknownLine").contains("Unheard of"));
    QVERIFY(!editor.find("acceptLine"));
    QVERIFY(editor.isEnabled("deleteLine"));
}

void TestEditorLines::anEmptyLineIsNoWarning() {
    write({"  "});
    const Editor editor;
    QCOMPARE(editor.text("editorTitle"), QString("Empty line"));
    QCOMPARE(editor.notice(), QString("It can be moved and deleted."));
}

void TestEditorLines::aLineOfAnyKindIsShown_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("long") << QString(200000, 'x');
    QTest::newRow("long words") << QString("Wait ms ").repeated(20000);
    QTest::newRow("regular expression") << "^\\s*(Wait|.*)+$ [a-z]{3} \\Q";
    QTest::newRow("markup") << "<b>bold</b> &amp; <img src=x>";
    QTest::newRow("quotes") << "\"'`\"";
    QTest::newRow("comment") << " // \"a\" // b";
    QTest::newRow("tabs") << "\t\ta\tb";
    QTest::newRow("letters") << QString::fromUtf8("等待 5 秒 Ожидание انتظر");
    QTest::newRow("emoji") << QString::fromUtf8("🔧🤖 ").repeated(500);
}

void TestEditorLines::aLineOfAnyKindIsShown() {
    QFETCH(QString, line);
    write({line, "Wait 1 ms"});
    const Editor editor;
    QCOMPARE(editor.lines().first(), line);
    QVERIFY(!editor.page()->grab().isNull());
    QVERIFY(editor.page()->minimumSizeHint().width() < 900);
    editor.select(1);
    editor.select(0);
    QVERIFY(editor.press("moveLineDown"));
    QVERIFY(editor.press("saveProgram"));
    QCOMPARE(read(), "Wait 1 ms\n" + line + '\n');
}

void TestEditorLines::theFirstRegisteredTypeShowsTheLineAndTheOthersAreNamed() {
    write({"Good 1", "Twin", "Wait 1 ms"});
    const Editor editor;
    QCOMPARE(editor.text("editorTitle"), QString("Good"));
    QCOMPARE(editor.text("otherTypes"), QString("Also matches: Twin"));
    editor.select(1);
    QCOMPARE(editor.text("editorTitle"), QString("Twin"));
    QCOMPARE(editor.text("otherTypes"), QString());
    editor.select(0);
    editor.select(2);
    QCOMPARE(editor.text("otherTypes"), QString());
}

void TestEditorLines::anInsertionStandsBelowTheCursor() {
    write({"Wait 1 ms", "Wait 2 ms"});
    const Editor editor;
    QVERIFY(editor.pick("Comment"));
    QCOMPARE(editor.text("editorPlace"), QString("Becomes line 2"));
    editor.field<QLineEdit>("commentText")->setText("between");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", "// between", "Wait 2 ms"}));
    QCOMPARE(editor.row(), 1);
}

void TestEditorLines::theCursorMayMoveDuringAnInsertion() {
    write({"Wait 1 ms", "Wait 2 ms"});
    const Editor editor;
    QVERIFY(editor.pick("Comment"));
    editor.field<QLineEdit>("commentText")->setText("below");
    editor.select(1);
    QCOMPARE(editor.text("editorPlace"), QString("Becomes line 3"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", "Wait 2 ms", "// below"}));
}

void TestEditorLines::aSkeletonThatIsALineFillsTheWidget() {
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    QCOMPARE(calls(), QStringList{"FillWith Good"});
    QCOMPARE(editor.text("editorLine"), QString("Good"));
    QCOMPARE(editor.field<QLineEdit>("oddField")->text(), QString("Good"));
}

void TestEditorLines::aSkeletonThatIsNoLineIsShownAlone() {
    const Editor editor;
    QVERIFY(editor.pick("Bare"));
    QCOMPARE(calls(), QStringList());
    QCOMPARE(editor.text("editorLine"), QString("no line of this type"));
}

void TestEditorLines::checksComeBeforeTheLineIsAskedFor() {
    write({"Good"});
    const Editor editor;
    QCOMPARE(calls(), QStringList{"FillWith Good"});
    editor.field<QLineEdit>("oddField")->setText("refuse");
    editor.press("acceptLine");
    QCOMPARE(calls(), QStringList{"CheckReplace"});
    editor.field<QLineEdit>("oddField")->setText("Good 2");
    editor.press("acceptLine");
    QCOMPARE(calls(), (QStringList{"CheckReplace", "ToString", "FillWith Good 2"}));
    editor.pick("Bare");
    editor.field<QLineEdit>("oddField")->setText("refuse");
    editor.press("acceptLine");
    QCOMPARE(calls(), QStringList{"CheckInsert"});
    editor.field<QLineEdit>("oddField")->setText("Bare");
    editor.press("acceptLine");
    QCOMPARE(calls(), (QStringList{"CheckInsert", "ToString", "FillWith Bare"}));
}

void TestEditorLines::aLineOfAnotherTypeOpensItsWidget() {
    write({"Good"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText("Wait 7 ms");
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.text("editorTitle"), QString("Wait"));
    QCOMPARE(editor.field<QSpinBox>("waitTime")->value(), 7);
    QVERIFY(!editor.notice().isEmpty());
}

void TestEditorLines::equalLinesHaveWidgetsOfTheirOwn() {
    write({"Good", "Good"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText("Good typed");
    editor.select(1);
    QCOMPARE(editor.field<QLineEdit>("oddField")->text(), QString("Good"));
    QCOMPARE(editor.text("editorPlace"), QString("Line 2"));
}

void TestEditorLines::aLineThatIsMovedKeepsItsWidget() {
    write({"Good", "Wait 1 ms"});
    const Editor editor;
    editor.field<QLineEdit>("oddField")->setText("Good typed");
    QVERIFY(editor.press("moveLineDown"));
    QCOMPARE(editor.text("editorPlace"), QString("Line 2"));
    QCOMPARE(editor.field<QLineEdit>("oddField")->text(), QString("Good typed"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Wait 1 ms", "Good typed"}));
}

void TestEditorLines::keysChangeTheProgramOnlyWhereTheToolsDo() {
    write({"Wait 1 ms", "Wait 2 ms"});
    const Editor editor;
    editor.type(Qt::Key_Insert);
    QVERIFY(editor.picker());
    editor.type(Qt::Key_Delete);
    editor.type(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(editor.lines().size(), 2);
    QCOMPARE(editor.lines().first(), QString("Wait 1 ms"));
    editor.type(Qt::Key_Escape);
    QVERIFY(!editor.picker());
    editor.type(Qt::Key_Delete);
    QCOMPARE(editor.lines(), QStringList{"Wait 2 ms"});
    for (QWidget* elsewhere : {editor.field<QWidget>("waitTime"), editor.find("acceptLine"), editor.find("undoStep")}) {
        elsewhere->setFocus();
        QTest::keyClick(elsewhere, Qt::Key_Delete);
        QCOMPARE(editor.lines(), QStringList{"Wait 2 ms"});
    }
}

void TestEditorLines::undoInAFieldIsTheFieldsOwn() {
    write({"Good"});
    const Editor editor;
    editor.press("moveLineDown");
    QVERIFY(editor.pick("Comment"));
    editor.press("acceptLine");
    auto* field = editor.field<QLineEdit>("commentText");
    QTest::keyClicks(field, "abc");
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.lines().size(), 2);
    QVERIFY(field->text() != "abc");
}

void TestEditorLines::toolsSayWhatUndoTakesBack() {
    write({"Wait 1 ms"});
    const Editor editor;
    const auto tip = [&](const char* tool) { return editor.find<QAbstractButton>(tool)->toolTip(); };
    QCOMPARE(tip("undoStep"), QString("Undo (Ctrl+Z)"));
    editor.press("deleteLine");
    const QString step = editor.program()->undoStack()->undoText();
    QVERIFY(!step.isEmpty());
    QCOMPARE(tip("undoStep"), QString("Undo: %1 (Ctrl+Z)").arg(step));
    editor.press("undoStep");
    QCOMPARE(tip("redoStep"), QString("Redo: %1 (Ctrl+Y)").arg(step));
}

void TestEditorLines::aLongWidgetScrolls() {
    write({"Tall"});
    const Editor editor;
    const QWidget* content = editor.content();
    QVERIFY(content->height() > editor.page()->height());
    const auto* scroll = editor.page()->findChild<QScrollArea*>();
    QVERIFY(scroll->verticalScrollBar()->maximum() > 0);
    const QWidget* accept = editor.find("acceptLine");
    QVERIFY(accept->mapTo(editor.page(), accept->rect().bottomLeft()).y() < editor.page()->height());
}

void TestEditorLines::theReasonOfARefusalComesOntoALowScreen() {
    const Editor editor(QSize(1024, 600));
    QVERIFY(editor.pick("MoveL"));
    QVERIFY(editor.press("acceptLine"));
    settle();
    const auto* reason = editor.field<QLabel>("refusalReason");
    QVERIFY(!reason->text().isEmpty());
    QCOMPARE(reason->visibleRegion().boundingRect().height(), reason->height());
}

// Of a model with ten thousand rows the view asks for what it draws.
void TestEditorLines::tenThousandLinesAreLookedAtOnlyOnTheScreen() {
    QStringList lines;
    for (int i = 0; i < 10000; ++i)
        lines << QString("MoveJ p%1 speed=50%").arg(i);
    write(lines);
    const Editor editor;
    QCOMPARE(editor.lines().size(), 10000);
    struct Counter : QIdentityProxyModel {
        QVariant data(const QModelIndex& index, int role) const override {
            rows.insert(index.row());
            return QIdentityProxyModel::data(index, role);
        }
        mutable QSet<int> rows;
    } counter;
    counter.setSourceModel(editor.program());
    QListView* list = editor.list();
    list->setModel(&counter);
    list->grab();
    const int onScreen = list->viewport()->height() / 56 + 2;
    QVERIFY2(counter.rows.size() <= onScreen, qPrintable(QString::number(counter.rows.size())));
    counter.rows.clear();
    list->scrollToBottom();
    list->grab();
    QVERIFY(counter.rows.contains(9999));
    QVERIFY2(counter.rows.size() <= onScreen, qPrintable(QString::number(counter.rows.size())));
    list->setModel(editor.program());
}

void TestEditorLines::everythingFitsOnTheScreen_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    for (const QSize& size : {QSize(1280, 800), QSize(1024, 600), QSize(800, 600)}) {
        for (const char* language : {"en", "de", "zh_CN"})
            QTest::newRow(qPrintable(QString("%1 %2").arg(size.width()).arg(language))) << size << QString(language);
    }
}

void TestEditorLines::everythingFitsOnTheScreen() {
    QFETCH(QSize, size);
    QFETCH(QString, language);
    write({"CloseGripper force=12N wait=10ms"});
    auto* application = static_cast<pendant::Application*>(qApp);
    application->setLanguage(language);
    const Editor editor(size);
    const auto check = [&] {
        for (const QAbstractButton* button : editor.page()->findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || !button->visibleRegion().boundingRect().isValid())
                continue;
            QVERIFY2(button->width() >= button->minimumSizeHint().width(), qPrintable(button->objectName()));
            const QRect place(button->mapTo(editor.page(), QPoint()), button->size());
            const bool isScrolled = editor.content() && editor.content()->isAncestorOf(button);
            QVERIFY2(isScrolled || editor.page()->rect().contains(place), qPrintable(button->objectName()));
        }
    };
    check();
    editor.press("insertLine");
    check();
    editor.press("cancelPicking");
    editor.pick("MoveL");
    check();
    application->setLanguage("en");
}

PENDANT_TEST_MAIN(TestEditorLines)
#include "tst_editor_lines.moc"
