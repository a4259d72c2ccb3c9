#include "framefixture.h"
#include "recordsbench.h"

#include "helm/vexmanager.h"
#include "instructions/builtins.h"

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

using brisk::ModuleObject;
using helm::BaseContentWidget;

// The editors of the pendant's own instructions, as the program editor gets them.
class TestInstructionWidgets : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { pendant::BuiltIns builtIns; }
    void init() { m("orca.project")->clear(nullptr, true, true); }
    void aLineGoesInAndComesOut_data();
    void aLineGoesInAndComesOut();
    void theFieldsMakeTheLine_data();
    void theFieldsMakeTheLine();
    void whatIsMissingIsRefusedAndTold_data();
    void whatIsMissingIsRefusedAndTold();
    void whatDoesNotFitIntoALineIsRefused();
    void aLineOfAnotherInstructionLeavesTheFieldsAlone_data() { aLineGoesInAndComesOut_data(); }
    void aLineOfAnotherInstructionLeavesTheFieldsAlone();
    void aRefusalGoesWithItsReason();
    void thePointsOfTheProjectAreOffered();
    void theVariablesOfTheProjectAreOffered();
    void toolsAndWorkObjectsInUseAreOffered();
    void toolsAndWorkObjectsOfTheTreeAreOffered();
    void theDigitalOutputsAreOffered();
    void blanksAroundANameAreNoPartOfIt();
    void aPointThatIsNotInTheProjectIsShown();
    void halvesStandOneBelowTheOtherWhereThereIsNoRoom();
    void captionsFollowTheLanguage();

private:
    struct Editor {
        explicit Editor(const QString& type) {
            widget = helm::VexManager::getVexManager()->insertWidgets.value(type)(&parent);
            parent.resize(600, 600);
            widget->resize(600, 600);
            parent.show();
        }
        template <typename Widget> Widget* find(const QString& name) const { return widget->findChild<Widget*>(name); }
        QString reason() const {
            const auto* label = find<QLabel>("refusalReason");
            return label->isVisible() ? label->text() : QString();
        }
        // As a person does it.
        void set(const QString& name, const QString& text) const {
            if (auto* choice = find<QComboBox>(name))
                choice->setCurrentText(text);
            else if (auto* number = find<QSpinBox>(name))
                number->setValue(text.toInt());
            else if (auto* edit = find<QLineEdit>(name))
                edit->setText(text);
            else
                QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton);
        }

        QWidget parent;
        BaseContentWidget* widget;
    };

    static QStringList items(const QComboBox* box) {
        QStringList items;
        for (int i = 0; i < box->count(); ++i)
            items << box->itemText(i);
        return items;
    }
};

void TestInstructionWidgets::aLineGoesInAndComesOut_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* type, const QString& line) { QTest::newRow(qPrintable(line)) << type << line; };
    row("MoveJ", "MoveJ home speed=100%");
    row("MoveJ", "  MoveJ \"part \\\"1\\\"\" speed=1% zone=999mm tool=gripper wobj=\"a b\"  // comment");
    row("MoveL", "MoveL home speed=9999mm/s zone=1mm//c");
    row("Wait", "\tWait 9999999 ms  ");
    row("SetDO", "SetDO \"a b\" off // c");
    row("SetDO", "SetDO gripper on");
    row("Assign", "  Assign \"a b\" = \"x // y\" + 1 // c");
    row("Comment", "   //  a \"quote\" and // more ");
    row("Comment", "//");
}

void TestInstructionWidgets::aLineGoesInAndComesOut() {
    QFETCH(QString, type);
    QFETCH(QString, line);
    const Editor editor(type);
    editor.widget->FillWith(line);
    QVERIFY(editor.widget->CheckReplace());
    QVERIFY(editor.widget->CheckInsert());
    QCOMPARE(editor.widget->ToString(), line);
    QCOMPARE(editor.reason(), QString());
}

void TestInstructionWidgets::theFieldsMakeTheLine_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("line");
    QTest::newRow("joint move") << "MoveJ" << QStringList{"movePoint", "home"} << "MoveJ home speed=50%";
    QTest::newRow("linear move") << "MoveL" << QStringList{"movePoint", "a b", "moveSpeed",      "100", "moveZone", "5",
                                                           "moveTool",  "t",   "moveWorkObject", "w"}
                                 << "MoveL \"a b\" speed=100mm/s zone=5mm tool=t wobj=w";
    QTest::newRow("wait") << "Wait" << QStringList{"waitTime", "20"} << "Wait 20 ms";
    QTest::newRow("on") << "SetDO" << QStringList{"outputSignal", "lamp"} << "SetDO lamp on";
    QTest::newRow("off") << "SetDO" << QStringList{"outputSignal", "lamp", "outputOff", ""} << "SetDO lamp off";
    QTest::newRow("assign") << "Assign" << QStringList{"assignVariable", "n", "assignValue", " n + 1 "}
                            << "Assign n = n + 1";
    QTest::newRow("comment") << "Comment" << QStringList{"commentText", "note"} << "// note";
}

