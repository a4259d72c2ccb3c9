#include "statemirror.h"

#include "project/links.h"
#include "statelink.h"
#include "statewriter.h"

#include "brisk/link.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"

#include <algorithm>

using brisk::ModuleObject;
using brisk::standin::contentOf;

namespace pendant {

namespace {

const QString stateKey = QStringLiteral("mirror.state");
const int parametersTimeoutMs = 5000;
const int pauseMs = 1000;
// The pendant stands still while it asks a link that loses the answers.
const int longestPauseMs = 8000;

helm::ControllerManager* controllerManager() {
    return helm::ManagerHelper::instance()->controllerManager();
}

// A controller that refuses has nothing to tell.
bool isRefusal(const ModuleObject* answer) {
    return answer->value() == QVariant(-1) && answer->hasCmobj(QStringLiteral("error"));
}

bool isState(const ModuleObject* answer) {
    const QStringList keys = statewriter::keys();
    return std::any_of(keys.cbegin(), keys.cend(), [answer](const QString& key) { return answer->hasCmobj(key); });
}

} // namespace

StateMirror::StateMirror(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("state"));
    m_again.setSingleShot(true);
    connect(&m_again, &QTimer::timeout, this, &StateMirror::readAgain);
    for (const QString& key : statewriter::keys())
        follow(key);
    // The bus's own node tells of its link before the host runs tasks: they find the state in the tree.
    links::follow(this, [this] { followBus(); });
    connect(controllerManager(), &helm::ControllerManager::rcConnected, this, &StateMirror::askForParameters);
    followBus();
    if (controllerManager()->controllerConnected())
        askForParameters();
}

StateMirror::~StateMirror() {
    statelink::setAwaited(false);
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
    m_again.stop();
    m_again.setInterval(pauseMs);
    if (!up)
        return;
    statelink::setAwaited(true);
    read();
}

// A watch tells of changes only.
void StateMirror::read() {
    const brisk::standin::Content state = contentOf(relay()->get(this, stateKey));
    if (!state || (!isState(state.get()) && !isRefusal(state.get())))
        return m_again.start();
    for (const QString& key : statewriter::keys())
        take(key, state->c(key));
    statelink::setAwaited(false);
}

void StateMirror::readAgain() {
    m_again.setInterval(qMin(2 * m_again.interval(), longestPauseMs));
    read();
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
