#pragma once

#include "controller/content.h"
#include "controller/robot/moveerror.h"
#include "controller/robot/posturechoice.h"

#include <QVector>

namespace controller {

class Project;
class Robot;

/// What a cell says about the path between two points, in place of the truth.
struct PathCheckRule {
    QString from;
    QString to;
    int error = 0; ///< 0: the path is feasible
};

/// Says whether the tool can go along the straight line from one point of the project to another.
class PathCheck {
public:
    /// Both must outlive it.
    PathCheck(const Robot* robot, const Project* project);

    void setRules(const QVector<PathCheckRule>& rules) { m_rules = rules; }

    /// The straight line of the present tool in the present work object, at the speed of full Cartesian jogging, with
    /// the external axes where they stand. A point without a configuration is reached as from the present posture.
    /// \return what is in the way; of a rule its code alone
    MoveError between(const QString& from, const QString& to) const;

private:
    PostureChoice postureAt(const QString& point) const;
    PostureChoice postureIn(const QString& point, const QJsonObject& place) const;

    const Robot* m_robot;
    const Project* m_project;
    QVector<PathCheckRule> m_rules;
};

} // namespace controller
