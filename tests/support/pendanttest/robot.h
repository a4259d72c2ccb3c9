#pragma once

#include "controller/embedded.h"

#include "brisk/traffic.h"

#include <QList>

namespace pendanttest {

/// A virtual controller behind bus and controller link while it lives, for tests that need answers:
///
///     pendanttest::Robot robot;
///     robot.controller()->bus()->define("io.do", QJsonObject{{"lamp", false}});
///     robot.connectLinks();
///     relay()->set(nullptr, "io.do", "lamp", true);
///
/// It knows nothing but "controller.uptime", the links are down at first and the clock moves by step() alone. Every
/// call that may set something going returns when what the controller told has arrived. One at a time.
class Robot {
public:
    Robot();

    /// Gives the controller the keys that the pendant's own has when no other cell is named.
    void loadDefaultCell();

    /// Takes both links up, the bus first.
    void connectLinks();
    void bus(bool up);
    void controllerLink(bool up);
    /// Moves the controller's clock on.
    void step(qint64 ms);
    /// Lets arrive what is under way.
    void settle();

    controller::VirtualController* controller() { return m_embedded.controller(); }
    /// For the faults and delays of its links.
    controller::Embedded* embedded() { return &m_embedded; }

    /// What went over both channels since the construction or forgetTraffic(), oldest first.
    QList<brisk::standin::TrafficEntry> traffic() const { return m_traffic; }
    void forgetTraffic() { m_traffic.clear(); }

private:
    Q_DISABLE_COPY(Robot)

    QList<brisk::standin::TrafficEntry> m_traffic;
    controller::Embedded m_embedded;
};

} // namespace pendanttest
