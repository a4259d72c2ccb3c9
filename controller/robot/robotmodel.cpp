#include "controller/robot/robotmodel.h"

namespace controller {

namespace {

const double fullSpeedWithinS = 0.4;

} // namespace

double accelerationOf(const Axis& axis) {
    return axis.acceleration > 0 ? axis.acceleration : axis.speed / fullSpeedWithinS;
}

QVector<Axis> RobotModel::axes() const {
    QVector<Axis> all = joints;
    for (const ExternalAxis& external : externals)
        all << external.axis;
    return all;
}

Posture RobotModel::start() const {
    Posture posture;
    const QVector<Axis> all = axes();
    for (int i = 0; i < all.size(); ++i)
        setValue(&posture, *this, i, all.at(i).start);
    return posture;
}

bool isRedundant(const RobotModel& model) {
    return model.joints.size() == 7;
}

double valueOf(const Posture& posture, const RobotModel& model, int axis) {
    const int joints = model.joints.size();
    return axis < joints ? posture.joints.at(size_t(axis)) : posture.externals.at(size_t(axis - joints));
}

void setValue(Posture* posture, const RobotModel& model, int axis, double value) {
    const int joints = model.joints.size();
    if (axis < joints)
        posture->joints.at(size_t(axis)) = value;
    else
        posture->externals.at(size_t(axis - joints)) = value;
}

QString flangeTool() {
    return QStringLiteral("flange");
}

QString worldWobj() {
    return QStringLiteral("world");
}

QStringList everyonesTools() {
    return {QStringLiteral("tool0"), flangeTool()};
}

QStringList everyonesWobjs() {
    return {QStringLiteral("wobj0"), worldWobj()};
}

RobotModel standardModel() {
    RobotModel model;
    model.lengths = {450, 150, 700, 115, 820, 110};
    model.joints = {{"A1", -170, 170, 150, 0, false},  {"A2", -90, 135, 150, 0, false},
                    {"A3", -100, 155, 150, 0, false},  {"A4", -190, 190, 260, 0, false},
                    {"A5", -125, 125, 260, 90, false}, {"A6", -360, 360, 360, 0, false}};
    for (const QString& tool : everyonesTools())
        model.tools.insert(tool, {});
    for (const QString& wobj : everyonesWobjs())
        model.wobjs.insert(wobj, {});
    model.tool = flangeTool();
    model.wobj = worldWobj();
    return model;
}

} // namespace controller
