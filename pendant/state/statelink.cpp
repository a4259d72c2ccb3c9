#include "statelink.h"

#include "project/links.h"

#include "brisk/moduleobject.h"

using brisk::ModuleObject;

namespace pendant {
namespace statelink {

namespace {

ModuleObject* awaitedNode() {
    static ModuleObject node(QStringLiteral("awaited"));
    return &node;
}

} // namespace

bool isCurrent() {
    return links::isBusUp() && !awaitedNode()->getBool();
}

bool isAwaited() {
    return links::isBusUp() && awaitedNode()->getBool();
}

void setAwaited(bool awaited) {
    if (awaited != awaitedNode()->getBool())
        awaitedNode()->setValue(nullptr, awaited);
}

void follow(QObject* receiver, const std::function<void()>& tell) {
    links::follow(receiver, tell);
    QObject::connect(awaitedNode(), &ModuleObject::changed, receiver, tell);
}

} // namespace statelink
} // namespace pendant
