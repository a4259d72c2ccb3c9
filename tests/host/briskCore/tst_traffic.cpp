#include "brisk/channel.h"
#include "brisk/traffic.h"
#include "pendanttest/fakelink.h"

#include <QJsonObject>
#include <QTest>

#include <stdexcept>

using brisk::standin::Channel;
using brisk::standin::contentOf;
using brisk::standin::Message;
using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;
using brisk::standin::Verb;
using pendanttest::FakeLink;

Q_DECLARE_METATYPE(brisk::standin::Verb)

class TrafficOfChannels : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nobodyListensAtFirst();
    void everyKindOfMessageIsTold_data();
    void everyKindOfMessageIsTold();
    void aMessageThatIsNotSentIsMarked();
    void theSenderIsNamed();
    void anAnswerTellsHowLongItTook();
    void aTimeOutIsTold();
    void whatIsPostedWhenTheLinkGoesDownIsTold();
    void anAnswerThatCameTooLateIsTold();
    void anAnswerToAQuestionThatThrewIsLate();
    void aPostedAnswerIsTold();
    void aDeliveryTellsHowLongItsListenersTook();
    void aNoticeIsTold();

private:
    QList<TrafficEntry> m_entries;
    QMetaObject::Connection m_connection;
};

void TrafficOfChannels::init() {
    m_entries.clear();
    m_connection = connect(Traffic::instance(), &Traffic::recorded, this,
                           [this](const TrafficEntry& entry) { m_entries << entry; });
}

void TrafficOfChannels::cleanup() {
    disconnect(m_connection);
}

void TrafficOfChannels::nobodyListensAtFirst() {
    QVERIFY(Traffic::instance()->isHeard());
    disconnect(m_connection);
    QVERIFY(!Traffic::instance()->isHeard());
    Channel("bus").send(nullptr, {});
    QCOMPARE(m_entries.size(), 0);
}

void TrafficOfChannels::everyKindOfMessageIsTold_data() {
    QTest::addColumn<Verb>("verb");
    QTest::addColumn<QString>("kind");
    QTest::newRow("get") << Verb::Get << "get";
    QTest::newRow("set") << Verb::Set << "set";
    QTest::newRow("command") << Verb::Command << "command";
    QTest::newRow("execute") << Verb::Execute << "execute";
    QTest::newRow("watch") << Verb::Watch << "watch";
    QTest::newRow("unwatch") << Verb::Unwatch << "unwatch";
    QTest::newRow("request") << Verb::Request << "request";
}

void TrafficOfChannels::everyKindOfMessageIsTold() {
    QFETCH(Verb, verb);
    QFETCH(QString, kind);
    Channel channel("controller");
    const FakeLink link(&channel);
    channel.send(nullptr, {0, verb, "io", "do1", contentOf(QVariant(true)), false});
    QCOMPARE(m_entries.size(), 1);
    const TrafficEntry entry = m_entries.first();
    QCOMPARE(entry.kind, kind);
    QCOMPARE(entry.direction, TrafficEntry::Direction::Out);
    QCOMPARE(entry.channel, QString("controller"));
    QCOMPARE(entry.key, QString("io.do1"));
    QCOMPARE(entry.value, QJsonValue(true));
    QCOMPARE(entry.sender, QString());
    QCOMPARE(entry.durationMs, -1.0);
    QVERIFY(!entry.linkDown);
    QVERIFY(qAbs(entry.time.msecsTo(QDateTime::currentDateTime())) < 60000);
}

void TrafficOfChannels::aMessageThatIsNotSentIsMarked() {
    Channel("bus").ask(nullptr, {0, Verb::Get, "io", QString(), nullptr, true}, 1000);
    QCOMPARE(m_entries.size(), 1);
    QVERIFY(m_entries.first().linkDown);
}

void TrafficOfChannels::theSenderIsNamed() {
    Channel channel("bus");
    QObject sender;
    channel.send(&sender, {});
    sender.setObjectName("gripper");
    channel.send(&sender, {});
    QCOMPARE(m_entries.at(0).sender, QString("QObject"));
    QCOMPARE(m_entries.at(1).sender, QString("gripper"));
}