void TestInstructionWidgets::theFieldsMakeTheLine() {
    QFETCH(QString, type);
    QFETCH(QStringList, fields);
    QFETCH(QString, line);
    const Editor editor(type);
    for (int i = 0; i < fields.size(); i += 2)
        editor.set(fields.at(i), fields.at(i + 1));
    QVERIFY(editor.widget->CheckInsert());
    QCOMPARE(editor.widget->ToString(), line);
}

void TestInstructionWidgets::whatIsMissingIsRefusedAndTold_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("reason");
    QTest::newRow("joint move") << "MoveJ" << QStringList{} << "point";
    QTest::newRow("linear move") << "MoveL" << QStringList{"moveTool", "t"} << "point";
    QTest::newRow("output") << "SetDO" << QStringList{"outputOff", ""} << "output";
    QTest::newRow("variable") << "Assign" << QStringList{"assignValue", "1"} << "variable";
    QTest::newRow("value") << "Assign" << QStringList{"assignVariable", "a", "assignValue", "  "} << "value";
}

void TestInstructionWidgets::whatIsMissingIsRefusedAndTold() {
    QFETCH(QString, type);
    QFETCH(QStringList, fields);
    QFETCH(QString, reason);
    const Editor editor(type);
    for (int i = 0; i < fields.size(); i += 2)
        editor.set(fields.at(i), fields.at(i + 1));
    QVERIFY(!editor.widget->CheckInsert());
    QVERIFY2(editor.reason().contains(reason), qPrintable(editor.reason()));
    QVERIFY(!editor.widget->CheckReplace());
}

void TestInstructionWidgets::whatDoesNotFitIntoALineIsRefused() {
    const Editor editor("Assign");
    editor.set("assignVariable", "a");
    for (const char* value : {"\"half", "1 // comment", "// all of it"}) {
        editor.set("assignValue", value);
        const bool isComment = QString(value).startsWith('1');
        // What would be read as a comment is one from now on.
        QCOMPARE(editor.widget->CheckInsert(), isComment);
        QCOMPARE(editor.reason().isEmpty(), isComment);
    }
}

void TestInstructionWidgets::aLineOfAnotherInstructionLeavesTheFieldsAlone() {
    QFETCH(QString, type);
    QFETCH(QString, line);
    const Editor editor(type);
    editor.widget->FillWith(line);
    for (const QString& foreign : {QString(), QString("Nonsense"), "x" + line, QString(100000, '"')}) {
        editor.widget->FillWith(foreign);
        QVERIFY(!editor.reason().isEmpty());
        QCOMPARE(editor.widget->ToString(), line);
    }
}

void TestInstructionWidgets::aRefusalGoesWithItsReason() {
    const Editor editor("SetDO");
    QVERIFY(!editor.widget->CheckInsert());
    editor.set("outputSignal", "lamp");
    QVERIFY(editor.widget->CheckInsert());
    QCOMPARE(editor.reason(), QString());
}

void TestInstructionWidgets::thePointsOfTheProjectAreOffered() {
    for (const char* name : {"home", "", "part", "home"})
        addRecord(m("orca.project.point._list"), {{"name", name}});
    const Editor editor("MoveL");
    QCOMPARE(items(editor.find<QComboBox>("movePoint")), (QStringList{"home", "part"}));
    QCOMPARE(editor.find<QComboBox>("movePoint")->currentText(), QString());
}

void TestInstructionWidgets::theVariablesOfTheProjectAreOffered() {
    addRecord(m("orca.project.var._list"), {{"name", "parts"}});
    const Editor editor("Assign");
    QCOMPARE(items(editor.find<QComboBox>("assignVariable")), QStringList{"parts"});
}

void TestInstructionWidgets::toolsAndWorkObjectsInUseAreOffered() {
    m("orca.toolpage.tool")->setValue(nullptr, "gun");
    m("orca.toolpage.wobj")->setValue(nullptr, "door");
    for (const char* tool : {"gripper", "gun"})
        addRecord(m("orca.project.point._list"),
                  {{"value.[0][0][0].coord.tool", tool}, {"value.[0][0][0].coord.wobj", "table"}});
    const Editor editor("MoveJ");
    QCOMPARE(items(editor.find<QComboBox>("moveTool")), (QStringList{"gun", "gripper"}));
    QCOMPARE(items(editor.find<QComboBox>("moveWorkObject")), (QStringList{"door", "table"}));
}

