#include "helm/controllermanager.h"

#include "brisk/channel.h"
#include "brisk/guarded.h"
#include "brisk/modulemanager.h"
#include "brisk/nodesbykey.h"

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
    void keepRequest(const QString& command, const Content& content);
    void keepResponse(const QString& command, const Content& content);

    NodesByKey requests;  // full command -> its "request" item
    NodesByKey responses; // full command -> its "response" item
    NodesByKey others;    // "item/command" -> the node of any other item
    NodesByKey replies;   // full command -> the reply node, used again by each call
};

ControllerManager::ControllerManager(QObject* parent) : QObject(parent), d(new Private) {
    connect(channel(), &Channel::upChanged, this, [this](bool up) {
        guarded(GuardedCall::LinkChange, channel()->name(), [&] { up ? emit rcConnected() : emit rcDisconnected(up); });
    });
    connect(channel(), &Channel::answered, this,
            [this](const QString& command, const Content& content) { d->keepResponse(command, content); });
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
    if (item == requestItem)
        return d->requests.node(command);
    return item == responseItem ? d->responses.node(command) : d->others.node(item + QLatin1Char('/') + command);
}

bool ControllerManager::Private::send(const QString& command, const Content& content, int timeoutMs) {
    keepRequest(command, content);
    return channel()->post(nullptr, requestOf(command, content), timeoutMs);
}

// A far side that answers with nothing at all gives null; without an answer the reply is an empty node.
ModuleObject* ControllerManager::Private::ask(const QString& command, const Content& content, bool wait,
                                              int timeoutMs) {
    const QPointer<ModuleObject> reply(replies.emptied(command));
    if (!wait) {
        send(command, content, timeoutMs);
        return reply;
    }
    keepRequest(command, content);
    const Channel::Reply answer = channel()->ask(nullptr, requestOf(command, content), timeoutMs);
    if (answer.state != Channel::Reply::Answered)
        return reply;
    keepResponse(command, answer.content);
    if (answer.content && reply)
        reply->copyFrom(answer.content.get());
    return answer.content ? reply.data() : nullptr;
}

void ControllerManager::Private::keepRequest(const QString& command, const Content& content) {
    if (content)
        requests.node(command)->copyFrom(content.get());
    else
        requests.emptied(command);
}

void ControllerManager::Private::keepResponse(const QString& command, const Content& content) {
    if (content)
        guarded(GuardedCall::Response, command, [&] { responses.node(command)->copyFrom(content.get()); });
}

} // namespace helm