void TrafficOfChannels::anAnswerTellsHowLongItTook() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.reply = [](const Message&) {
        QTest::qSleep(5);
        return contentOf(QVariant(QJsonObject{{"ok", true}}));
    };
    channel.ask(nullptr, {0, Verb::Get, "io", "di1", nullptr, true}, 1000);
    QCOMPARE(m_entries.size(), 2);
    QCOMPARE(m_entries.at(1).kind, QString("answer"));
    QCOMPARE(m_entries.at(1).direction, TrafficEntry::Direction::In);
    QCOMPARE(m_entries.at(1).key, QString("io.di1"));
    QCOMPARE(m_entries.at(1).value, QJsonValue(QJsonObject{{"ok", true}}));
    QVERIFY(m_entries.at(1).durationMs >= 5);
}

void TrafficOfChannels::aTimeOutIsTold() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.answers = false;
    channel.ask(nullptr, {0, Verb::Get, "io", QString(), nullptr, true}, 1000);
    QCOMPARE(m_entries.last().kind, QString("time-out"));
    QVERIFY(m_entries.last().durationMs >= 0);
}

void TrafficOfChannels::whatIsPostedWhenTheLinkGoesDownIsTold() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    channel.post(nullptr, {0, Verb::Request, "a.b", QString(), nullptr, true}, 1000);
    link.setUp(false);
    QCOMPARE(m_entries.last().kind, QString("time-out"));
    QCOMPARE(m_entries.last().key, QString("a.b"));
}

void TrafficOfChannels::anAnswerThatCameTooLateIsTold() {
    Channel channel("bus");
    FakeLink link(&channel);
    emit link.answered({1, contentOf(QVariant("old"))});
    QCOMPARE(m_entries.size(), 1);
    QCOMPARE(m_entries.first().kind, QString("late"));
    QCOMPARE(m_entries.first().value, QJsonValue("old"));
}

void TrafficOfChannels::anAnswerToAQuestionThatThrewIsLate() {
    Channel channel("bus");
    FakeLink link(&channel);
    link.reply = [](const Message&) -> brisk::standin::Content { throw std::runtime_error("boom"); };
    QVERIFY_EXCEPTION_THROWN(channel.ask(nullptr, {0, Verb::Get, "io", QString(), nullptr, true}, 1000),
                             std::runtime_error);
    emit link.answered({link.sent.first().id, contentOf(QVariant("old"))});
    QCOMPARE(m_entries.last().kind, QString("late"));
}

void TrafficOfChannels::aPostedAnswerIsTold() {
    Channel channel("controller");
    FakeLink link(&channel);
    link.answers = false;
    channel.post(nullptr, {0, Verb::Request, "a.b", QString(), nullptr, true}, 1000);
    emit link.answered({link.sent.first().id, contentOf(QVariant(3))});
    QCoreApplication::processEvents();
    QCOMPARE(m_entries.last().kind, QString("answer"));
    QCOMPARE(m_entries.last().key, QString("a.b"));
    QCOMPARE(m_entries.last().value, QJsonValue(3));
}

void TrafficOfChannels::aDeliveryTellsHowLongItsListenersTook() {
    Channel channel("bus");
    FakeLink link(&channel);
    connect(&channel, &Channel::delivered, this, [] { QTest::qSleep(5); });
    link.deliver("io", 1);
    QCOMPARE(m_entries.size(), 1);
    QCOMPARE(m_entries.first().kind, QString("delivery"));
    QCOMPARE(m_entries.first().value, QJsonValue(1));
    QVERIFY(m_entries.first().durationMs >= 5);
}

void TrafficOfChannels::aNoticeIsTold() {
    Channel channel("bus");
    FakeLink link(&channel);
    emit link.noticed("There is no such key.");
    QCOMPARE(m_entries.first().kind, QString("notice"));
    QCOMPARE(m_entries.first().value, QJsonValue("There is no such key."));
}

QTEST_GUILESS_MAIN(TrafficOfChannels)
#include "tst_traffic.moc"
