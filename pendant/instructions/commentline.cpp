#include "commentline.h"

namespace pendant {

const LineGrammar& CommentLine::grammar() {
    static const LineGrammar grammar(QStringLiteral("//(?<comment>.*)"));
    return grammar;
}

// The one blank after the slashes belongs to them.
CommentLine CommentLine::of(const LineParts& parts) {
    const QString comment = parts.value("comment");
    return {comment.startsWith(QLatin1Char(' ')) ? comment.mid(1) : comment};
}

QString CommentLine::text() const {
    return comment.isEmpty() ? QStringLiteral("//") : QStringLiteral("// ") + comment;
}

} // namespace pendant
