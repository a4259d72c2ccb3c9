#include "brisk/moduleobject.h"

#include "childlist.h"
#include "nodeguard.h"

#include <QMetaMethod>

#include <atomic>

namespace brisk {

namespace {

// How many nodes have a listener of touched(): without one a write need not walk up to the root.
std::atomic<int> touchedListeners{0};

} // namespace

void ModuleObject::connectNotify(const QMetaMethod& signal) {
    if (signal == QMetaMethod::fromSignal(&ModuleObject::changed))
        setFlag(HearsChanged, true);
    else if (signal == QMetaMethod::fromSignal(&ModuleObject::touched))
        setFlag(HearsTouched, true);
    else
        updateListeners();
}

void ModuleObject::disconnectNotify(const QMetaMethod& signal) {
    Q_UNUSED(signal)
    updateListeners();
}

void ModuleObject::updateListeners() {
    setFlag(HearsChanged, isSignalConnected(QMetaMethod::fromSignal(&ModuleObject::changed)));
    setFlag(HearsInserted, isSignalConnected(QMetaMethod::fromSignal(&ModuleObject::inserted)));
    setFlag(HearsRemoved, isSignalConnected(QMetaMethod::fromSignal(&ModuleObject::removed)));
    setFlag(HearsCleared, isSignalConnected(QMetaMethod::fromSignal(&ModuleObject::cleared)));
    setFlag(HearsTouched, isSignalConnected(QMetaMethod::fromSignal(&ModuleObject::touched)));
}

void ModuleObject::setFlag(Flag flag, bool on) {
    if (bool(m_flags & flag) == on)
        return;
    m_flags = quint8(m_flags ^ flag);
    if (flag == HearsTouched)
        touchedListeners += on ? 1 : -1;
}

void ModuleObject::announceChanged(const QVariant& previous, QObject* sender) {
    if (m_flags & HearsChanged) {
        const NodeGuard self(this);
        const QVariant present = m_value; // a slot may write again
        emit changed(present, previous, sender);
        if (!self)
            return;
    }
    announceTouched(sender);
}

void ModuleObject::announceInserted(ModuleObject* child, QObject* sender) {
    const NodeGuard self(this);
    if (m_flags & HearsInserted)
        emit inserted(child, m_children->indexOf(child));
    if (self)
        announceTouched(sender);
}

void ModuleObject::announceRemoved(const QString& name, QObject* sender) {
    const NodeGuard self(this);
    if (m_flags & HearsRemoved)
        emit removed(name);
    if (self)
        announceTouched(sender);
}

void ModuleObject::announceCleared(QObject* sender) {
    const NodeGuard self(this);
    if (m_flags & HearsCleared)
        emit cleared(sender);
    if (self)
        announceTouched(sender);
}

// Up through the parents: a connection for each node would cost more memory than the node.
void ModuleObject::announceTouched(QObject* sender) {
    if (touchedListeners.load(std::memory_order_relaxed) == 0)
        return;
    const NodeGuard origin(this);
    for (ModuleObject* node = this; node;) {
        const NodeGuard at(node);
        if (node->m_flags & HearsTouched)
            emit node->touched(this, sender);
        if (!origin || !at)
            return;
        node = node->m_parent;
    }
}

} // namespace brisk
