#include "links.h"

#include "brisk/modulemanager.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>

using kite::InterfaceManager;

/// One call that waits for an answer where told so.
using Ask = std::function<QJsonValue(InterfaceManager&, bool, int)>;
/// One call that waits for none.
using Tell = std::function<bool(InterfaceManager&, int)>;
Q_DECLARE_METATYPE(Ask)
Q_DECLARE_METATYPE(Tell)

namespace {

const QJsonObject params{{"name", "P1"}, {"tool", 1}};
const QJsonObject answer{{"x", 1.5}, {"axes", QJsonArray{1, 2, 3}}};
const char line[] = "vex_program.get_rob_pos||{\"name\":\"P1\",\"tool\":1}";

Ask askInParts() {
    return [](InterfaceManager& robot, bool wait, int timeoutMs) {
        return robot.rcExecRequest("vex_program", "get_rob_pos", params, wait, timeoutMs);
    };
}
Ask askInFull() {
    return [](InterfaceManager& robot, bool wait, int timeoutMs) {
        return robot.rcExecRequestFullCommand("vex_program.get_rob_pos", params, wait, timeoutMs);
    };
}
Tell tellInParts() {
    return [](InterfaceManager& robot, int timeoutMs) {
        return robot.rcRequest("vex_program", "get_rob_pos", params, timeoutMs);
    };
}
Tell tellInFull() {
    return [](InterfaceManager& robot, int timeoutMs) {
        return robot.rcRequestFullCommand("vex_program.get_rob_pos", params, timeoutMs);
    };
}

// Keeps for how long it was waited.
class PatientLink : public pendanttest::FakeLink {
public:
    PatientLink() : FakeLink(Channel::controller()) {}
    QList<int> waitedMs;
    bool receive(brisk::standin::Answer* out, int timeoutMs) override {
        waitedMs << timeoutMs;
        return FakeLink::receive(out, timeoutMs);
    }
};

} // namespace

class TestRequests : public LinksTest {
    Q_OBJECT

private slots:
    void aQuestionIsOneRequestAndItsAnswer_data() { askings(); }
    void aQuestionIsOneRequestAndItsAnswer() {
        QFETCH(Ask, ask);
        controller().answerWith(contentOf(QVariant(answer)));
        QCOMPARE(ask(*kiteInterface(), true, 1600), QJsonValue(answer));
        QCOMPARE(controller().sentAs(Verb::Request), QStringList{line});
        QCOMPARE(controller().sent.size(), 1);
        QCOMPARE(bus().sent.size(), 0);
    }

    void aQuestionIsWaitedForAsLongAsTold_data() { askings(); }
    void aQuestionIsWaitedForAsLongAsTold() {
        QFETCH(Ask, ask);
        PatientLink patient;
        patient.answerWith(contentOf(QVariant(1)));
        ask(*kiteInterface(), true, 123456);
        QCOMPARE(patient.waitedMs.size(), 1);
        QVERIFY(patient.waitedMs.first() <= 123456 && patient.waitedMs.first() > 123456 - 60000);
    }

    void aQuestionThatIsNotWaitedForHasNoAnswer_data() { askings(); }
    void aQuestionThatIsNotWaitedForHasNoAnswer() {
        QFETCH(Ask, ask);
        PatientLink patient;
        patient.answerWith(contentOf(QVariant(answer)));
        QCOMPARE(ask(*kiteInterface(), false, 1600), QJsonValue());
        QCOMPARE(patient.sentAs(Verb::Request), QStringList{line});
        QCOMPARE(patient.waitedMs, QList<int>());
    }

    void theAnswerComesAsTheJsonOfItsNode_data() {
        QTest::addColumn<Content>("content");
        QTest::addColumn<QJsonValue>("json");
        QTest::newRow("nothing at all") << Content() << QJsonValue();
        QTest::newRow("empty") << contentOf(QVariant()) << QJsonValue();
        QTest::newRow("a number") << contentOf(QVariant(-1)) << QJsonValue(-1);
        QTest::newRow("a text") << contentOf(QVariant("ok")) << QJsonValue("ok");
        QTest::newRow("false") << contentOf(QVariant(false)) << QJsonValue(false);
        QTest::newRow("an empty list") << contentOf(QVariant(QJsonArray())) << QJsonValue(QJsonArray());
        QTest::newRow("a list") << contentOf(QVariant(QJsonArray{"a"})) << QJsonValue(QJsonArray{"a"});
        QTest::newRow("a refusal") << brisk::standin::refusal("no") << QJsonValue(QJsonObject{{"error", "no"}});
    }
    void theAnswerComesAsTheJsonOfItsNode() {
        QFETCH(Content, content);
        QFETCH(QJsonValue, json);
        controller().answerWith(content);
        QCOMPARE(askInParts()(*kiteInterface(), true, 100), json);
        QCOMPARE(askInFull()(*kiteInterface(), true, 100), json);
    }

    void withoutAnAnswerAQuestionGivesNull_data() { askings(); }
    void withoutAnAnswerAQuestionGivesNull() {
        QFETCH(Ask, ask);
        controller().answers = false;
        QCOMPARE(ask(*kiteInterface(), true, 1), QJsonValue());
        QCOMPARE(controller().sent.size(), 1);
    }

