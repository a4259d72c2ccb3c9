#include "controller/embeddedlink.h"

#include "contents.h"

#include "brisk/channel.h"
#include "brisk/traffic.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <memory>
#include <stdexcept>

Q_DECLARE_METATYPE(controller::Fault)

using brisk::standin::Answer;
using brisk::standin::Channel;
using brisk::standin::Link;
using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;
using controller::Content;
using controller::EmbeddedLink;
using controller::Fault;
using controller::Message;
using controller::Verb;
using controller::VirtualController;

namespace {

Message message(quint64 id, Verb verb, const QString& key, const Content& sent = nullptr) {
    Message made;
    made.id = id;
    made.verb = verb;
    made.key = key;
    made.content = sent;
    made.wantsAnswer = verb == Verb::Get || verb == Verb::Execute || verb == Verb::Request;
    return made;
}

} // namespace

class TestEmbeddedLink : public QObject {
    Q_OBJECT

private slots:
    void init() {
        controller.reset(new VirtualController);
        controller->bus()->define("a", "value of a");
        controller->bus()->define("b", "value of b");
        link.reset(new EmbeddedLink(controller.get()));
        told.clear();
        connect(link.get(), &Link::upChanged, this, [this](bool up) { told << (up ? "up" : "down"); });
        connect(link.get(), &Link::answered, this,
                [this](const Answer& answer) { told << QString::number(answer.id) + ':' + text(answer.content); });
        connect(link.get(), &Link::delivered, this,
                [this](const QString& key, const Content& value) { told << key + '=' + text(value); });
        connect(link.get(), &Link::noticed, this, [this](const QString& line) { told << line.section('.', 0, 0); });
    }

    void cleanup() {
        link.reset();
        controller.reset();
    }

    void itStartsDownAndTellsWhenItChanges() {
        QVERIFY(!link->isUp());
        link->setUp(false);
        link->setUp(true);
        QVERIFY(link->isUp());
        link->setUp(true);
        link->setUp(false);
        QVERIFY(!link->isUp());
        QCOMPARE(told, (QStringList{"up", "down"}));
    }

    void anAnswerIsReceivedInTheSameCall() {
        comeUp();
        Answer answer;
        link->send(message(7, Verb::Get, "a"));
        QVERIFY(link->receive(&answer, 0));
        QCOMPARE(answer.id, quint64(7));
        QCOMPARE(text(answer.content), QString("\"value of a\""));
        QVERIFY(!link->receive(&answer, 0));
        arrive();
        QCOMPARE(told, QStringList());
    }

    void whatWantsNoAnswerGetsNone() {
        comeUp();
        link->send(message(1, Verb::Set, "a", content("1")));
        Message wanting = message(2, Verb::Set, "a", content("2"));
        wanting.wantsAnswer = true;
        link->send(wanting);
        Answer answer;
        QVERIFY(link->receive(&answer, 0));
        QCOMPARE(answer.id, quint64(2));
        QVERIFY(!answer.content);
        QVERIFY(!link->receive(&answer, 0));
    }

    void withTheLinkDownAMessageIsLost() {
        link->send(message(1, Verb::Set, "a", content("1")));
        link->send(message(2, Verb::Get, "a"));
        comeUp();
        Answer answer;
        QVERIFY(!link->receive(&answer, 0));
        arrive();
        QCOMPARE(told, QStringList());
        QCOMPARE(text(controller->bus()->value("a")), QString("\"value of a\""));
    }

    void waitingForNothingTakesTheWholeTime() {
        comeUp();
        QElapsedTimer wall;
        wall.start();
        Answer answer;
        QVERIFY(!link->receive(&answer, 40));
        QVERIFY(wall.elapsed() >= 35);
    }

