#include "projectfixture.h"

#include "project/framemirror.h"

using pendant::FrameMirror;

// The tool and the work object that are selected in the tree and in the controller.
class TestProjectFrame : public QObject {
    Q_OBJECT

private slots:
    void theTreeTakesWhatTheControllerHas();
    void whatTheTreeSaysHoldsWhenTheLinkComesUp();
    void aChangeInTheTreeIsSentOnce();
    void whatTheControllerRefusesIsTakenBack();
    void withTheBusDownNothingIsSent();
    void aNodeThatIsMadeAnewIsFollowed();
    void aControllerThatSaysNothingChangesNothing();

private:
    static QString selected() {
        return m("orca.toolpage.tool")->getString() + '/' + m("orca.toolpage.wobj")->getString();
    }
    /// A controller that takes what it is sent, save a tool it does not know.
    static void obey(FarSide& far, const QString& tool, const QString& wobj) {
        far.setAnswer("robot.frame", QJsonObject{{"tool", tool}, {"wobj", wobj}});
    }
};

void TestProjectFrame::theTreeTakesWhatTheControllerHas() {
    FarSide far;
    obey(far, "gripper", "table");
    const FrameMirror mirror;
    QCOMPARE(selected(), QString("gripper/table"));
    FarSide::settle();
    QVERIFY(far.bus.sentAs(brisk::standin::Verb::Set).isEmpty());
}

void TestProjectFrame::whatTheTreeSaysHoldsWhenTheLinkComesUp() {
    FarSide far;
    obey(far, "gripper", "table");
    far.setUp(false);
    m("orca.toolpage.tool")->setValue(nullptr, "torch");
    const FrameMirror mirror;
    obey(far, "torch", "table");
    far.answers["robot.frame"]->set(nullptr, "tool", "gripper");
    far.bus.reply = [&far](const brisk::standin::Message& message) {
        const auto answer = brisk::standin::contentOf(far.answers.value(message.key).get());
        obey(far, "torch", "table");
        return answer;
    };
    far.setUp(true);
    QCOMPARE(far.bus.sentAs(brisk::standin::Verb::Set), QStringList{R"(robot.frame||{"tool":"torch","wobj":"table"})"});
    QCOMPARE(selected(), QString("torch/table"));
}

void TestProjectFrame::aChangeInTheTreeIsSentOnce() {
    FarSide far;
    obey(far, "gripper", "table");
    const FrameMirror mirror;
    obey(far, "torch", "door");
    m("orca.toolpage.tool")->setValue(nullptr, "torch");
    m("orca.toolpage.wobj")->setValue(nullptr, "door");
    FarSide::settle();
    QCOMPARE(far.bus.sentAs(brisk::standin::Verb::Set), QStringList{R"(robot.frame||{"tool":"torch","wobj":"door"})"});
    QCOMPARE(selected(), QString("torch/door"));
}

void TestProjectFrame::whatTheControllerRefusesIsTakenBack() {
    FarSide far;
    obey(far, "gripper", "table");
    const FrameMirror mirror;
    m("orca.toolpage.tool")->setValue(nullptr, "nothing");
    FarSide::settle();
    QCOMPARE(selected(), QString("gripper/table"));
    FarSide::settle();
    QCOMPARE(far.bus.sentAs(brisk::standin::Verb::Set).size(), 1);
}

void TestProjectFrame::withTheBusDownNothingIsSent() {
    FarSide far;
    obey(far, "gripper", "table");
    const FrameMirror mirror;
    far.setUp(false);
    far.forget();
    m("orca.toolpage.tool")->setValue(nullptr, "torch");
    FarSide::settle();
    QVERIFY(far.said().isEmpty());
    QCOMPARE(selected(), QString("torch/table"));
}

void TestProjectFrame::aNodeThatIsMadeAnewIsFollowed() {
    FarSide far;
    obey(far, "gripper", "table");
    const FrameMirror mirror;
    m("orca")->removeChild(m("orca.toolpage"));
    FarSide::settle();
    obey(far, "torch", "table");
    m("orca.toolpage.tool")->setValue(nullptr, "torch");
    FarSide::settle();
    QVERIFY(!far.bus.sentAs(brisk::standin::Verb::Set).isEmpty());
    QCOMPARE(selected(), QString("torch/table"));
}

void TestProjectFrame::aControllerThatSaysNothingChangesNothing() {
    FarSide far;
    m("orca.toolpage.tool")->setValue(nullptr, "torch");
    const FrameMirror mirror;
    FarSide::settle();
    QVERIFY(far.bus.sentAs(brisk::standin::Verb::Set).isEmpty());
    m("orca.toolpage.tool")->setValue(nullptr, "gripper");
    FarSide::settle();
    QCOMPARE(selected(), QString("gripper/"));
}

QTEST_GUILESS_MAIN(TestProjectFrame)
#include "tst_project_frame.moc"
