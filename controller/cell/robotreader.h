#pragma once

#include "controller/cell/cellvalue.h"
#include "controller/robot/robotmodel.h"

namespace controller {

/// Reads the sections "robot", "tools" and "wobjs" of a cell. What is missing is as with the standard robot.
class RobotReader {
public:
    static RobotModel read(const CellValue& file);

private:
    void readRobot(const CellValue& json);
    void readLengths(const CellValue& json);
    void readJoints(const CellValue& json);
    void readExternals(const CellValue& json);
    void readExternal(const CellValue& json);
    void readJogSpeeds(const CellValue& json);
    void readLinearLimits(const CellValue& json);
    void readTools(const CellValue& json);
    void readWobjs(const CellValue& json);
    void readSelection(const CellValue& json);
    Mount mountIn(const CellValue& json, const QStringList& besides = {}) const;
    int externalNamed(const CellValue& json) const;
    void checkName(const CellValue& json, const QString& name) const;

    RobotModel m_model = standardModel();
};

} // namespace controller
