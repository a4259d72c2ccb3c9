#include "brisk/channel.h"

#include "brisk/traffic.h"
#include "pendinganswers.h"
#include "trafficwriter.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QSet>
#include <QTimer>

#include <algorithm>

namespace brisk {
namespace standin {

namespace {

const int sweepMs = 1000;

quint64 nextId() {
    static quint64 last = 0;
    return ++last;
}

} // namespace

struct Channel::Private {
    Private(Channel* owner, const QString& channelName) : q(owner), name(channelName), writer(channelName) {
        clock.start();
        sweep.setInterval(sweepMs);
        QObject::connect(&sweep, &QTimer::timeout, q, [this] { forgetExpired(); });
    }

    bool begin(const QObject* sender, Message* message);
    bool awaitAnswer(quint64 id, qint64 deadlineMs);
    void tellEnd(const Message& message, bool isAnswered, const Content& content, qint64 startNs);
    void followUp();
    void listenTo(Link* link);
    void take(const Answer& answer);
    void handOver(const PendingAnswers::Question& question, const Content& content);
    void deliver(const QString& key, const Content& content);
    void forgetExpired();
    void tellTimeOuts(const QList<PendingAnswers::Question>& questions);

    Channel* q;
    QString name;
    TrafficWriter writer;
    QPointer<Link> link;
    bool wasUp = false;
    bool telling = false;
    QElapsedTimer clock;
    PendingAnswers pending;
    QTimer sweep; ///< runs while there are pending answers
    // Of questions that hold the thread: there are several when something asks while it is told of traffic.
    QSet<quint64> asking;
    QHash<quint64, Content> arrived;
};

Channel::Channel(const QString& name) : d(new Private(this, name)) {}
Channel::~Channel() = default;

// Never destroyed: what uses a link may do so until the very end.
Channel* Channel::bus() {
    static auto* channel = new Channel(QStringLiteral("bus"));
    return channel;
}

Channel* Channel::controller() {
    static auto* channel = new Channel(QStringLiteral("controller"));
    return channel;
}

QString Channel::name() const {
    return d->name;
}

Link* Channel::link() const {
    return d->link;
}

void Channel::setLink(Link* link) {
    if (d->link)
        disconnect(d->link, nullptr, this, nullptr);
    // Whoever follows the link hears that the old one is gone, also when the new one is up.
    d->link = nullptr;
    d->followUp();
    d->link = link;
    if (link)
        d->listenTo(link);
    d->followUp();
}

void Channel::Private::listenTo(Link* heard) {
    connect(heard, &Link::upChanged, q, [this] { followUp(); });
    connect(heard, &QObject::destroyed, q, [this] { followUp(); });
    connect(heard, &Link::answered, q, [this](const Answer& answer) { take(answer); });
    connect(heard, &Link::delivered, q, [this](const QString& key, const Content& content) { deliver(key, content); });
    connect(heard, &Link::noticed, q, [this](const QString& text) {
        writer.notice(text);
        emit q->noticed(text);
    });
}

bool Channel::isUp() const {
    return d->link && d->link->isUp();
}

void Channel::Private::followUp() {
    if (telling)
        return;
    const QScopedValueRollback<bool> once(telling, true);
    while (q->isUp() != wasUp) {
        wasUp = !wasUp;
        if (!wasUp)
            tellTimeOuts(pending.takeAll());
        emit q->upChanged(wasUp);
    }
}

// Gives the message its number; false with the link down.
bool Channel::Private::begin(const QObject* sender, Message* message) {
    message->id = nextId();
    writer.out(*message, sender, !q->isUp());
    return q->isUp();
}

bool Channel::send(const QObject* sender, Message message) {
    message.wantsAnswer = false;
    if (!d->begin(sender, &message))
        return false;
    d->link->send(message);
    return true;
}

bool Channel::post(const QObject* sender, Message message, int timeoutMs) {
    message.wantsAnswer = true;
    if (!d->begin(sender, &message))
        return false;
    const qint64 nowMs = d->clock.elapsed();
    d->pending.add(message.id, {message.key, nowMs, nowMs + std::max(0, timeoutMs)});
    if (!d->sweep.isActive())
        d->sweep.start();
    d->link->send(message);
    return true;
}

Channel::Reply Channel::ask(const QObject* sender, Message message, int timeoutMs) {
    message.wantsAnswer = true;
    if (!d->begin(sender, &message))
        return {Reply::Down, nullptr};
    const qint64 startNs = d->clock.nsecsElapsed();
    const qint64 deadlineMs = d->clock.elapsed() + std::max(0, timeoutMs);
    d->asking.insert(message.id);
    // What carries the message out may throw.
    const auto asked = qScopeGuard([this, id = message.id] { d->asking.remove(id); });
    d->link->send(message);
    const bool isAnswered = d->awaitAnswer(message.id, deadlineMs);
    const Content content = d->arrived.take(message.id);
    if (TrafficWriter::isHeard())
        d->tellEnd(message, isAnswered, content, startNs);
    if (isAnswered)
        return {Reply::Answered, content};
    return {isUp() ? Reply::TimedOut : Reply::Down, nullptr};
}

void Channel::Private::tellEnd(const Message& message, bool isAnswered, const Content& content, qint64 startNs) {
    const qint64 tookNs = clock.nsecsElapsed() - startNs;
    if (isAnswered)
        writer.answer(keyOf(message), content, tookNs);
    else
        writer.timeOut(keyOf(message), tookNs);
}

bool Channel::Private::awaitAnswer(quint64 id, qint64 deadlineMs) {
    Answer answer;
    while (!arrived.contains(id)) {
        // Sending may have taken longer than there was time.
        const qint64 leftMs = deadlineMs - clock.elapsed();
        if (leftMs < 0 || !q->isUp() || !link->receive(&answer, static_cast<int>(leftMs)))
            return arrived.contains(id);
        take(answer);
    }
    return true;
}

// What is pending is told from the event loop: it may have come while another question holds the thread.
void Channel::Private::take(const Answer& answer) {
    if (asking.contains(answer.id)) {
        arrived.insert(answer.id, answer.content);
        return;
    }
    if (!pending.contains(answer.id))
        return writer.late(answer.content);
    const PendingAnswers::Question question = pending.take(answer.id);
    const Content content = answer.content;
    if (clock.elapsed() > question.deadlineMs) {
        tellTimeOuts({question});
        return writer.late(content);
    }
    QMetaObject::invokeMethod(
        q, [this, question, content] { handOver(question, content); }, Qt::QueuedConnection);
}

void Channel::Private::handOver(const PendingAnswers::Question& question, const Content& content) {
    writer.answer(question.key, content, (clock.elapsed() - question.askedMs) * 1000000);
    emit q->answered(question.key, content);
}

void Channel::Private::deliver(const QString& key, const Content& content) {
    if (!TrafficWriter::isHeard()) {
        emit q->delivered(key, content);
        return;
    }
    const qint64 startNs = clock.nsecsElapsed();
    const QDateTime time = QDateTime::currentDateTime();
    emit q->delivered(key, content);
    writer.delivery(time, key, content, clock.nsecsElapsed() - startNs);
}

void Channel::Private::forgetExpired() {
    tellTimeOuts(pending.takeExpired(clock.elapsed()));
    if (pending.isEmpty())
        sweep.stop();
}

void Channel::Private::tellTimeOuts(const QList<PendingAnswers::Question>& questions) {
    for (const PendingAnswers::Question& question : questions)
        writer.timeOut(question.key, (clock.elapsed() - question.askedMs) * 1000000);
}

} // namespace standin
} // namespace brisk
