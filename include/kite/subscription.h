#pragma once

#include "kite/interfacemanager.h"
#include "kite/pluginfunctions.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
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
/// Somebody else may end it by InterfaceManager::disconnectRelayData(), and subscribe anew with the same names: it
/// leaves that successor alone. While its own callback is called, it does not know of such an end yet.
///
/// User-interface thread only.
/// \since 0.1
class Subscription {
public:
    /// Follows nothing.
    Subscription() = default;

    /// Subscribes by InterfaceManager::connectRelayData(), where the arguments are described. Inactive when that
    /// refuses, and when `callback` is empty; the message list says why then, under the plugin's name.
    ///
    /// Unlike there, it is `callback` itself that is called each time, so what it keeps in itself it keeps.
    Subscription(const QString& pluginName, const QString& serviceKey, std::function<void(const QVariant&)> callback,
                 const QString& connectKey)
        : m_pluginName(pluginName), m_serviceKey(serviceKey), m_connectKey(connectKey) {
        if (!callback) {
            tellRefusal(QStringLiteral("its callback is empty"));
            return;
        }
        const auto kept = std::make_shared<const std::function<void(const QVariant&)>>(std::move(callback));
        m_callback = kept;
        m_active = kiteInterface()->connectRelayData(
            pluginName, serviceKey, [kept](const QVariant& value) { (*kept)(value); }, connectKey);
        if (!m_active)
            tellRefusal(
                QStringLiteral("the plugin has one of that connect key already, or the key cannot be followed"));
    }

    Subscription(Subscription&& other) noexcept { swap(other); }
    /// Ends what this one follows and takes over what `other` follows.
    Subscription& operator=(Subscription&& other) noexcept {
        Subscription taken(std::move(other));
        swap(taken);
        return *this;
    }

    ~Subscription() { disconnect(); }

    /// Whether this object has a subscription: it was not refused, nor given away, nor ended, by whomever.
    bool isActive() const { return m_active && !m_callback.expired(); }
    explicit operator bool() const { return isActive(); }

    /// Ends the subscription: the callback is not called any more. Does nothing when it is inactive.
    void disconnect() {
        if (!m_active)
            return;
        m_active = false;
        if (!hasSuccessor())
            kiteInterface()->disconnectRelayData(m_pluginName, m_serviceKey, m_connectKey);
    }

    /// The key that is, or was, followed; empty for one that was made without, and once it has been moved from.
    QString serviceKey() const { return m_serviceKey; }
    QString connectKey() const { return m_connectKey; }

private:
    Q_DISABLE_COPY(Subscription)

    // Without one it is worth ending what has ended: who did so with another key has left the name behind.
    bool hasSuccessor() const {
        const QString listed = m_connectKey.section(QLatin1Char('.'), 0, 0);
        return m_callback.expired() && kiteInterface()->getConnectRelayKeyList(m_pluginName).contains(listed);
    }

    void tellRefusal(const QString& reason) const {
        ThrowLog(
            m_pluginName, ThrowWarning,
            QStringLiteral("There is no subscription \"%1\" to \"%2\": %3.").arg(m_connectKey, m_serviceKey, reason));
    }

    void swap(Subscription& other) noexcept {
        m_pluginName.swap(other.m_pluginName);
        m_serviceKey.swap(other.m_serviceKey);
        m_connectKey.swap(other.m_connectKey);
        m_callback.swap(other.m_callback);
        std::swap(m_active, other.m_active);
    }

    QString m_pluginName;
    QString m_serviceKey;
    QString m_connectKey;
    // Gone as soon as the manager has let go of it.
    std::weak_ptr<const std::function<void(const QVariant&)>> m_callback;
    bool m_active = false;
};

} // namespace kite
