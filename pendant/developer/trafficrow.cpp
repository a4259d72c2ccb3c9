#include "trafficrow.h"

#include "jsontext.h"

#include <QJsonDocument>
#include <QJsonObject>

using brisk::standin::TrafficEntry;

namespace pendant {

TrafficRow TrafficRow::of(const TrafficEntry& entry) {
    TrafficRow row{entry, QByteArray()};
    if (!entry.value.isNull() && !entry.value.isUndefined())
        row.json = compactJson(entry.value).toUtf8();
    row.entry.value = QJsonValue();
    return row;
}

TrafficRow::Failure TrafficRow::failure() const {
    if (entry.linkDown)
        return Failure::NotSent;
    if (entry.kind == QLatin1String("time-out"))
        return Failure::TimedOut;
    return entry.kind == QLatin1String("late") ? Failure::TooLate : Failure::None;
}

QByteArray TrafficRow::toJsonLine() const {
    QJsonObject line{
        {QStringLiteral("time"), entry.time.toString(Qt::ISODateWithMs)},
        {QStringLiteral("direction"),
         entry.direction == TrafficEntry::Direction::Out ? QStringLiteral("out") : QStringLiteral("in")},
        {QStringLiteral("channel"), entry.channel},
        {QStringLiteral("kind"), entry.kind},
        {QStringLiteral("key"), entry.key},
        {QStringLiteral("sender"), entry.sender},
        {QStringLiteral("value"), json.isEmpty() ? QJsonValue() : readJson(QString::fromUtf8(json))},
    };
    if (entry.durationMs >= 0)
        line.insert(QStringLiteral("durationMs"), entry.durationMs);
    if (entry.linkDown)
        line.insert(QStringLiteral("linkDown"), true);
    return QJsonDocument(line).toJson(QJsonDocument::Compact);
}

bool TrafficRow::contains(const QString& text) const {
    for (const QString& field : {entry.key, entry.sender, entry.kind}) {
        if (field.contains(text, Qt::CaseInsensitive))
            return true;
    }
    return QString::fromUtf8(json).contains(text, Qt::CaseInsensitive);
}

// "time-out" and "late" are words enough.
QString TrafficWords::kind(const TrafficRow& row) {
    return row.entry.linkDown ? tr("%1, not sent").arg(row.entry.kind) : row.entry.kind;
}

QString TrafficWords::direction(TrafficEntry::Direction direction) {
    return direction == TrafficEntry::Direction::Out ? tr("out") : tr("in");
}

} // namespace pendant
