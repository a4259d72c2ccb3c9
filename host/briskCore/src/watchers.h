#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

namespace brisk {

/// Who watches which bus key. Null is a sender like any other; one that is destroyed watches no more.
class Watchers : public QObject {
    Q_OBJECT

public:
    void add(QObject* sender, const QString& key);
    void remove(QObject* sender, const QString& key);
    bool contains(const QString& key) const { return m_senders.contains(key); }
    QStringList keys() const { return m_senders.keys(); }

signals:
    /// The last who watched `key` was destroyed.
    void deserted(const QString& key);

private:
    void forget(QObject* sender);

    QHash<QString, QSet<QObject*>> m_senders; // no empty sets
};

} // namespace brisk
