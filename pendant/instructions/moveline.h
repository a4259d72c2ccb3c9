#pragma once

#include "linegrammar.h"

namespace pendant {

/// MoveJ home speed=50% zone=10mm tool=gripper wobj=table
/// MoveL "part 1" speed=250mm/s
struct MoveLine {
    enum Kind { Joint, Linear };

    Kind kind = Joint;
    QString point;
    int speed = 0;      ///< of a joint move: percent, 1 to 100; of a linear move: mm/s, 1 to 9999
    int zoneMm = 0;     ///< 0 to 999; 0 stops at the point
    QString tool;       ///< empty for the one that is selected
    QString workObject; ///< empty for the one that is selected

    static QString type(Kind kind);
    static const LineGrammar& grammar(Kind kind);
    static MoveLine of(Kind kind, const LineParts& parts);
    /// Without blanks in front and without a comment.
    QString text() const;
};

} // namespace pendant
