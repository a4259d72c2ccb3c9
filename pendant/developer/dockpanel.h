#pragma once

#include "dockpart.h"

namespace pendant {

/// One tab of the developer dock.
class DockPanel : public DockPart {
    Q_OBJECT

public:
    using DockPart::DockPart;

    virtual QString title() const = 0;
    /// Starts or ends looking at the pendant; a panel that is not live is connected to nothing of it.
    virtual void setLive(bool live) = 0;
};

} // namespace pendant