    void aDelayedAnswerTakesItsTime() {
        comeUp();
        link->setDelayMs(50);
        QElapsedTimer wall;
        wall.start();
        link->send(message(1, Verb::Get, "a"));
        Answer answer;
        QVERIFY(!link->receive(&answer, 0));
        QVERIFY(link->receive(&answer, 500));
        QVERIFY(wall.elapsed() >= 40);
    }

    void answersComeInTheOrderInWhichTheyAreDue() {
        comeUp();
        link->setDelayMs(80);
        link->send(message(1, Verb::Get, "a"));
        link->setDelayMs(10);
        link->send(message(2, Verb::Get, "b"));
        link->send(message(3, Verb::Get, "a"));
        Answer answer;
        QStringList ids;
        while (link->receive(&answer, 100))
            ids << QString::number(answer.id);
        QCOMPARE(ids, (QStringList{"2", "3", "1"}));
    }

    void anAnswerThatNobodyWaitsForComesFromTheEventLoop() {
        comeUp();
        link->send(message(1, Verb::Get, "a"));
        link->setDelayMs(20);
        link->send(message(2, Verb::Get, "b"));
        QCOMPARE(told, QStringList());
        QTRY_COMPARE(told, (QStringList{"1:\"value of a\"", "2:\"value of b\""}));
    }

    void answersAreDroppedWhenTheLinkGoesDown() {
        comeUp();
        link->setDelayMs(20);
        link->send(message(1, Verb::Get, "a"));
        link->send(message(2, Verb::Get, "a"));
        link->setUp(false);
        link->setUp(true);
        told.clear();
        Answer answer;
        QVERIFY(!link->receive(&answer, 40));
        QTest::qWait(10);
        QCOMPARE(told, QStringList());
    }

    void aListenerMayTakeTheLinkDown() {
        comeUp();
        connect(link.get(), &Link::answered, link.get(), [this] { link->setUp(false); });
        link->send(message(1, Verb::Get, "a"));
        link->send(message(2, Verb::Get, "a"));
        QTRY_COMPARE(told, (QStringList{"1:\"value of a\"", "down"}));
        QTest::qWait(10);
        QCOMPARE(told.size(), 2);
    }

    void anAnswerMadeWhileTheLinkWentDownIsLost() {
        comeUp();
        controller->bus()->onCommand("cut", [this](const Content&) {
            link->setUp(false);
            link->setUp(true);
            return content("1");
        });
        link->send(message(1, Verb::Execute, "cut"));
        Answer answer;
        QVERIFY(!link->receive(&answer, 0));
    }

    void deliveriesComeFromTheEventLoopAlone() {
        comeUp();
        link->send(message(1, Verb::Watch, "a"));
        link->send(message(2, Verb::Set, "a", content("1")));
        link->send(message(3, Verb::Set, "b", content("1")));
        link->send(message(4, Verb::Get, "a"));
        Answer answer;
        QVERIFY(link->receive(&answer, 0));
        QVERIFY(!link->receive(&answer, 30));
        QCOMPARE(told, QStringList());
        arrive();
        QCOMPARE(told, QStringList("a=1"));
    }

    void unwatchingEndsTheDeliveries() {
        comeUp();
        link->send(message(1, Verb::Watch, "a"));
        link->send(message(2, Verb::Unwatch, "a"));
        controller->bus()->write("a", 1);
        arrive();
        QCOMPARE(told, QStringList());
        QVERIFY(!controller->bus()->isWatched("a"));
    }

    void watchesAndDeliveriesAreForgottenWhenTheLinkGoesDown() {
        comeUp();
        link->send(message(1, Verb::Watch, "a"));
        controller->bus()->write("a", 1);
        link->setUp(false);
        QVERIFY(!controller->bus()->isWatched("a"));
        link->setUp(true);
        controller->bus()->write("a", 2);
        told.clear();
        arrive();
        QCOMPARE(told, QStringList());
        link->send(message(2, Verb::Watch, "a"));
        controller->bus()->write("a", 3);
        arrive();
        QCOMPARE(told, QStringList("a=3"));
    }

