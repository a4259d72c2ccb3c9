#include "watchers.h"

namespace brisk {

void Watchers::add(QObject* sender, const QString& key) {
    m_senders[key].insert(sender);
    if (sender)
        connect(sender, &QObject::destroyed, this, &Watchers::forget, Qt::UniqueConnection);
}

void Watchers::remove(QObject* sender, const QString& key) {
    const auto found = m_senders.find(key);
    if (found == m_senders.end())
        return;
    found->remove(sender);
    if (found->isEmpty())
        m_senders.erase(found);
}

void Watchers::forget(QObject* sender) {
    for (const QString& key : keys()) {
        if (!m_senders.value(key).contains(sender))
            continue;
        remove(sender, key);
        if (!contains(key))
            emit deserted(key);
    }
}

} // namespace brisk
