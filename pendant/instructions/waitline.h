#pragma once

#include "linegrammar.h"

namespace pendant {

/// Wait 500 ms
struct WaitLine {
    static const int longestMs = 9999999;

    int timeMs = 0;

    static QString type() { return QStringLiteral("Wait"); }
    static const LineGrammar& grammar();
    static WaitLine of(const LineParts& parts) { return {parts.value("time").toInt()}; }
    QString text() const { return QStringLiteral("Wait %1 ms").arg(timeMs); }
};

} // namespace pendant
