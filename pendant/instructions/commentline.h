#pragma once

#include "linegrammar.h"

namespace pendant {

/// // what the lines below are for
struct CommentLine {
    QString comment;

    static QString type() { return QStringLiteral("Comment"); }
    static const LineGrammar& grammar();
    static CommentLine of(const LineParts& parts);
    QString text() const;
};

} // namespace pendant
