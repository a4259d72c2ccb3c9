#include "dockplace.h"

#include <QPair>

namespace pendant {

namespace {

// Invalid when it has no room there.
QRect within(const QRect& room, const QPoint& corner, const QSize& wanted, const QSize& least) {
    const QSize size = wanted.boundedTo(room.size());
    if (size.width() < least.width() || size.height() < least.height())
        return QRect();
    QRect place(corner, size);
    place.moveLeft(qBound(room.left(), place.left(), room.right() + 1 - size.width()));
    place.moveTop(qBound(room.top(), place.top(), room.bottom() + 1 - size.height()));
    return place;
}

QRect besideUnmoved(const QRect& pendant, const QRect& screen, const QSize& wanted, const QSize& least) {
    QRect right = screen;
    right.setLeft(pendant.right() + 1);
    QRect left = screen;
    left.setRight(pendant.left() - 1);
    QRect below = screen;
    below.setTop(pendant.bottom() + 1);
    QRect above = screen;
    above.setBottom(pendant.top() - 1);
    // As near to the pendant as the side allows.
    const QPoint farLeft(pendant.left() - wanted.width(), pendant.top());
    const QPoint farAbove(pendant.left(), pendant.top() - wanted.height());
    const QPair<QRect, QPoint> sides[] = {
        {right, pendant.topRight()}, {left, farLeft}, {below, pendant.bottomLeft()}, {above, farAbove}};
    for (const auto& side : sides) {
        const QRect place = within(side.first, side.second, wanted, least);
        if (place.isValid())
            return place;
    }
    return QRect();
}

} // namespace

DockPlace DockPlace::beside(const QRect& pendant, const QRect& screen, const QSize& wanted, const QSize& least) {
    QRect dock = besideUnmoved(pendant, screen, wanted, least);
    if (dock.isValid())
        return {pendant, dock};
    const QRect moved(screen.topLeft(), pendant.size());
    dock = besideUnmoved(moved, screen, wanted, least);
    if (dock.isValid())
        return {moved, dock};
    dock = QRect(QPoint(), least);
    dock.moveBottomRight(screen.bottomRight());
    return {pendant, dock};
}

} // namespace pendant
