#include "editorbench.h"

#include "helm/vexmanager.h"

// The instructions to choose from.
class TestEditorPicker : public EditorTest {
    Q_OBJECT

private slots:
    void hostAndPluginsStandBesideEachOtherInTheirGroups();
    void aTypeShowsItsTitleAndDescription();
    void aFingerChoosesAType();
    void aKeyChoosesAType();
    void aTitleOfAGroupIsNothingToChoose();
    void namesAndDescriptionsAreFound_data();
    void namesAndDescriptionsAreFound();
    void cancelGoesBackToTheLine();
    void aLineCanBeInsertedAboveTheFirst();
    void aTypeThatComesLaterIsOffered();
    void aThousandTypesAreOffered();
    void titlesFollowTheLanguage();

private:
    static helm::VexManager* registry() { return helm::VexManager::getVexManager(); }
    static void find(const Editor& editor, const QString& part) {
        editor.find<QLineEdit>("findInstruction")->setText(part);
        settle();
    }
};

void TestEditorPicker::hostAndPluginsStandBesideEachOtherInTheirGroups() {
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    const QStringList offered = editor.offered();
    QCOMPARE(offered.mid(0, 10), (QStringList{"Motion:", "MoveJ", "MoveL", "Logic:", "Wait", "Assign", "Comment",
                                              "Inputs and outputs:", "SetDO", "Gripper:"}));
    QVERIFY(offered.indexOf("CloseGripper") > offered.indexOf("Gripper:"));
    QVERIFY(offered.indexOf("Odd ones:") > offered.indexOf("OpenGripper"));
}

void TestEditorPicker::aTypeShowsItsTitleAndDescription() {
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    const auto index = [&](const QString& type) {
        return editor.picker()->model()->index(editor.offered().indexOf(type), 0);
    };
    QCOMPARE(index("MoveJ").data().toString(), QString("Joint move"));
    QVERIFY(!index("MoveJ").data(pendant::ProgramPickerModel::DescriptionRole).toString().isEmpty());
    QCOMPARE(index("MoveJ").data(pendant::ProgramPickerModel::IconRole).toString(), QString("movejoint"));
    QCOMPARE(index("Good").data().toString(), QString("Good"));
    QCOMPARE(index("Good").data(pendant::ProgramPickerModel::DescriptionRole).toString(), QString("Something odd"));
}

void TestEditorPicker::aFingerChoosesAType() {
    const Editor editor;
    QVERIFY(editor.pick("Good"));
    QCOMPARE(editor.text("editorTitle"), QString("Good"));
    QVERIFY(!editor.picker());
}

void TestEditorPicker::aKeyChoosesAType() {
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    QListView* picker = editor.picker();
    picker->setCurrentIndex(picker->model()->index(editor.offered().indexOf("Good"), 0));
    QTest::keyClick(picker, Qt::Key_Return);
    settle();
    QCOMPARE(editor.text("editorTitle"), QString("Good"));
    QCOMPARE(living(), 1);
}

void TestEditorPicker::aTitleOfAGroupIsNothingToChoose() {
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    editor.tap(editor.picker(), editor.picker()->model()->index(0, 0));
    QVERIFY(editor.picker());
    QVERIFY(!editor.content());
}

void TestEditorPicker::namesAndDescriptionsAreFound_data() {
    QTest::addColumn<QString>("part");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("title") << "linear" << QStringList{"Motion:", "MoveL"};
    QTest::newRow("type") << "setdo" << QStringList{"Inputs and outputs:", "SetDO"};
    QTest::newRow("description") << "straight" << QStringList{"Motion:", "MoveL"};
    QTest::newRow("plugin") << " closegrip " << QStringList{"Gripper:", "CloseGripper"};
    QTest::newRow("nothing") << "(.*" << QStringList{};
}

void TestEditorPicker::namesAndDescriptionsAreFound() {
    QFETCH(QString, part);
    QFETCH(QStringList, offered);
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    find(editor, part);
    QCOMPARE(editor.offered(), offered);
    editor.press("cancelPicking");
    editor.press("insertLine");
    QVERIFY(editor.offered().size() > 5);
}

void TestEditorPicker::cancelGoesBackToTheLine() {
    write({"Good"});
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    QVERIFY(!editor.content());
    QVERIFY(!editor.isEnabled("insertLine"));
    QVERIFY(editor.press("cancelPicking"));
    QVERIFY(editor.content());
    QCOMPARE(editor.text("editorTitle"), QString("Good"));
    QVERIFY(editor.isEnabled("insertLine"));
}

void TestEditorPicker::aTypeThatComesLaterIsOffered() {
    write({"Late"});
    const Editor editor;
    QCOMPARE(editor.text("editorTitle"), QString("No instruction knows this line"));
    const helm::VexManager before = *registry();
    registry()->typeKeys << "Late";
    registry()->patterns["c_Late"] = "^Late$";
    QVERIFY(editor.press("insertLine"));
    QVERIFY(editor.offered().contains("Late"));
    editor.press("cancelPicking");
    QCOMPARE(editor.text("editorTitle"), QString("Late"));
    *registry() = before;
}

void TestEditorPicker::aThousandTypesAreOffered() {
    const helm::VexManager before = *registry();
    for (int i = 0; i < 1000; ++i) {
        registry()->typeKeys << QString("Many%1").arg(i);
        registry()->groupMembers["many"] << QString("Many%1").arg(i);
        registry()->patterns[QString("c_Many%1").arg(i)] = QString("^Many%1$").arg(i);
        registry()->skeletons[QString("s_Many%1").arg(i)] = QString("Many%1").arg(i);
        registry()->insertWidgets[QString("Many%1").arg(i)] = registry()->insertWidgets.value("Good");
    }
    const Editor editor;
    QVERIFY(editor.pick("Many999"));
    QCOMPARE(editor.text("editorTitle"), QString("Many999"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), QStringList{"Many999"});
    *registry() = before;
}

void TestEditorPicker::aLineCanBeInsertedAboveTheFirst() {
    write({"Wait 5 ms"});
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    QVERIFY(editor.press("insertAbove"));
    editor.tap(editor.picker(), editor.picker()->model()->index(editor.offered().indexOf("Good"), 0));
    QCOMPARE(editor.text("editorPlace"), QString("Becomes line 1"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Good", "Wait 5 ms"}));
    QCOMPARE(editor.row(), 0);
    // The next one comes below again.
    QVERIFY(editor.pick("Wait"));
    QVERIFY(editor.press("acceptLine"));
    QCOMPARE(editor.lines(), (QStringList{"Good", "Wait 500 ms", "Wait 5 ms"}));
}

void TestEditorPicker::titlesFollowTheLanguage() {
    auto* application = static_cast<pendant::Application*>(qApp);
    write({"Wait 5 ms"});
    const Editor editor;
    QVERIFY(editor.press("insertLine"));
    application->setLanguage("de");
    settle();
    QCOMPARE(editor.offered().first(), QString("Bewegung:"));
    QVERIFY(editor.picker()->model()->index(1, 0).data().toString() != "Joint move");
    application->setLanguage("en");
    settle();
    QCOMPARE(editor.offered().first(), QString("Motion:"));
}

PENDANT_TEST_MAIN(TestEditorPicker)
#include "tst_editor_picker.moc"
