#pragma once

#include "controller/changingvalues.h"
#include "controller/hostinfo.h"
#include "controller/io/iosignal.h"
#include "controller/io/motiondata.h"
#include "controller/io/registers.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/projectstart.h"
#include "controller/robot/pathcheck.h"
#include "controller/robot/robotmodel.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace controller {

/// What a cell file says.
struct Cell {
    /// What comes out of a plugin command whose data begins with `when`.
    struct Rule {
        QJsonValue when;
        QJsonArray answer;
    };

    QMap<QString, QJsonValue> values; ///< start values of bus keys
    QMap<QString, ChangingValues::Course> courses;
    QMap<QString, QJsonValue> commands; ///< answers of bus commands
    QMap<QString, QJsonValue> requests; ///< answers of requests
    QVector<Rule> rules;                ///< the first that fits holds

    QVector<IoSignal> ioSignals;
    QVector<Register> registers;
    MotionNames motionNames;

    HostInfo host;
    RobotModel robot;
    QVector<PathCheckRule> pathChecks; ///< the first that fits holds
    ProjectStart project;
    QVector<PersistentVariable> persistent;
    QStringList refusedRemovals; ///< names of variables
};

} // namespace controller
