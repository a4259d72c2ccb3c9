#pragma once

#include "linegrammar.h"

namespace pendant {

/// SetDO gripper on
struct OutputLine {
    QString signal;
    bool isOn = false;

    static QString type() { return QStringLiteral("SetDO"); }
    static const LineGrammar& grammar();
    static OutputLine of(const LineParts& parts);
    QString text() const;
};

} // namespace pendant
