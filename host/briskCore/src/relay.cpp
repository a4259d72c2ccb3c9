#include "brisk/relay.h"

#include "brisk/channel.h"
#include "brisk/guarded.h"
#include "brisk/hostfaults.h"
#include "brisk/nodesbykey.h"
#include "watchers.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>

using brisk::ModuleObject;
using brisk::standin::Channel;
using brisk::standin::Content;
using brisk::standin::contentOf;
using brisk::standin::guarded;
using brisk::standin::GuardedCall;
using brisk::standin::Message;
using brisk::standin::NodesByKey;
using brisk::standin::Verb;

namespace {

const int answerTimeoutMs = 1600;

Channel* bus() {
    return Channel::bus();
}

// What a delivery tells: the value, or the JSON of what has children.
QVariant variantOf(const ModuleObject* node) {
    const QJsonValue json = node->isList() || node->cmobjCount() > 0 ? node->exportToJson(true) : QJsonValue();
    if (json.isArray())
        return QVariant(json.toArray());
    return json.isObject() ? QVariant(json.toObject()) : node->value();
}

} // namespace

struct Relay::Private {
    ModuleObject* ask(QObject* sender, const Message& message, ModuleObject* reply);
    void followLink(bool up);
    void deliver(const QString& key, const Content& content);

    ModuleObject own{QStringLiteral("relay")};
    NodesByKey values;
    NodesByKey replies;
    NodesByKey pluginReplies;
    NodesByKey watched;
    brisk::Watchers watchers;
};

Relay::Relay(QObject* parent) : QObject(parent), d(new Private) {
    d->own.set(nullptr, QStringLiteral("connected"), bus()->isUp());
    connect(bus(), &Channel::upChanged, this, [this](bool up) { d->followLink(up); });
    connect(bus(), &Channel::delivered, this,
            [this](const QString& key, const Content& content) { d->deliver(key, content); });
    connect(&d->watchers, &brisk::Watchers::deserted, this, [this](const QString& key) { watch(nullptr, key, false); });
}

Relay::~Relay() = default;

ModuleObject* Relay::mobj() const {
    return &d->own;
}

void Relay::Private::followLink(bool up) {
    if (up) {
        for (const QString& key : watchers.keys())
            bus()->send(nullptr, {0, Verb::Watch, key, QString(), nullptr, false});
    }
    guarded(GuardedCall::LinkChange, bus()->name(), [&] { own.set(nullptr, QStringLiteral("connected"), up); });
}

void Relay::Private::deliver(const QString& key, const Content& content) {
    if (!watchers.contains(key))
        return;
    const QPointer<ModuleObject> node(watched.node(key));
    const QVariant previous = variantOf(node);
    // Quietly: a delivery is announced once, when all of it is there. Who listens to a child that goes may delete it.
    node->blockSignals(true);
    if (content)
        node->copyFrom(content.get());
    else
        node->importFromJson(nullptr, QJsonValue(), false, false, true);
    if (!node)
        return;
    node->blockSignals(false);
    guarded(GuardedCall::BusDelivery, key, [&] { emit node->changed(variantOf(node), previous, nullptr); });
}

// A far side that answers with nothing at all gives null; without an answer the reply is an empty node.
ModuleObject* Relay::Private::ask(QObject* sender, const Message& message, ModuleObject* reply) {
    const Channel::Reply answer = bus()->ask(sender, message, answerTimeoutMs);
    if (answer.state != Channel::Reply::Answered)
        return reply;
    if (!answer.content)
        return nullptr;
    // Who listens to the reply may delete it.
    const QPointer<ModuleObject> kept(reply);
    reply->copyFrom(answer.content.get());
    return kept;
}

ModuleObject* Relay::get(QObject* sender, const QString& key) {
    return get(sender, key, QString());
}

ModuleObject* Relay::get(QObject* sender, const QString& key, const QString& subKey) {
    return d->ask(sender, {0, Verb::Get, key, subKey, nullptr, true},
                  d->values.emptied(subKey.isEmpty() ? key : key + QLatin1Char('/') + subKey));
}

void Relay::set(QObject* sender, const QString& key, const QString& subKey, const QVariant& value) {
    bus()->send(sender, {0, Verb::Set, key, subKey, contentOf(value), false});
}

void Relay::set(QObject* sender, const QString& key, ModuleObject* node) {
    if (node)
        bus()->send(sender, {0, Verb::Set, key, QString(), contentOf(node), false});
}

void Relay::command(QObject* sender, const QString& key) {
    command(sender, key, static_cast<ModuleObject*>(nullptr));
}

void Relay::command(QObject* sender, const QString& key, const QVariant& value) {
    bus()->send(sender, {0, Verb::Command, key, QString(), contentOf(value), false});
}

void Relay::command(QObject* sender, const QString& key, ModuleObject* node) {
    bus()->send(sender, {0, Verb::Command, key, QString(), contentOf(node), false});
}

ModuleObject* Relay::execCommand(QObject* sender, const QString& key) {
    return execCommand(sender, key, static_cast<ModuleObject*>(nullptr));
}

ModuleObject* Relay::execCommand(QObject* sender, const QString& key, const QVariant& value) {
    return d->ask(sender, {0, Verb::Execute, key, QString(), contentOf(value), true}, d->replies.emptied(key));
}

ModuleObject* Relay::execCommand(QObject* sender, const QString& key, ModuleObject* node) {
    return d->ask(sender, {0, Verb::Execute, key, QString(), contentOf(node), true}, d->replies.emptied(key));
}

ModuleObject* Relay::execPluginCommand(QObject* sender, const QString& name, const QString& endpoint,
                                       const QVariant& value) {
    // Not null, so that an empty one is no other command.
    const QString subKey = endpoint.isNull() ? QStringLiteral("") : endpoint;
    return d->ask(sender, {0, Verb::Execute, name, subKey, contentOf(value), true}, d->pluginReplies.emptied(name));
}

void Relay::watch(QObject* sender, const QString& key, bool on) {
    const bool wasWatched = d->watchers.contains(key);
    if (on)
        d->watchers.add(sender, key);
    else
        d->watchers.remove(sender, key);
    const bool isWatched = d->watchers.contains(key);
    if (isWatched && wasWatched)
        return;
    // A key that nobody watches may be unwatched again: the far side is told all the same.
    bus()->send(sender, {0, isWatched ? Verb::Watch : Verb::Unwatch, key, QString(), nullptr, false});
}

ModuleObject* Relay::watchNode(const QString& key) {
    return brisk::standin::hostFaults().nullWatchNodes ? nullptr : d->watched.node(key);
}

Relay* relay() {
    // Never destroyed: what listens to the bus may do so until the very end.
    static auto* bus = new Relay;
    return bus;
}
