#pragma once

#include "brisk/traffic.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace pendant {

/// One entry of the traffic as it is kept: the value as JSON text, which takes far less memory than the value.
struct TrafficRow {
    enum class Failure { None, NotSent, TimedOut, TooLate };

    static TrafficRow of(const brisk::standin::TrafficEntry& entry);

    Failure failure() const;
    /// As an object on one line, without a line break.
    QByteArray toJsonLine() const;
    /// Whether `text` is part of key, sender, kind or value, in any case of letters.
    bool contains(const QString& text) const;

    brisk::standin::TrafficEntry entry; ///< without its value
    QByteArray json;                    ///< of the value, UTF-8; empty for nothing
};

class TrafficWords {
    Q_DECLARE_TR_FUNCTIONS(pendant::TrafficWords)

public:
    /// What happened, with a word to it when it failed: "get, not sent".
    static QString kind(const TrafficRow& row);
    static QString direction(brisk::standin::TrafficEntry::Direction direction);
};

} // namespace pendant