void TestInstructionWidgets::toolsAndWorkObjectsOfTheTreeAreOffered() {
    m("orca.toolpage.tool")->setValue(nullptr, "own");
    m("orca.toolpage.wobj")->setValue(nullptr, "");
    addRecord(m("orca.project.tool._list"), {{"name", "own"}});
    addRecord(m("orca.project.tool.system_list"), {{"name", "flange"}});
    addRecord(m("orca.setting.g_tool.g_tools"), {{"name", "g_tool_gun"}});
    addRecord(m("orca.project.wobj.system_list"), {{"name", "base"}});
    addRecord(m("orca.setting.g_wobj.g_wobjs"), {{"name", "g_wobj_table"}});
    const Editor editor("MoveJ");
    m("orca.setting")->clear(nullptr, true, true);
    QCOMPARE(items(editor.find<QComboBox>("moveTool")), (QStringList{"own", "flange", "g_tool_gun"}));
    QCOMPARE(items(editor.find<QComboBox>("moveWorkObject")), (QStringList{"base", "g_wobj_table"}));
}

void TestInstructionWidgets::theDigitalOutputsAreOffered() {
    ModuleObject* details = m("orca.robot.io.signal_detail");
    const QVector<QPair<QString, int>> types{{"in", 1}, {"lamp", 2}, {"group", 4}, {"part gripper", 2}, {"level", 6}};
    for (const auto& type : types)
        m("orca.robot.io.signal_detail." + type.first + ".signal_type")->setValue(nullptr, type.second);
    const Editor editor("SetDO");
    details->clear(nullptr, true, true);
    QCOMPARE(items(editor.find<QComboBox>("outputSignal")), (QStringList{"lamp", "part gripper"}));
    QCOMPARE(editor.find<QComboBox>("outputSignal")->currentText(), QString());
}

void TestInstructionWidgets::blanksAroundANameAreNoPartOfIt() {
    const Editor output("SetDO");
    output.set("outputSignal", " lamp ");
    QCOMPARE(output.widget->ToString(), QString("SetDO lamp on"));
    const Editor move("MoveJ");
    move.set("movePoint", " ");
    QVERIFY(!move.widget->CheckInsert());
    move.set("movePoint", "\thome ");
    move.set("moveTool", " ");
    QCOMPARE(move.widget->ToString(), QString("MoveJ home speed=50%"));
    const Editor assign("Assign");
    assign.set("assignVariable", " a b ");
    assign.set("assignValue", "1");
    QCOMPARE(assign.widget->ToString(), QString("Assign \"a b\" = 1"));
}

void TestInstructionWidgets::aPointThatIsNotInTheProjectIsShown() {
    addRecord(m("orca.project.point._list"), {{"name", "home"}});
    const Editor editor("MoveJ");
    editor.widget->FillWith("MoveJ gone speed=5%");
    QCOMPARE(editor.find<QComboBox>("movePoint")->currentText(), QString("gone"));
}

void TestInstructionWidgets::halvesStandOneBelowTheOtherWhereThereIsNoRoom() {
    const Editor editor("MoveL");
    const auto heightOf = [&](const char* name) {
        const auto* field = editor.find<QWidget>(name);
        return field->mapTo(editor.widget, QPoint()).y();
    };
    Frame::settle();
    QCOMPARE(heightOf("moveSpeed"), heightOf("moveZone"));
    editor.widget->resize(editor.widget->minimumSizeHint().width(), 600);
    Frame::settle();
    QVERIFY(heightOf("moveSpeed") < heightOf("moveZone"));
    QVERIFY(heightOf("moveTool") < heightOf("moveWorkObject"));
    editor.widget->resize(600, 600);
    Frame::settle();
    QCOMPARE(heightOf("moveTool"), heightOf("moveWorkObject"));
}

void TestInstructionWidgets::captionsFollowTheLanguage() {
    auto* application = static_cast<pendant::Application*>(qApp);
    const Editor editor("Wait");
    editor.widget->FillWith("Wait 5 ms");
    const auto texts = [&] {
        QStringList found;
        for (const QLabel* label : editor.widget->findChildren<QLabel*>())
            found << label->text();
        return found;
    };
    QVERIFY(texts().contains("Time"));
    application->setLanguage("de");
    Frame::settle();
    QVERIFY(texts().contains("Zeit"));
    QCOMPARE(editor.widget->ToString(), QString("Wait 5 ms"));
    application->setLanguage("en");
}

PENDANT_TEST_MAIN(TestInstructionWidgets)
#include "tst_instructions_widgets.moc"
