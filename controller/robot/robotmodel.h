#pragma once

#include "controller/robot/pose.h"
#include "controller/robot/posture.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace controller {

/// The lengths of an arm in mm. With all joints at 0 the upper arm stands upright and the forearm points to the front,
/// along X of the foot; Z of the foot is axis 1.
struct ArmLengths {
    double shoulderHeight = 0; ///< from the foot up to axis 2
    double shoulderOffset = 0; ///< from axis 1 forward to axis 2
    double upperArm = 0;       ///< from axis 2 up to the elbow
    double elbowOffset = 0;    ///< from the elbow up to the line of the forearm
    double forearm = 0;        ///< from the elbow forward to the centre of the wrist
    double wrist = 0;          ///< from there to the flange
};

/// What an axis can do: degrees and degrees a second, mm and mm a second for one that is linear.
struct Axis {
    QString name;
    double minimum = 0;
    double maximum = 0;
    double speed = 0; ///< the greatest
    double start = 0;
    bool isLinear = false;
    double acceleration = 0; ///< the greatest of moves; 0: at full speed within 0.4 s
};

double accelerationOf(const Axis& axis);

/// Where something stands: a pose in the world, or on an external axis.
struct Mount {
    static constexpr int world = -1;

    Pose pose;
    int on = world; ///< index of the external axis
};

/// A linear axis along, or a rotary one about, one direction of its mount.
struct ExternalAxis {
    Axis axis;
    Mount mount;       ///< on the world or on an axis before it
    int direction = 0; ///< 0, 1 or 2 for X, Y or Z
};

/// How fast 100 percent of jogging is.
struct JogSpeeds {
    double mmPerS = 250;
    double degPerS = 45;
    double percentOfAxis = 20; ///< of the greatest speed of a single axis
};

/// What the tip of the tool can do at most on a straight line.
struct LinearLimits {
    double mmPerS = 2000;
    double mmPerS2 = 4000;
    double degPerS = 180;
    double degPerS2 = 720;
};

/// A robot on paper.
struct RobotModel {
    ArmLengths lengths;
    QVector<Axis> joints;            ///< six, or seven with the third turning the upper arm about itself
    QVector<ExternalAxis> externals; ///< up to six
    Mount foot;
    QMap<QString, Pose> tools; ///< the tip in the flange, whose Z points away from the wrist
    QMap<QString, Mount> wobjs;
    QString tool; ///< the one that is selected at the start
    QString wobj;
    JogSpeeds jog;
    LinearLimits linear;

    /// The joints, then the external axes.
    QVector<Axis> axes() const;
    Posture start() const;
};

bool isRedundant(const RobotModel& model);
double valueOf(const Posture& posture, const RobotModel& model, int axis);
void setValue(Posture* posture, const RobotModel& model, int axis, double value);

/// Tool and work object that every robot has.
QString flangeTool();
QString worldWobj();
/// These two and, for the same, the names that pendants begin with: "tool0" and "wobj0".
QStringList everyonesTools();
QStringList everyonesWobjs();

/// A six-axis arm with a reach of about 1.8 m and nothing around it.
RobotModel standardModel();

} // namespace controller
