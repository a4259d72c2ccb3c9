#include "brisk/relay.h"

#include "brisk/modulemanager.h"
#include "currentlink.h"
#include "nodesbykey.h"

struct Relay::Private {
    brisk::ModuleObject own{QStringLiteral("relay")};
    brisk::NodesByKey replies;
    brisk::NodesByKey watched;
};

Relay::Relay(QObject* parent) : QObject(parent), d(new Private) {
    d->own.set(nullptr, QStringLiteral("connected"), false);
}

Relay::~Relay() = default;

brisk::ModuleObject* Relay::mobj() const {
    return &d->own;
}

brisk::ModuleObject* Relay::get(QObject* sender, const QString& key) {
    return get(sender, key, QString());
}

brisk::ModuleObject* Relay::get(QObject* sender, const QString& key, const QString& subKey) {
    Q_UNUSED(sender)
    if (brisk::standin::BusLink* link = brisk::currentLink())
        return link->get(key, subKey);
    return d->replies.emptied(subKey.isEmpty() ? key : mName(key, subKey));
}

// Without a link nothing can be sent or watched, and what has an answer answers with an empty node.

void Relay::set(QObject*, const QString&, const QString&, const QVariant&) {}

void Relay::set(QObject*, const QString&, brisk::ModuleObject*) {}

void Relay::command(QObject*, const QString&) {}

void Relay::command(QObject*, const QString&, const QVariant&) {}

void Relay::command(QObject*, const QString&, brisk::ModuleObject*) {}

brisk::ModuleObject* Relay::execCommand(QObject*, const QString& key) {
    return d->replies.emptied(key);
}

brisk::ModuleObject* Relay::execCommand(QObject* sender, const QString& key, const QVariant&) {
    return execCommand(sender, key);
}

brisk::ModuleObject* Relay::execCommand(QObject* sender, const QString& key, brisk::ModuleObject*) {
    return execCommand(sender, key);
}

brisk::ModuleObject* Relay::execPluginCommand(QObject* sender, const QString& name, const QString&, const QVariant&) {
    return execCommand(sender, name);
}

void Relay::watch(QObject*, const QString&, bool) {}

brisk::ModuleObject* Relay::watchNode(const QString& key) {
    return d->watched.node(key);
}

Relay* relay() {
    // Never destroyed: what listens to the bus may do so until the very end.
    static auto* bus = new Relay;
    return bus;
}
