#include "trafficwriter.h"

namespace brisk {

using standin::Content;
using standin::Message;
using standin::Traffic;
using standin::TrafficEntry;
using standin::Verb;

namespace {

QString kindOf(Verb verb) {
    switch (verb) {
    case Verb::Get:
        return QStringLiteral("get");
    case Verb::Set:
        return QStringLiteral("set");
    case Verb::Command:
        return QStringLiteral("command");
    case Verb::Execute:
        return QStringLiteral("execute");
    case Verb::Watch:
        return QStringLiteral("watch");
    case Verb::Unwatch:
        return QStringLiteral("unwatch");
    default:
        return QStringLiteral("request");
    }
}

QString labelOf(const QObject* sender) {
    if (!sender)
        return QString();
    return sender->objectName().isEmpty() ? QString::fromLatin1(sender->metaObject()->className())
                                          : sender->objectName();
}

double inMs(qint64 ns) {
    return static_cast<double>(ns) / 1e6;
}

} // namespace

bool TrafficWriter::isHeard() {
    return Traffic::instance()->isHeard();
}

QString keyOf(const Message& message) {
    return message.subKey.isEmpty() ? message.key : message.key + QLatin1Char('.') + message.subKey;
}

void TrafficWriter::out(const Message& message, const QObject* sender, bool linkDown) const {
    if (!isHeard())
        return;
    TrafficEntry entry;
    entry.time = QDateTime::currentDateTime();
    entry.channel = m_channel;
    entry.kind = kindOf(message.verb);
    entry.key = keyOf(message);
    entry.sender = labelOf(sender);
    entry.value = standin::jsonOf(message.content);
    entry.linkDown = linkDown;
    Traffic::instance()->record(entry);
}

TrafficEntry TrafficWriter::in(const QString& kind, const QString& key) const {
    TrafficEntry entry;
    entry.time = QDateTime::currentDateTime();
    entry.direction = TrafficEntry::Direction::In;
    entry.channel = m_channel;
    entry.kind = kind;
    entry.key = key;
    return entry;
}

void TrafficWriter::answer(const QString& key, const Content& content, qint64 tookNs) const {
    if (!isHeard())
        return;
    TrafficEntry entry = in(QStringLiteral("answer"), key);
    entry.value = standin::jsonOf(content);
    entry.durationMs = inMs(tookNs);
    Traffic::instance()->record(entry);
}

void TrafficWriter::timeOut(const QString& key, qint64 tookNs) const {
    if (!isHeard())
        return;
    TrafficEntry entry = in(QStringLiteral("time-out"), key);
    entry.durationMs = inMs(tookNs);
    Traffic::instance()->record(entry);
}

void TrafficWriter::late(const Content& content) const {
    if (!isHeard())
        return;
    TrafficEntry entry = in(QStringLiteral("late"), QString());
    entry.value = standin::jsonOf(content);
    Traffic::instance()->record(entry);
}

void TrafficWriter::delivery(const QDateTime& time, const QString& key, const Content& content, qint64 tookNs) const {
    if (!isHeard())
        return;
    TrafficEntry entry = in(QStringLiteral("delivery"), key);
    entry.time = time;
    entry.value = standin::jsonOf(content);
    entry.durationMs = inMs(tookNs);
    Traffic::instance()->record(entry);
}

void TrafficWriter::notice(const QString& text) const {
    if (!isHeard())
        return;
    TrafficEntry entry = in(QStringLiteral("notice"), QString());
    entry.value = text;
    Traffic::instance()->record(entry);
}

} // namespace brisk