    void withTheLinkDownAQuestionGivesNull_data() { askings(); }
    void withTheLinkDownAQuestionGivesNull() {
        QFETCH(Ask, ask);
        controller().answerWith(contentOf(QVariant(answer)));
        ask(*kiteInterface(), true, 100);
        controller().setUp(false);
        controller().sent.clear();
        QCOMPARE(ask(*kiteInterface(), true, 100), QJsonValue());
        QCOMPARE(ask(*kiteInterface(), false, 100), QJsonValue());
        QCOMPARE(controller().sent.size(), 0);
    }

    void aRequestIsSentAndNotWaitedFor_data() { tellings(); }
    void aRequestIsSentAndNotWaitedFor() {
        QFETCH(Tell, tell);
        PatientLink patient;
        QVERIFY(tell(*kiteInterface(), 1600));
        QCOMPARE(patient.sentAs(Verb::Request), QStringList{line});
        QCOMPARE(patient.waitedMs, QList<int>());
    }

    void withTheLinkDownARequestSaysFalse_data() { tellings(); }
    void withTheLinkDownARequestSaysFalse() {
        QFETCH(Tell, tell);
        controller().setUp(false);
        QVERIFY(!tell(*kiteInterface(), 1600));
        QCOMPARE(controller().sent.size(), 0);
    }

    // The host keeps the answer only when it comes in time.
    void aRequestIsAnsweredInItsTimeOnly_data() {
        QTest::addColumn<Tell>("tell");
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<QJsonValue>("kept");
        QTest::newRow("parts, in time") << tellInParts() << 60000 << QJsonValue(7);
        QTest::newRow("parts, late") << tellInParts() << 1 << QJsonValue();
        QTest::newRow("full, in time") << tellInFull() << 60000 << QJsonValue(7);
        QTest::newRow("full, late") << tellInFull() << 1 << QJsonValue();
    }
    void aRequestIsAnsweredInItsTimeOnly() {
        QFETCH(Tell, tell);
        QFETCH(int, timeoutMs);
        QFETCH(QJsonValue, kept);
        auto* response =
            helm::ManagerHelper::instance()->controllerManager()->cmdItemMobj("response", "vex_program.get_rob_pos");
        response->clear(nullptr, false, true);
        QVERIFY(tell(*kiteInterface(), timeoutMs));
        QTest::qSleep(20);
        emit controller().answered({controller().sent.last().id, contentOf(QVariant(7))});
        QCoreApplication::sendPostedEvents();
        QCOMPARE(response->exportToJson(true), kept);
    }

    void aFullCommandTakesContentOfAnyKind_data() {
        QTest::addColumn<QJsonValue>("content");
        QTest::addColumn<QString>("json");
        QTest::newRow("nothing") << QJsonValue() << "null";
        QTest::newRow("a number") << QJsonValue(0.25) << "0.25";
        QTest::newRow("a text") << QJsonValue("a") << "\"a\"";
        QTest::newRow("a list") << QJsonValue(QJsonArray{1, QJsonObject{{"a", 2}}}) << "[1,{\"a\":2}]";
        QTest::newRow("an object") << QJsonValue(QJsonObject{{"a", QJsonObject{{"b", true}}}})
                                   << "{\"a\":{\"b\":true}}";
    }
    void aFullCommandTakesContentOfAnyKind() {
        QFETCH(QJsonValue, content);
        QFETCH(QString, json);
        QVERIFY(kiteInterface()->rcRequestFullCommand("a.b", content, 100));
        kiteInterface()->rcExecRequestFullCommand("a.b", content, true, 100);
        QCOMPARE(controller().sentAs(Verb::Request), QStringList({"a.b||" + json, "a.b||" + json}));
    }

    void aNodeOfTheTreeComesAsJson_data() {
        QTest::addColumn<QJsonValue>("content");
        QTest::newRow("a number") << QJsonValue(1.5);
        QTest::newRow("a text") << QJsonValue("a");
        QTest::newRow("a list") << QJsonValue(QJsonArray{1, 2});
        QTest::newRow("an empty list") << QJsonValue(QJsonArray());
        QTest::newRow("an object") << QJsonValue(answer);
    }
    void aNodeOfTheTreeComesAsJson() {
        QFETCH(QJsonValue, content);
        // Needs no link.
        bus().setUp(false);
        controller().setUp(false);
        brisk::ModuleObject* node = m("test.requests");
        node->clear(nullptr, true, true);
        node->importFromJson(nullptr, content, true, true, true);
        QCOMPARE(kiteInterface()->getNodeData("test.requests"), content);
    }

    void aNodeThatIsNotThereIsNull() {
        QCOMPARE(kiteInterface()->getNodeData("test.nowhere.to.be.found"), QJsonValue());
        m("test.list")->setList(nullptr, {1});
        QCOMPARE(kiteInterface()->getNodeData("test.list.#0"), QJsonValue(1));
        QCOMPARE(kiteInterface()->getNodeData("test.list.#7"), QJsonValue());
        QCOMPARE(m("test.list")->cmobjCount(), 1);
        QVERIFY(m("test")->r("nowhere.to.be.found"));
    }

private:
    static void askings() {
        QTest::addColumn<Ask>("ask");
        QTest::newRow("in parts") << askInParts();
        QTest::newRow("in full") << askInFull();
    }
    static void tellings() {
        QTest::addColumn<Tell>("tell");
        QTest::newRow("in parts") << tellInParts();
        QTest::newRow("in full") << tellInFull();
    }
};

QTEST_GUILESS_MAIN(TestRequests)
#include "tst_interface_requests.moc"
