#pragma once

#include "brisk/export.h"

#include <QDateTime>
#include <QJsonValue>
#include <QObject>
#include <QString>

namespace brisk {
namespace standin {

/// One thing that went over a channel.
struct TrafficEntry {
    enum class Direction { Out, In };

    QDateTime time;
    Direction direction = Direction::Out;
    QString channel; ///< "bus" or "controller"
    /// Out: "get", "set", "command", "execute", "watch", "unwatch", "request". In: "answer", "delivery", "time-out",
    /// "late" (an answer that came too late and was dropped), "notice".
    QString kind;
    QString key; ///< with the sub-key, joined by "."; empty for a notice and for what came too late
    /// Who sent it: the object's name, or its class. Empty for nobody (null) and for what comes in.
    QString sender;
    QJsonValue value;
    /// Of an answer or time-out: since the question. Of a delivery: in those who listen. Otherwise -1.
    double durationMs = -1;
    bool linkDown = false; ///< it was not sent, because the link is down
};

/// Tells of what goes over the channels. Costs nothing while nobody listens to recorded().
class BRISK_EXPORT Traffic : public QObject {
    Q_OBJECT

public:
    static Traffic* instance();

    bool isHeard() const;
    void record(const brisk::standin::TrafficEntry& entry);

signals:
    void recorded(const brisk::standin::TrafficEntry& entry);

private:
    Traffic();
};

} // namespace standin
} // namespace brisk