    void watchesOfAnotherLinkAreItsOwn() {
        EmbeddedLink other(controller.get());
        QStringList toldOther;
        connect(&other, &Link::delivered, this, [&](const QString& key) { toldOther << key; });
        connect(&other, &Link::noticed, this, [&](const QString& line) { toldOther << line; });
        comeUp();
        other.setUp(true);
        link->send(message(1, Verb::Watch, "a"));
        other.send(message(2, Verb::Watch, "b"));
        controller->bus()->write("a", 1);
        controller->bus()->write("b", 1);
        link->send(message(3, Verb::Get, "none"));
        arrive();
        QCOMPARE(told.filter("=") + told.filter("\"none\""),
                 (QStringList{"a=1", "The controller knows no bus key \"none\""}));
        QCOMPARE(toldOther, QStringList("b"));
        other.setUp(false);
        QVERIFY(controller->bus()->isWatched("a"));
    }

    void whatTheControllerDoesNotKnowIsNoticedFromTheEventLoop() {
        comeUp();
        link->send(message(1, Verb::Watch, "none"));
        QCOMPARE(told, QStringList());
        arrive();
        QCOMPARE(told, QStringList("The controller knows no bus key \"none\""));
    }

    void whoHearsAnAnswerMayDestroyTheLink() {
        comeUp();
        connect(link.get(), &Link::answered, controller.get(), [this] { link.reset(); });
        link->send(message(1, Verb::Get, "a"));
        link->send(message(2, Verb::Get, "a"));
        QTRY_VERIFY(!link);
    }

    void aCommandMayDestroyTheLink() {
        comeUp();
        controller->bus()->onCommand("cut", [this](const Content&) {
            link.reset();
            return content("1");
        });
        link->send(message(1, Verb::Execute, "cut"));
        QVERIFY(!link);
    }

    void aCommandMayDestroyTheController() {
        comeUp();
        controller->bus()->onCommand("cut", [this](const Content&) {
            link.reset();
            controller.reset();
            return content("1");
        });
        link->send(message(1, Verb::Execute, "cut"));
        QVERIFY(!controller);
    }

    void afterAHandlerThrewNothingIsTakenForItsNotice() {
        comeUp();
        controller->bus()->onCommand("open", [](const Content&) -> Content { throw std::runtime_error("jammed"); });
        QVERIFY_EXCEPTION_THROWN(link->send(message(1, Verb::Command, "open")), std::runtime_error);
        controller->bus()->get("none", "");
        arrive();
        QCOMPARE(told, QStringList());
    }

    void theDelayCountsFromTheQuestionOn() {
        comeUp();
        controller->bus()->onCommand("slow", [](const Content&) {
            QThread::msleep(100);
            return content("1");
        });
        link->setDelayMs(100);
        QElapsedTimer wall;
        wall.start();
        link->send(message(1, Verb::Execute, "slow"));
        Answer answer;
        QVERIFY(link->receive(&answer, 50));
        QVERIFY2(wall.elapsed() < 190, qPrintable(QString::number(wall.elapsed())));
    }

    void aHandlerThatTakesLongerThanTheTimeOutIsTooLate() {
        Channel channel("test");
        channel.setLink(link.get());
        comeUp();
        controller->bus()->onCommand("slow", [](const Content&) {
            QThread::msleep(60);
            return content("1");
        });
        QStringList kinds;
        connect(Traffic::instance(), &Traffic::recorded, &channel,
                [&](const TrafficEntry& entry) { kinds << entry.kind; });
        QCOMPARE(channel.ask(nullptr, message(0, Verb::Execute, "slow"), 20).state, Channel::Reply::TimedOut);
        QTRY_COMPARE(kinds.join(' '), QString("execute time-out late"));
        channel.setLink(nullptr);
    }

