#include "brisk/channel.h"

#include "brisk/traffic.h"
#include "pendinganswers.h"
#include "trafficwriter.h"

#include <QElapsedTimer>
#include <QPointer>
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
    void followUp();
    void take(const Answer& answer);
    void handOver(const Answer& answer);
    void deliver(const QString& key, const Content& content);
    void forgetExpired();

    Channel* q;
    QString name;
    TrafficWriter writer;
    QPointer<Link> link;
    bool wasUp = false;
    QElapsedTimer clock;
    PendingAnswers pending;
    QTimer sweep; ///< runs while there are pending answers
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
    d->link = link;
    if (link) {
        connect(link, &Link::upChanged, this, [this] { d->followUp(); });
        connect(link, &QObject::destroyed, this, [this] { d->followUp(); });
        connect(link, &Link::answered, this, [this](const Answer& answer) { d->take(answer); });
        connect(link, &Link::delivered, this,
                [this](const QString& key, const Content& content) { d->deliver(key, content); });
        connect(link, &Link::noticed, this, [this](const QString& text) {
            d->writer.notice(text);
            emit noticed(text);
        });
    }
    d->followUp();
}

bool Channel::isUp() const {
    return d->link && d->link->isUp();
}

void Channel::Private::followUp() {
    const bool up = q->isUp();
    if (up == wasUp)
        return;
    wasUp = up;
    if (!up)
        pending.clear();
    emit q->upChanged(up);
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
    d->sweep.start();
    d->link->send(message);
    return true;
}

Channel::Reply Channel::ask(const QObject* sender, Message message, int timeoutMs) {
    message.wantsAnswer = true;
    if (!d->begin(sender, &message))
        return {Reply::Down, nullptr};
    const qint64 startMs = d->clock.elapsed();
    const qint64 startNs = d->clock.nsecsElapsed();
    d->link->send(message);
    Answer answer;
    while (d->link) {
        const qint64 leftMs = startMs + timeoutMs - d->clock.elapsed();
        if (!d->link->receive(&answer, static_cast<int>(std::max<qint64>(0, leftMs))))
            break;
        if (answer.id == message.id) {
            d->writer.answer(message.key, answer.content, d->clock.nsecsElapsed() - startNs);
            return {Reply::Answered, answer.content};
        }
        d->take(answer);
    }
    d->writer.timeOut(message.key, d->clock.nsecsElapsed() - startNs);
    return {Reply::TimedOut, nullptr};
}

// An answer that comes while another question holds the thread waits for the event loop.
void Channel::Private::take(const Answer& answer) {
    if (pending.contains(answer.id))
        QMetaObject::invokeMethod(
            q, [this, answer] { handOver(answer); }, Qt::QueuedConnection);
    else
        writer.late(answer.content);
}

void Channel::Private::handOver(const Answer& answer) {
    forgetExpired();
    if (!pending.contains(answer.id))
        return writer.late(answer.content);
    const PendingAnswers::Question question = pending.take(answer.id);
    writer.answer(question.key, answer.content, (clock.elapsed() - question.askedMs) * 1000000);
    emit q->answered(question.key, answer.content);
}

void Channel::Private::deliver(const QString& key, const Content& content) {
    const qint64 startNs = clock.nsecsElapsed();
    const QDateTime time = QDateTime::currentDateTime();
    emit q->delivered(key, content);
    writer.delivery(time, key, content, clock.nsecsElapsed() - startNs);
}

void Channel::Private::forgetExpired() {
    const qint64 nowMs = clock.elapsed();
    for (const PendingAnswers::Question& question : pending.takeExpired(nowMs))
        writer.timeOut(question.key, (nowMs - question.askedMs) * 1000000);
    if (pending.isEmpty())
        sweep.stop();
}

} // namespace standin
} // namespace brisk
