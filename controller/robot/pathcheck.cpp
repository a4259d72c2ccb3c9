#include "controller/robot/pathcheck.h"

#include "controller/project/project.h"
#include "controller/robot/linearpath.h"
#include "controller/robot/robot.h"

#include <QJsonArray>
#include <QJsonObject>

namespace controller {

namespace {

Content recordNamed(const RecordList& points, const QString& name) {
    for (const QString& node : points.nodes()) {
        if (textAt(points.record(node), QStringLiteral("name")) == name)
            return points.record(node);
    }
    return nullptr;
}

QJsonObject placeOf(const Content& record) {
    brisk::ModuleObject* value = record->c(QStringLiteral("value"));
    const brisk::ModuleObject* place = value ? value->c(onlyElement()) : nullptr;
    return place ? place->exportToJson(true).toObject() : QJsonObject();
}

MoveError unknownPoint(const QString& name) {
    return {MoveError::UnknownPoint, QStringLiteral("The project has no point \"%1\".").arg(name), QString()};
}

MoveError noPlace(const QString& name) {
    return {MoveError::NoPlace, QStringLiteral("The point \"%1\" has no place.").arg(name), QString()};
}

KDL::Frame poseIn(const QJsonObject& frame) {
    const QJsonObject pos = frame.value("pos").toObject();
    const QJsonObject euler = frame.value("ori").toObject().value("euler").toObject();
    return frameOf({pos.value("x").toDouble(), pos.value("y").toDouble(), pos.value("z").toDouble(),
                    euler.value("a").toDouble(), euler.value("b").toDouble(), euler.value("c").toDouble()});
}

Configuration configurationIn(const QJsonObject& conf) {
    Configuration configuration;
    for (size_t i = 0; i < configuration.quadrants.size(); ++i)
        configuration.quadrants.at(i) = conf.value(QStringLiteral("cf%1").arg(i + 1)).toInt();
    configuration.branches = conf.value("cfx").toInt();
    return configuration;
}

Posture jointsIn(const QJsonArray& joints, Posture posture) {
    for (int i = 0; i < joints.size() && size_t(i) < posture.joints.size(); ++i)
        posture.joints.at(size_t(i)) = joints.at(i).toDouble();
    return posture;
}

} // namespace

PathCheck::PathCheck(const Robot* robot, const Project* project) : m_robot(robot), m_project(project) {}

MoveError PathCheck::between(const QString& from, const QString& to) const {
    for (const PathCheckRule& rule : m_rules) {
        if (rule.from == from && rule.to == to)
            return {rule.error, QString(), QString()};
    }
    const PostureChoice start = postureAt(from);
    if (start.error)
        return start.error;
    const PostureChoice end = postureAt(to);
    if (end.error)
        return end.error;
    const Kinematics& kinematics = m_robot->kinematics();
    MoveTarget target{{}, m_robot->tool(), m_robot->wobj()};
    target.pose = kinematics.pose(end.posture, target.tool, target.wobj);
    return LinearPath(&kinematics, start.posture, target, m_robot->model().jog.mmPerS).lookAheadTo(1);
}

PostureChoice PathCheck::postureAt(const QString& point) const {
    const Content record = recordNamed(m_project->points(), point);
    if (!record)
        return {{}, unknownPoint(point)};
    const QJsonObject place = placeOf(record);
    if (place.contains("pose"))
        return postureIn(point, place);
    const QJsonArray joints = place.value("inner_pos").toArray();
    if (joints.size() < m_robot->model().joints.size())
        return {{}, noPlace(point)};
    return {jointsIn(joints, m_robot->posture()), {}};
}

PostureChoice PathCheck::postureIn(const QString& point, const QJsonObject& place) const {
    const Kinematics& kinematics = m_robot->kinematics();
    const QJsonObject coord = place.value("coord").toObject();
    const QJsonObject pose = place.value("pose").toObject();
    const MoveTarget target{poseIn(pose.value("frame").toObject()), coord.value("tool").toString(m_robot->tool()),
                            coord.value("wobj").toString(m_robot->wobj())};
    if (!pose.contains("frame") || !kinematics.unknown(target.tool, target.wobj).isEmpty())
        return {{}, noPlace(point)};
    Posture present = m_robot->posture();
    if (isRedundant(kinematics.model()))
        present.joints.at(2) = pose.value("elb").toDouble();
    if (!place.contains("conf"))
        return nearestPosture(kinematics, target, present);
    return postureOf(kinematics, target, configurationIn(place.value("conf").toObject()), present);
}

} // namespace controller
