#pragma once

#include <QRect>
#include <QSize>

namespace pendant {

/// Where the pendant's window and the dock stand beside each other.
struct DockPlace {
    QRect pendant;
    QRect dock;

    /// Puts the dock right of, left of, below or above the pendant, whichever comes first with room for `least`, and as
    /// large as `wanted` where there is room. Where there is none, the pendant moves to the corner at the upper left if
    /// that makes room. On a screen that has no room for both the dock stands at the lower right, as small as it can.
    /// All in pixels of `screen`, which both lie in.
    static DockPlace beside(const QRect& pendant, const QRect& screen, const QSize& wanted, const QSize& least);
};

} // namespace pendant
