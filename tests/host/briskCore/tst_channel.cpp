#include "brisk/channel.h"
#include "brisk/traffic.h"
#include "pendanttest/fakelink.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using brisk::standin::Answer;
using brisk::standin::Channel;
using brisk::standin::Content;
using brisk::standin::contentOf;
using brisk::standin::jsonOf;
using brisk::standin::Message;
using brisk::standin::Verb;
using pendanttest::FakeLink;

namespace {

Message messageOf(const QString& key, Verb verb = Verb::Execute) {
    return {0, verb, key, QString(), nullptr, false};
}

} // namespace

class Channels : public QObject {
    Q_OBJECT

private slots:
    void thereAreTwo();
    void withoutALinkItIsDownAndSendsNothing();
    void aLinkThatIsUpBringsItUp();
    void goingUpAndDownIsTold();
    void changesAreToldOneAfterTheOther();
    void aNewLinkIsToldOfAsOneThatCameUp();
    void aLinkThatGoesDownEndsTheWaiting();
    void aLinkThatIsDeletedCountsAsDown();
    void aLinkThatWasTakenAwayIsHeardNoMore();
    void eachMessageHasANumberOfItsOwn();
    void onlyAQuestionWantsAnAnswer();
    void theAnswerOfAQuestionComesBack();
    void anAnswerMayBeNothingAtAll();
    void withoutAnAnswerAQuestionTimesOut();
    void aLateAnswerIsNotTakenForTheNextQuestions();
    void aPostedQuestionIsAnsweredFromTheEventLoop();
    void aPostedQuestionsAnswerInTheWayOfAnotherIsKept();
    void aPostedQuestionIsAnsweredOnceOnly();
    void afterItsTimeAPostedAnswerIsDropped();
    void whatWasPostedIsForgottenWhenTheLinkGoesDown();
    void anAnswerInTimeWaitsForTheEventLoop();
    void whatIsPostedAllTheTimeTimesOutAllTheSame();
    void aQuestionInTheMiddleOfAnotherTakesNothingFromIt();
    void deliveriesAndNoticesAreHandedOn();
};

void Channels::thereAreTwo() {
    QCOMPARE(Channel::bus(), Channel::bus());
    QVERIFY(Channel::bus() != Channel::controller());
    QCOMPARE(Channel::bus()->name(), QString("bus"));
    QCOMPARE(Channel::controller()->name(), QString("controller"));
}

void Channels::withoutALinkItIsDownAndSendsNothing() {
    Channel channel("bus");
    QVERIFY(!channel.isUp());
    QVERIFY(!channel.link());
    QVERIFY(!channel.send(nullptr, messageOf("io")));
    QVERIFY(!channel.post(nullptr, messageOf("io"), 100));
    const Channel::Reply reply = channel.ask(nullptr, messageOf("io"), 100);
    QCOMPARE(reply.state, Channel::Reply::Down);
    QVERIFY(!reply.content);
}

void Channels::aLinkThatIsUpBringsItUp() {
    Channel channel("bus");
    QSignalSpy up(&channel, &Channel::upChanged);
    FakeLink link(&channel);
    QVERIFY(channel.isUp());
    QCOMPARE(channel.link(), &link);
    QCOMPARE(up.size(), 1);
    QCOMPARE(up.first().first().toBool(), true);
}

void Channels::goingUpAndDownIsTold() {
    Channel channel("bus");
    FakeLink link(&channel);
    QList<bool> told;
    QObject context;
    connect(&channel, &Channel::upChanged, &context, [&](bool up) {
        QCOMPARE(channel.isUp(), up);
        told << up;
    });
    link.setUp(false);
    link.setUp(false);
    QVERIFY(!channel.send(nullptr, messageOf("io")));
    link.setUp(true);
    QVERIFY(channel.send(nullptr, messageOf("io")));
    QCOMPARE(told, QList<bool>({false, true}));
    QCOMPARE(link.sent.size(), 1);
}

void Channels::changesAreToldOneAfterTheOther() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.setUp(false);
    QList<bool> first;
    QList<bool> second;
    QObject context;
    connect(&channel, &Channel::upChanged, &context, [&](bool up) {
        first << up;
        link.setUp(false);
    });
    connect(&channel, &Channel::upChanged, &context, [&](bool up) { second << up; });
    link.setUp(true);
    QCOMPARE(first, QList<bool>({true, false}));
    QCOMPARE(second, QList<bool>({true, false}));
    QVERIFY(!channel.isUp());
}

