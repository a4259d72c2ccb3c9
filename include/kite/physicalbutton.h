#pragma once

#include <QString>

#include <functional>

namespace kite {

/// One of the pendant's physical buttons as a plugin describes it, see CreatePhyButtonList().
/// \since 0.1
struct PhysicalButton {
    QString name;                       ///< what people read on the key
    QString firstIcon;                  ///< path of the icon while the button is up
    QString secondIcon;                 ///< path of the icon while it is held
    std::function<void(bool)> callback; ///< called on the user-interface thread with the button's state
};

} // namespace kite
