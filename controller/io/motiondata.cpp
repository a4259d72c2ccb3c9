#include "controller/io/motiondata.h"

#include "controller/robot/robot.h"

#include <QJsonArray>

namespace controller {

namespace {

QJsonObject recordOf(const QString& name, const Pose& pose) {
    const QJsonObject frame{{"x", pose.x}, {"y", pose.y}, {"z", pose.z}, {"a", pose.a}, {"b", pose.b}, {"c", pose.c}};
    return {{"name", name}, {"frame", frame}};
}

const Pose& placeOf(const Pose& tool) {
    return tool;
}

const Pose& placeOf(const Mount& wobj) {
    return wobj.pose;
}

template <typename Place>
QJsonArray listOf(const QMap<QString, Place>& places, const QMap<QString, Scope>& scopes, Scope wanted) {
    QJsonArray list;
    for (auto place = places.constBegin(); place != places.constEnd(); ++place) {
        if (scopes.value(place.key(), Scope::Project) == wanted)
            list << recordOf(place.key(), placeOf(place.value()));
    }
    return list;
}

QMap<QString, Scope> withEveryones(QMap<QString, Scope> scopes, const QStringList& names) {
    for (const QString& name : names)
        scopes.insert(name, Scope::System);
    return scopes;
}

template <typename Place> QJsonObject listsOf(const QMap<QString, Place>& places, const QMap<QString, Scope>& scopes) {
    return {{"system", listOf(places, scopes, Scope::System)},
            {"project", listOf(places, scopes, Scope::Project)},
            {"global", listOf(places, scopes, Scope::Global)}};
}

QJsonArray arrayOf(const QVector<QJsonObject>& records) {
    QJsonArray array;
    for (const QJsonObject& record : records)
        array << record;
    return array;
}

} // namespace

MotionData::MotionData(const Robot* robot, QObject* parent) : QObject(parent), m_robot(robot) {
    connect(robot, &Robot::modelChanged, this, &MotionData::changed);
}

void MotionData::start(const MotionNames& names) {
    m_names = names;
    emit changed();
}

Content MotionData::content() const {
    const RobotModel& model = m_robot->model();
    const QJsonObject tools = listsOf(model.tools, withEveryones(m_names.toolScopes, everyonesTools()));
    const QJsonObject wobjs = listsOf(model.wobjs, withEveryones(m_names.wobjScopes, everyonesWobjs()));
    return brisk::standin::contentOf(
        QVariant(QJsonObject{{"tools", tools}, {"wobjs", wobjs}, {"variables", arrayOf(m_names.variables)}}));
}

} // namespace controller