void Channels::aNewLinkIsToldOfAsOneThatCameUp() {
    Channel channel("bus");
    FakeLink first(&channel);
    QSignalSpy up(&channel, &Channel::upChanged);
    FakeLink second(&channel);
    QCOMPARE(up.size(), 2);
    QCOMPARE(up.at(0).first().toBool(), false);
    QCOMPARE(up.at(1).first().toBool(), true);
}

void Channels::aLinkThatGoesDownEndsTheWaiting() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.reply = [&](const Message&) -> Content {
        link.setUp(false);
        return nullptr;
    };
    QCOMPARE(channel.ask(nullptr, messageOf("io"), 10000).state, Channel::Reply::Down);
}

void Channels::aLinkThatIsDeletedCountsAsDown() {
    class Vanishing : public brisk::standin::Link {
    public:
        bool isUp() const override { return true; }
        void setUp(bool) override {}
        void send(const Message&) override {}
        bool receive(Answer*, int) override { return false; }
    };
    Channel channel("bus");
    auto link = std::make_unique<Vanishing>();
    channel.setLink(link.get());
    QSignalSpy up(&channel, &Channel::upChanged);
    link.reset();
    QCOMPARE(up.size(), 1);
    QVERIFY(!channel.isUp());
    QVERIFY(!channel.send(nullptr, messageOf("io")));
}

void Channels::aLinkThatWasTakenAwayIsHeardNoMore() {
    Channel channel("bus");
    FakeLink first(&channel);
    FakeLink second(&channel);
    QSignalSpy delivered(&channel, &Channel::delivered);
    QSignalSpy up(&channel, &Channel::upChanged);
    first.deliver("io", 1);
    first.setUp(false);
    QCOMPARE(channel.link(), &second);
    QCOMPARE(delivered.size(), 0);
    QCOMPARE(up.size(), 0);
}

void Channels::eachMessageHasANumberOfItsOwn() {
    Channel channel("bus");
    FakeLink link(&channel);
    channel.send(nullptr, messageOf("a"));
    channel.ask(nullptr, messageOf("b"), 1000);
    channel.post(nullptr, messageOf("c"), 10);
    QVERIFY(link.sent.at(0).id < link.sent.at(1).id);
    QVERIFY(link.sent.at(1).id < link.sent.at(2).id);
}

void Channels::onlyAQuestionWantsAnAnswer() {
    Channel channel("bus");
    FakeLink link(&channel);
    Message message = messageOf("a");
    message.wantsAnswer = true;
    channel.send(nullptr, message);
    channel.ask(nullptr, messageOf("b"), 1000);
    channel.post(nullptr, messageOf("c"), 10);
    QVERIFY(!link.sent.at(0).wantsAnswer);
    QVERIFY(link.sent.at(1).wantsAnswer);
    QVERIFY(link.sent.at(2).wantsAnswer);
}

void Channels::theAnswerOfAQuestionComesBack() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.reply = [](const Message& message) { return contentOf(QVariant("for " + message.key)); };
    const Channel::Reply reply = channel.ask(nullptr, messageOf("io"), 1000);
    QCOMPARE(reply.state, Channel::Reply::Answered);
    QCOMPARE(reply.content->getString(), QString("for io"));
}

void Channels::anAnswerMayBeNothingAtAll() {
    Channel channel("bus");
    FakeLink link(&channel);
    const Channel::Reply reply = channel.ask(nullptr, messageOf("io"), 1000);
    QCOMPARE(reply.state, Channel::Reply::Answered);
    QVERIFY(!reply.content);
}

void Channels::withoutAnAnswerAQuestionTimesOut() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.answers = false;
    QCOMPARE(channel.ask(nullptr, messageOf("io"), 1000).state, Channel::Reply::TimedOut);
}

void Channels::aLateAnswerIsNotTakenForTheNextQuestions() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.answers = false;
    QCOMPARE(channel.ask(nullptr, messageOf("io"), 1000).state, Channel::Reply::TimedOut);
    link.queue({link.sent.first().id, contentOf(QVariant("late"))});
    link.answers = true;
    link.answerWith(contentOf(QVariant("in time")));
    const Channel::Reply reply = channel.ask(nullptr, messageOf("io"), 1000);
    QCOMPARE(reply.state, Channel::Reply::Answered);
    QCOMPARE(reply.content->getString(), QString("in time"));
}