    void faultsSpoilAnswers_data() {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<bool>("comes");
        QTest::addColumn<QString>("json");
        QTest::newRow("none") << Fault::None << true << "{\"ok\":true}";
        QTest::newRow("lost") << Fault::Lost << false << "";
        QTest::newRow("null") << Fault::Null << true << "null";
        QTest::newRow("malformed") << Fault::Malformed << true << "\"?\"";
    }

    void faultsSpoilAnswers() {
        QFETCH(Fault, fault);
        QFETCH(bool, comes);
        QFETCH(QString, json);
        comeUp();
        int done = 0;
        controller->bus()->onCommand("open", [&](const Content&) {
            ++done;
            return content("{\"ok\":true}");
        });
        link->setFault(fault);
        link->send(message(1, Verb::Execute, "open"));
        QCOMPARE(done, 1);
        Answer answer;
        QCOMPARE(link->receive(&answer, 0), comes);
        QCOMPARE(comes ? text(answer.content) : QString(), json);
        QCOMPARE(bool(answer.content), fault == Fault::None || fault == Fault::Malformed);
        link->setFault(Fault::None);
        link->send(message(2, Verb::Execute, "open"));
        QVERIFY(link->receive(&answer, 0));
        QCOMPARE(text(answer.content), QString("{\"ok\":true}"));
    }

    void childrenKeepTheirOrderOnTheWay() {
        comeUp();
        controller->bus()->onCommand("echo", [](const Content& sent) { return sent; });
        const Content sent = content("null");
        for (const char* name : {"#2", "#10", "b", "a"})
            sent->append(nullptr, name)->setValue(nullptr, 1);
        link->send(message(1, Verb::Execute, "echo", sent));
        Answer answer;
        QVERIFY(link->receive(&answer, 0));
        QCOMPARE(childNames(answer.content), QString("#2 #10 b a"));
    }

    void aLateAnswerIsNotTakenForTheNextOne() {
        Channel channel("test");
        channel.setLink(link.get());
        comeUp();
        QStringList kinds;
        connect(Traffic::instance(), &Traffic::recorded, &channel,
                [&](const TrafficEntry& entry) { kinds << entry.kind; });
        link->setDelayMs(40);
        const Channel::Reply late = channel.ask(nullptr, message(0, Verb::Get, "a"), 10);
        QCOMPARE(late.state, Channel::Reply::TimedOut);
        const Channel::Reply next = channel.ask(nullptr, message(0, Verb::Get, "b"), 500);
        QCOMPARE(next.state, Channel::Reply::Answered);
        QCOMPARE(text(next.content), QString("\"value of b\""));
        QCOMPARE(kinds, (QStringList{"get", "time-out", "get", "late", "answer"}));
        channel.setLink(nullptr);
    }

    void aLateAnswerIsDroppedByTheEventLoopToo() {
        Channel channel("test");
        channel.setLink(link.get());
        comeUp();
        QStringList kinds;
        connect(Traffic::instance(), &Traffic::recorded, &channel,
                [&](const TrafficEntry& entry) { kinds << entry.kind; });
        link->setDelayMs(30);
        QCOMPARE(channel.ask(nullptr, message(0, Verb::Get, "a"), 10).state, Channel::Reply::TimedOut);
        QTRY_COMPARE(kinds, (QStringList{"get", "time-out", "late"}));
        channel.setLink(nullptr);
    }

    void aDestroyedLinkLeavesNoWatches() {
        comeUp();
        link->send(message(1, Verb::Watch, "a"));
        link.reset();
        QVERIFY(!controller->bus()->isWatched("a"));
        controller->bus()->write("a", 1);
    }

private:
    void comeUp() {
        link->setUp(true);
        told.clear();
    }

    static void arrive() { QCoreApplication::processEvents(); }

    std::unique_ptr<VirtualController> controller;
    std::unique_ptr<EmbeddedLink> link;
    QStringList told;
};

QTEST_GUILESS_MAIN(TestEmbeddedLink)
#include "tst_embeddedlink.moc"
