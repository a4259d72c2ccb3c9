#include "controller/robot/position.h"

#include "controller/robot/configuration.h"

#include <QJsonArray>

namespace controller {

namespace {

template <typename Values> QJsonArray arrayOf(const Values& values) {
    QJsonArray array;
    for (const double value : values)
        array << tidy(value);
    return array;
}

QJsonObject frameObject(const KDL::Frame& frame) {
    const Pose pose = poseOf(frame);
    const Quaternion q = quaternionOf(frame.M);
    const QJsonObject euler{{"a", pose.a}, {"b", pose.b}, {"c", pose.c}};
    const QJsonObject quaternion{{"q1", q.q1}, {"q2", q.q2}, {"q3", q.q3}, {"q4", q.q4}};
    return {{"pos", QJsonObject{{"x", pose.x}, {"y", pose.y}, {"z", pose.z}}},
            {"ori", QJsonObject{{"euler", euler}, {"quaternion", quaternion}}}};
}

// A member for each joint: "cf1", "cf2", ...
QJsonObject confObject(const Configuration& configuration) {
    QJsonObject conf{{"cfx", configuration.branches}};
    int joint = 0;
    for (const int quadrant : configuration.quadrants)
        conf.insert(QStringLiteral("cf%1").arg(++joint), quadrant);
    return conf;
}

} // namespace

QJsonObject positionOf(const Kinematics& kinematics, const Posture& posture, const QString& tool, const QString& wobj) {
    const Configuration configuration = configurationOf(kinematics, posture);
    const QJsonObject frame = frameObject(kinematics.pose(posture, tool, wobj));
    const QJsonObject pose{{"frame", frame}, {"elb", tidy(configuration.elbow)}};
    const QJsonObject joint{{"inner_pos", arrayOf(posture.joints)}, {"extern_pos", arrayOf(posture.externals)}};
    return {{"joint", joint}, {"cartesian", QJsonObject{{"pose", pose}, {"conf", confObject(configuration)}}}};
}

} // namespace controller
