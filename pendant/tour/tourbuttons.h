#pragma once

#include <QAbstractButton>
#include <QList>
#include <QPointer>
#include <QWidget>

namespace pendant {

/// Whether the tour presses the button: when its dynamic property "tour" is "press", or when it has no such property
/// and its object name or its text speaks of full screen ("fullScreen", "Full screen").
bool isTourButton(const QAbstractButton* button);

/// The buttons on `page` that the tour presses and that can be pressed now, in the order in which they were made.
QList<QPointer<QAbstractButton>> tourButtons(const QWidget* page);

} // namespace pendant
