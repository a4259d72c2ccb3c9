#pragma once

#include "linegrammar.h"

namespace pendant {

/// Assign parts = parts + 1
struct AssignLine {
    QString variable;
    QString value; ///< an expression as it is written; quotation marks come in pairs

    static QString type() { return QStringLiteral("Assign"); }
    static const LineGrammar& grammar();
    static AssignLine of(const LineParts& parts);
    QString text() const;
};

} // namespace pendant
