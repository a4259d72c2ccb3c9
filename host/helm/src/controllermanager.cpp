#include "helm/controllermanager.h"

#include "brisk/channel.h"
#include "brisk/guarded.h"
#include "brisk/modulemanager.h"

#include <QHash>
#include <QSharedPointer>

using brisk::ModuleObject;
using brisk::standin::Channel;
using brisk::standin::Content;
using brisk::standin::contentOf;
using brisk::standin::guarded;
using brisk::standin::GuardedCall;
using brisk::standin::Message;
using brisk::standin::Verb;

namespace helm {

namespace {

const QString requestItem = QStringLiteral("request");
const QString responseItem = QStringLiteral("response");

Channel* channel() {
    return Channel::controller();
}

Message requestOf(const QString& command, const Content& content) {
    return {0, Verb::Request, command, QString(), content, true};
}

} // namespace

struct ControllerManager::Private {
    bool send(const QString& command, const Content& content, int timeoutMs);
    ModuleObject* ask(const QString& command, const Content& content, bool wait, int timeoutMs);
    void keep(const QString& item, const QString& command, const Content& content);
    ModuleObject* item(const QString& item, const QString& command);
    ModuleObject* emptyReply(const QString& command);

    // "response/system.controller.get_params" -> the node kept for it
    QHash<QString, QSharedPointer<ModuleObject>> items;
    // full command -> the reply node, used again by each call
    QHash<QString, QSharedPointer<ModuleObject>> replies;
};

ControllerManager::ControllerManager(QObject* parent) : QObject(parent), d(new Private) {
    connect(channel(), &Channel::upChanged, this, [this](bool up) {
        guarded(GuardedCall::LinkChange, channel()->name(), [&] { up ? emit rcConnected() : emit rcDisconnected(up); });
    });
    connect(channel(), &Channel::answered, this,
            [this](const QString& command, const Content& content) { d->keep(responseItem, command, content); });
}

ControllerManager::~ControllerManager() = default;

bool ControllerManager::controllerConnected() const {
    return channel()->isUp();
}

bool ControllerManager::request(const QString& group, const QString& request, const QJsonValue& params, int timeoutMs) {
    return d->send(mName(group, request), contentOf(QVariant(params)), timeoutMs);
}

bool ControllerManager::request(const QString& command, ModuleObject* request, int timeoutMs) {
    return d->send(command, contentOf(request), timeoutMs);
}

ModuleObject* ControllerManager::execRequest(const QString& group, const QString& request, const QJsonValue& params,
                                             bool wait, int timeoutMs) {
    return d->ask(mName(group, request), contentOf(QVariant(params)), wait, timeoutMs);
}

ModuleObject* ControllerManager::execRequest(const QString& command, ModuleObject* request, bool wait, int timeoutMs) {
    return d->ask(command, contentOf(request), wait, timeoutMs);
}

ModuleObject* ControllerManager::cmdItemMobj(const QString& item, const QString& command) {
    return d->item(item, command);
}

bool ControllerManager::Private::send(const QString& command, const Content& content, int timeoutMs) {
    keep(requestItem, command, content);
    return channel()->post(nullptr, requestOf(command, content), timeoutMs);
}

// A far side that answers with nothing at all gives null; without an answer the reply is an empty node.
ModuleObject* ControllerManager::Private::ask(const QString& command, const Content& content, bool wait,
                                              int timeoutMs) {
    ModuleObject* reply = emptyReply(command);
    if (!wait) {
        send(command, content, timeoutMs);
        return reply;
    }
    keep(requestItem, command, content);
    const Channel::Reply answer = channel()->ask(nullptr, requestOf(command, content), timeoutMs);
    if (answer.state != Channel::Reply::Answered)
        return reply;
    keep(responseItem, command, answer.content);
    if (!answer.content)
        return nullptr;
    reply->copyFrom(answer.content.get());
    return reply;
}

void ControllerManager::Private::keep(const QString& name, const QString& command, const Content& content) {
    if (content)
        item(name, command)->copyFrom(content.get());
}

ModuleObject* ControllerManager::Private::item(const QString& name, const QString& command) {
    QSharedPointer<ModuleObject>& node = items[name + QLatin1Char('/') + command];
    if (!node)
        node.reset(new ModuleObject(name));
    return node.data();
}

ModuleObject* ControllerManager::Private::emptyReply(const QString& command) {
    QSharedPointer<ModuleObject>& reply = replies[command];
    if (!reply)
        reply.reset(new ModuleObject(command));
    reply->copyFrom(nullptr);
    reply->importFromJson(nullptr, QJsonValue(), false, false, false); // takes the mark as a list away
    return reply.data();
}

} // namespace helm
