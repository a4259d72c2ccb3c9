#pragma once

#include "kite/interfacemanager.h"
#include "kite/pluginfunctions.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <utility>

namespace kite {

/// Follows a key of the service bus for as long as it lives:
///
///     class StatePage : public QWidget {
///         ...
///         kite::Subscription m_state{kitePluginName, "robot.state",
///                                    [this](const QVariant& value) { display(value.toString()); }, "state"};
///     };
///
/// It can be moved, not copied, and may be destroyed or given up in its own callback. Make it the last member, so that
/// it ends before what its callback uses, and no static: it must be gone before the process exits.
///
/// User-interface thread only.
/// \since 0.1
class Subscription {
public:
    /// Follows nothing.
    Subscription() = default;

    /// Subscribes by InterfaceManager::connectRelayData(), where the arguments are described. Inactive when that
    /// refuses, and when `callback` is empty; the message list says why then, under the plugin's name.
    Subscription(const QString& pluginName, const QString& serviceKey, std::function<void(const QVariant&)> callback,
                 const QString& connectKey)
        : m_pluginName(pluginName), m_serviceKey(serviceKey), m_connectKey(connectKey) {
        const bool isEmpty = !callback;
        m_active =
            !isEmpty && kiteInterface()->connectRelayData(pluginName, serviceKey, std::move(callback), connectKey);
        if (isEmpty)
            tellRefusal(QStringLiteral("its callback is empty"));
        else if (!m_active)
            tellRefusal(QStringLiteral("the plugin has one of that connect key already, or there is no such key"));
    }

    Subscription(Subscription&& other) noexcept { swap(other); }
    /// Ends what this one follows and takes over what `other` follows.
    Subscription& operator=(Subscription&& other) noexcept {
        Subscription taken(std::move(other));
        swap(taken);
        return *this;
    }

    ~Subscription() { disconnect(); }

    /// Whether this object has a subscription that it has neither ended nor given away. It does not know of an end that
    /// somebody else made with InterfaceManager::disconnectRelayData().
    bool isActive() const { return m_active; }
    explicit operator bool() const { return m_active; }

    /// Ends the subscription: the callback is not called any more. Does nothing when it is inactive.
    void disconnect() {
        if (!m_active)
            return;
        m_active = false;
        kiteInterface()->disconnectRelayData(m_pluginName, m_serviceKey, m_connectKey);
    }

    /// The key that is, or was, followed; empty for one that was made without, and once it has been moved from.
    QString serviceKey() const { return m_serviceKey; }
    QString connectKey() const { return m_connectKey; }

private:
    Q_DISABLE_COPY(Subscription)

    void tellRefusal(const QString& reason) const {
        ThrowLog(
            m_pluginName, ThrowWarning,
            QStringLiteral("There is no subscription \"%1\" to \"%2\": %3.").arg(m_connectKey, m_serviceKey, reason));
    }

    void swap(Subscription& other) noexcept {
        m_pluginName.swap(other.m_pluginName);
        m_serviceKey.swap(other.m_serviceKey);
        m_connectKey.swap(other.m_connectKey);
        std::swap(m_active, other.m_active);
    }

    QString m_pluginName;
    QString m_serviceKey;
    QString m_connectKey;
    bool m_active = false;
};

} // namespace kite
