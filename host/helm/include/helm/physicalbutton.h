#pragma once

#include <QIcon>
#include <QString>

#include <functional>

namespace helm {

/// One of the pendant's physical buttons.
struct PhysicalButton {
    QString name;
    QIcon firstIcon;                    ///< shown while the button is up
    QIcon secondIcon;                   ///< shown while it is held
    std::function<void(bool)> callback; ///< called with true when it is pressed, false when it is released
};

} // namespace helm