void Channels::aPostedQuestionIsAnsweredFromTheEventLoop() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    QStringList answers;
    connect(&channel, &Channel::answered, this,
            [&](const QString& key, const Content& content) { answers << key + '=' + content->getString(); });
    QVERIFY(channel.post(nullptr, messageOf("io"), 1000));
    emit link.answered({link.sent.first().id, contentOf(QVariant("yes"))});
    QCOMPARE(answers, QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(answers, QStringList("io=yes"));
}

void Channels::aPostedQuestionsAnswerInTheWayOfAnotherIsKept() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.reply = [](const Message& message) { return contentOf(QVariant(message.key)); };
    QSignalSpy answered(&channel, &Channel::answered);
    channel.post(nullptr, messageOf("posted"), 1000);
    QCOMPARE(channel.ask(nullptr, messageOf("asked"), 1000).content->getString(), QString("asked"));
    QCOMPARE(answered.size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(answered.size(), 1);
    QCOMPARE(answered.first().first().toString(), QString("posted"));
}

void Channels::aPostedQuestionIsAnsweredOnceOnly() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    QSignalSpy answered(&channel, &Channel::answered);
    channel.post(nullptr, messageOf("io"), 1000);
    for (int i = 0; i < 2; ++i)
        emit link.answered({link.sent.first().id, contentOf(QVariant(i))});
    QCoreApplication::processEvents();
    QCOMPARE(answered.size(), 1);
}

void Channels::afterItsTimeAPostedAnswerIsDropped() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    QSignalSpy answered(&channel, &Channel::answered);
    channel.post(nullptr, messageOf("io"), 5);
    QTest::qSleep(20);
    emit link.answered({link.sent.first().id, contentOf(QVariant("late"))});
    QCoreApplication::processEvents();
    QCOMPARE(answered.size(), 0);
}

void Channels::whatWasPostedIsForgottenWhenTheLinkGoesDown() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    QSignalSpy answered(&channel, &Channel::answered);
    channel.post(nullptr, messageOf("io"), 1000);
    link.setUp(false);
    link.setUp(true);
    emit link.answered({link.sent.first().id, contentOf(QVariant("old"))});
    QCoreApplication::processEvents();
    QCOMPARE(answered.size(), 0);
}

void Channels::anAnswerInTimeWaitsForTheEventLoop() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    QSignalSpy answered(&channel, &Channel::answered);
    channel.post(nullptr, messageOf("io"), 20);
    emit link.answered({link.sent.first().id, contentOf(QVariant("in time"))});
    QTest::qSleep(40);
    QCoreApplication::processEvents();
    QCOMPARE(answered.size(), 1);
}

void Channels::whatIsPostedAllTheTimeTimesOutAllTheSame() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    int timeOuts = 0;
    QObject context;
    connect(brisk::standin::Traffic::instance(), &brisk::standin::Traffic::recorded, &context,
            [&](const brisk::standin::TrafficEntry& entry) { timeOuts += entry.kind == "time-out"; });
    QTimer poll;
    connect(&poll, &QTimer::timeout, &channel, [&] { channel.post(nullptr, messageOf("io"), 5); });
    poll.start(100);
    QTRY_VERIFY_WITH_TIMEOUT(timeOuts > 0, 5000);
}

void Channels::aQuestionInTheMiddleOfAnotherTakesNothingFromIt() {
    Channel channel("bus");
    FakeLink link(&channel);
    QString inner;
    link.reply = [&](const Message& message) {
        if (message.key == "outer")
            inner = channel.ask(nullptr, messageOf("inner"), 1000).content->getString();
        return contentOf(QVariant(message.key));
    };
    QCOMPARE(channel.ask(nullptr, messageOf("outer"), 1000).content->getString(), QString("outer"));
    QCOMPARE(inner, QString("inner"));
    link.queue({0, nullptr});
    QCOMPARE(channel.ask(nullptr, messageOf("next"), 1000).content->getString(), QString("next"));
}

void Channels::deliveriesAndNoticesAreHandedOn() {
    Channel channel("bus");
    FakeLink link(&channel);
    QSignalSpy noticed(&channel, &Channel::noticed);
    QJsonValue seen;
    connect(&channel, &Channel::delivered, this,
            [&](const QString& key, const Content& content) { seen = key == "io" ? jsonOf(content) : QJsonValue(); });
    link.deliver("io", 7);
    emit link.noticed("There is no such key.");
    QCOMPARE(seen, QJsonValue(7));
    QCOMPARE(noticed.first().first().toString(), QString("There is no such key."));
}

QTEST_GUILESS_MAIN(Channels)
#include "tst_channel.moc"
