#pragma once

#include "controller/embeddedlink.h"
#include "controller/virtualcontroller.h"

#include <QObject>

namespace controller {

/// A virtual controller in the process of the pendant, behind both channels for as long as this lives. Its tables are
/// empty at first, its clock stands and both links are down. One at a time.
class Embedded : public QObject {
    Q_OBJECT

public:
    explicit Embedded(QObject* parent = nullptr);
    ~Embedded() override;

    VirtualController* controller() { return &m_controller; }
    EmbeddedLink* bus() { return &m_bus; }
    EmbeddedLink* controllerLink() { return &m_controllerLink; }

    /// Lets the clock run by itself, the bus come up after `delayMs` and the controller link a moment after the bus.
    /// A link that somebody takes up or down before is left to him.
    void start(int delayMs = 300);

private:
    // The links go first.
    VirtualController m_controller;
    EmbeddedLink m_bus{&m_controller};
    EmbeddedLink m_controllerLink{&m_controller};
};

} // namespace controller
