#include "waitline.h"

namespace pendant {

const int WaitLine::longestMs;

const LineGrammar& WaitLine::grammar() {
    static const LineGrammar grammar(QStringLiteral("Wait\\s+(?<time>0|[1-9][0-9]{0,6})\\s*ms"));
    return grammar;
}

} // namespace pendant
