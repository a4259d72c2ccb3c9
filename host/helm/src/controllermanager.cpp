#include "helm/controllermanager.h"

#include <QHash>
#include <QSharedPointer>

namespace helm {

struct ControllerManager::Private {
    // "response/system.controller.get_params" -> the node kept for it
    QHash<QString, QSharedPointer<brisk::ModuleObject>> items;
    // full command -> the reply node, used again by each call
    QHash<QString, QSharedPointer<brisk::ModuleObject>> replies;

    brisk::ModuleObject* emptyReply(const QString& command) {
        QSharedPointer<brisk::ModuleObject>& reply = replies[command];
        if (!reply)
            reply.reset(new brisk::ModuleObject(command));
        reply->clear(nullptr, false, true);
        return reply.data();
    }
};

ControllerManager::ControllerManager(QObject* parent) : QObject(parent), d(new Private) {}
ControllerManager::~ControllerManager() = default;

bool ControllerManager::controllerConnected() const {
    return false;
}

bool ControllerManager::request(const QString&, const QString&, const QJsonValue&, int) {
    return false;
}

bool ControllerManager::request(const QString&, brisk::ModuleObject*, int) {
    return false;
}

brisk::ModuleObject* ControllerManager::execRequest(const QString& group, const QString& request, const QJsonValue&,
                                                    bool, int) {
    return d->emptyReply(group + QLatin1Char('.') + request);
}

brisk::ModuleObject* ControllerManager::execRequest(const QString& command, brisk::ModuleObject*, bool, int) {
    return d->emptyReply(command);
}

brisk::ModuleObject* ControllerManager::cmdItemMobj(const QString& item, const QString& command) {
    QSharedPointer<brisk::ModuleObject>& node = d->items[item + QLatin1Char('/') + command];
    if (!node)
        node.reset(new brisk::ModuleObject(item));
    return node.data();
}

} // namespace helm
