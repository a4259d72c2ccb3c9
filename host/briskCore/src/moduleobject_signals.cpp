#include "brisk/moduleobject.h"

#include "childlist.h"
#include "nodeguard.h"

#include <QMetaMethod>

#include <array>
#include <atomic>

namespace brisk {

namespace {

// How many nodes have a listener of touched(): without one a write need not walk up to the root.
std::atomic<int> touchedListeners{0};

} // namespace

struct ModuleObject::Heard {
    QMetaMethod signal;
    Flag flag;
};

const std::array<ModuleObject::Heard, 5>& ModuleObject::hearable() {
    static const std::array<Heard, 5> signalFlags{{
        {QMetaMethod::fromSignal(&ModuleObject::changed), HearsChanged},
        {QMetaMethod::fromSignal(&ModuleObject::inserted), HearsInserted},
        {QMetaMethod::fromSignal(&ModuleObject::removed), HearsRemoved},
        {QMetaMethod::fromSignal(&ModuleObject::cleared), HearsCleared},
        {QMetaMethod::fromSignal(&ModuleObject::touched), HearsTouched},
    }};
    return signalFlags;
}

void ModuleObject::connectNotify(const QMetaMethod& signal) {
    for (const Heard& heard : hearable()) {
        if (signal == heard.signal)
            setFlag(heard.flag, true);
    }
}

// Qt may call this with its lock on connections held, so the question who still listens waits for the next change.
void ModuleObject::disconnectNotify(const QMetaMethod& signal) {
    Q_UNUSED(signal)
    setFlag(ListenersLeft, true);
}

bool ModuleObject::hears(Flag flag) {
    if ((m_flags & flag) && (m_flags & ListenersLeft))
        updateListeners();
    return m_flags & flag;
}

void ModuleObject::updateListeners() {
    setFlag(ListenersLeft, false);
    for (const Heard& heard : hearable())
        setFlag(heard.flag, isSignalConnected(heard.signal));
}

void ModuleObject::setFlag(Flag flag, bool on) {
    if (bool(m_flags & flag) == on)
        return;
    m_flags = quint8(m_flags ^ flag);
    if (flag == HearsTouched)
        touchedListeners += on ? 1 : -1;
}

void ModuleObject::announceChanged(const QVariant& previous, QObject* sender) {
    if (hears(HearsChanged)) {
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
    if (hears(HearsInserted))
        emit inserted(child, m_children->indexOf(child));
    if (self)
        announceTouched(sender);
}

void ModuleObject::announceRemoved(const QString& name, QObject* sender) {
    const NodeGuard self(this);
    if (hears(HearsRemoved))
        emit removed(name);
    if (self)
        announceTouched(sender);
}

void ModuleObject::announceCleared(QObject* sender) {
    const NodeGuard self(this);
    if (hears(HearsCleared))
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
        if (node->hears(HearsTouched))
            emit node->touched(this, sender);
        if (!origin || !at)
            return;
        node = node->m_parent;
    }
}

} // namespace brisk
