#include "statemirror.h"

#include "project/links.h"
#include "statewriter.h"

#include "brisk/link.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"

using brisk::ModuleObject;
using brisk::standin::contentOf;

namespace pendant {

namespace {

const QString stateKey = QStringLiteral("mirror.state");
const int parametersTimeoutMs = 5000;

helm::ControllerManager* controllerManager() {
    return helm::ManagerHelper::instance()->controllerManager();
}

} // namespace

StateMirror::StateMirror(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("state"));
    for (const QString& key : statewriter::keys())
        follow(key);
    // The bus's own node tells of its link before the host runs tasks: they find the state in the tree.
    links::follow(this, [this] { followBus(); });
    connect(controllerManager(), &helm::ControllerManager::rcConnected, this, &StateMirror::askForParameters);
    followBus();
    if (controllerManager()->controllerConnected())
        askForParameters();
}

void StateMirror::follow(const QString& key) {
    // For as long as this lives.
    relay()->watch(this, key, true);
    const ModuleObject* node = relay()->watchNode(key);
    if (node)
        connect(node, &ModuleObject::changed, this, [this, key, node] { take(key, node); });
}

void StateMirror::followBus() {
    const bool up = links::isBusUp();
    if (up == m_wasUp)
        return;
    m_wasUp = up;
    if (up)
        read();
}

// A watch tells of changes only.
void StateMirror::read() {
    const brisk::standin::Content state = contentOf(relay()->get(this, stateKey));
    for (const QString& key : statewriter::keys())
        take(key, state ? state->c(key) : nullptr);
}

// A copy: who hears of a write may ask the bus again, which gives its nodes other values.
void StateMirror::take(const QString& key, const ModuleObject* value) {
    statewriter::write(key, contentOf(value).get(), this);
}

// Nobody waits for it: the host keeps the answer.
void StateMirror::askForParameters() {
    controllerManager()->request(QStringLiteral("system.controller"), QStringLiteral("get_params"), QJsonValue(),
                                 parametersTimeoutMs);
}

} // namespace pendant
