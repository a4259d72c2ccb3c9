#pragma once

#include <QAbstractButton>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace pendant {

/// Lets everything that is under way come to rest: events, animations.
void settle();

/// What appeared when a button was pressed.
struct Appeared {
    /// The windows that were not there before and still are.
    QList<QPointer<QWidget>> windows;
    /// Pictures of windows that held the press up until they were closed (QDialog::exec()).
    QList<QPixmap> closed;
};

/// Presses the button and lets everything come to rest. A window that holds the press up is closed after a moment.
Appeared press(QAbstractButton* button);

/// Takes back what a press did: closes the windows that hold the pendant up and presses the button a second time for
/// the others.
/// \return false when one of the windows is there all the same; it is closed then
bool pressBack(const QPointer<QAbstractButton>& button, const QList<QPointer<QWidget>>& windows);

} // namespace pendant
