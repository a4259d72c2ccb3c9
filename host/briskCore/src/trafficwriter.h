#pragma once

#include "brisk/link.h"
#include "brisk/traffic.h"

#include <QString>

namespace brisk {

/// The key with the sub-key, joined by ".".
QString keyOf(const standin::Message& message);

/// Tells Traffic of what goes over one channel. Does nothing while nobody listens there.
class TrafficWriter {
public:
    explicit TrafficWriter(const QString& channel) : m_channel(channel) {}

    void out(const standin::Message& message, const QObject* sender, bool linkDown) const;
    /// Whether anybody listens, so that nothing is made for nobody.
    static bool isHeard();

    void answer(const QString& key, const standin::Content& content, qint64 tookNs) const;
    void timeOut(const QString& key, qint64 tookNs) const;
    void late(const standin::Content& content) const;
    void delivery(const QDateTime& time, const QString& key, const standin::Content& content, qint64 tookNs) const;
    void notice(const QString& text) const;

private:
    standin::TrafficEntry in(const QString& kind, const QString& key) const;

    QString m_channel;
};

} // namespace brisk
