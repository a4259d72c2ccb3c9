#pragma once

#include "controller/embedded.h"
#include "controller/robot/jogcommand.h"

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
/// It has the standard robot, an empty project and, of its own, no other keys. The links are down at first and the
/// clock moves by step() alone. Every call that may set something going returns when what the controller told has
/// arrived. One at a time.
class Robot {
public:
    Robot();

    /// Gives the controller the keys that the pendant's own has when no other cell is named.
    void loadDefaultCell();
    /// Gives it what the cell file at `path` says; a bad one ends the test program.
    void loadCell(const QString& path);

    /// Takes both links up, the bus first.
    void connectLinks();
    void bus(bool up);
    void controllerLink(bool up);
    /// Holds a jog key of the pendant's for that long: the command is sent again every 200 ms, and the robot is told to
    /// stop at the end.
    void jog(const controller::JogCommand& command, qint64 ms);
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
