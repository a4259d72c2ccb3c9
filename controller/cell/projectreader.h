#pragma once

#include "controller/cell/cellvalue.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/projectstart.h"
#include "controller/robot/kinematics.h"

namespace controller {

/// Reads the project of a cell. Its points are given by postures of the robot; what is Cartesian of them is worked out,
/// so that every point is one that the robot can come to.
class ProjectReader {
public:
    explicit ProjectReader(const RobotModel& robot);

    ProjectStart read(const CellValue& json);

    /// The section "pers".
    static QVector<PersistentVariable> readPersistent(const CellValue& json);

private:
    void readTemplates(const CellValue& json);
    void readVariable(const CellValue& json);
    void readPoint(const CellValue& json);
    Posture postureIn(const CellValue& json) const;
    QJsonObject placeIn(const CellValue& json, bool isJoint) const;

    Kinematics m_robot;
    ProjectStart m_start = emptyProject();
    QStringList m_pointNames;
    QStringList m_variableNames;
};

} // namespace controller
