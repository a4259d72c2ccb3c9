#pragma once

#include "answer.h"

#include <QCoreApplication>
#include <QString>

class QJsonObject;

/// The points that the robot is sent to: Cartesian ones on the line x = y. No widgets.
///
/// A move sends x in the place of y. It is meant to be so and will stay, and the robot goes where it is sent: of a
/// point at x 970, y 200 to y = 970. So a point can be moved to when its x and y are the same, and only then. Choose
/// the work object so that the places lie on that line: turned by -45 degrees about Z against the row in which they
/// stand.
class Places {
    Q_DECLARE_TR_FUNCTIONS(Places)

public:
    /// Keeps where the robot stands as the point `name`. Points of that name in whatever case are replaced. Where the
    /// robot does not stand on the line x = y, nothing is taught.
    static Answer teach(const QString& name);
    /// Why the robot is not to be sent to that point, a sentence; empty when it may be.
    static QString whyNotTo(const QString& name);
    /// The position, and what it was taught with; empty for what has no pose.
    static QString text(const QString& name);
    /// How far `position`, of the bus key "robot.position", is off the line.
    static QString distanceText(const QJsonObject& position);
};
