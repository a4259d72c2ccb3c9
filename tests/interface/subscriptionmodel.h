#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

/// The subscriptions as they are written down for people: three maps, and what is done to them step by step.
class SubscriptionModel {
public:
    /// Is called for every callback that is called, with its number.
    std::function<void(int)> called;
    /// "+key" and "-key", as the bus is told.
    QStringList watches;
    /// No key can be followed.
    bool nothingToFollow = false;

    bool connect(const QString& plugin, const QString& key, int callback, const QString& connectKey) {
        const QString name = plugin + "." + connectKey;
        if (m_callbacks.contains(name))
            return false;
        m_callbacks[name] = callback;
        if (m_subscribers.contains(key)) {
            m_subscribers[key] << name;
            return true;
        }
        if (nothingToFollow) {
            m_callbacks.remove(name);
            return false;
        }
        m_followed << key;
        watches << "+" + key;
        m_subscribers[key] << name;
        return true;
    }

    void disconnect(const QString& plugin, const QString& key, const QString& connectKey) {
        const QString name = plugin + "." + connectKey;
        m_callbacks.remove(name);
        QStringList left;
        for (const QString& other : m_subscribers.value(key)) {
            if (other != name)
                left << other;
        }
        m_subscribers[key] = left;
        if (!left.isEmpty())
            return;
        m_subscribers.remove(key);
        m_followed.remove(key);
        watches << "-" + key;
    }

    void change(const QString& key) {
        if (!m_followed.contains(key))
            return;
        const QStringList names = m_subscribers.value(key);
        for (const QString& name : names) {
            if (m_callbacks.contains(name))
                called(m_callbacks.value(name));
        }
    }

    QStringList list(const QString& plugin) const {
        QStringList connectKeys;
        for (const QString& name : m_callbacks.keys()) {
            if (name.section('.', 0, 0) == plugin)
                connectKeys << name.section('.', 1, 1);
        }
        return connectKeys;
    }

    /// Names on the lists of keys that nobody has a callback under.
    int leftBehind() const {
        int count = 0;
        for (const QStringList& names : m_subscribers) {
            for (const QString& name : names)
                count += m_callbacks.contains(name) ? 0 : 1;
        }
        return count;
    }

private:
    QMap<QString, int> m_callbacks;
    QSet<QString> m_followed;
    QMap<QString, QStringList> m_subscribers;
};
