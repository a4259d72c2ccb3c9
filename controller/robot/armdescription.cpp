#include "controller/robot/armdescription.h"

#include "controller/robot/arm.h"

#include <QJsonArray>

namespace controller {

namespace {

QJsonObject placeOf(const Pose& pose) {
    return {{"x", pose.x}, {"y", pose.y}, {"z", pose.z}, {"a", pose.a}, {"b", pose.b}, {"c", pose.c}};
}

QJsonArray axisOf(int direction) {
    QJsonArray axis;
    for (int i = 0; i < 3; ++i)
        axis << (i == direction ? 1 : 0);
    return axis;
}

QJsonObject mountOf(const RobotModel& model, const Mount& mount) {
    QJsonObject place = placeOf(mount.pose);
    place.insert("on", mount.on == Mount::world ? QString() : model.externals.at(mount.on).axis.name);
    return place;
}

QJsonArray linksOf(const RobotModel& model) {
    QJsonArray links;
    for (const ArmLink& link : Arm(model.lengths, model.joints.size()).links())
        links << QJsonObject{{"name", model.joints.at(links.size()).name},
                             {"axis", axisOf(link.direction)},
                             {"next", placeOf(poseOf(link.next))}};
    return links;
}

QJsonArray externalsOf(const RobotModel& model) {
    QJsonArray externals;
    for (const ExternalAxis& external : model.externals)
        externals << QJsonObject{{"name", external.axis.name},
                                 {"axis", axisOf(external.direction)},
                                 {"linear", external.axis.isLinear},
                                 {"place", mountOf(model, external.mount)}};
    return externals;
}

} // namespace

QJsonObject armDescription(const RobotModel& model) {
    QJsonObject tools;
    for (auto tool = model.tools.constBegin(); tool != model.tools.constEnd(); ++tool)
        tools.insert(tool.key(), placeOf(tool.value()));
    QJsonObject wobjs;
    for (auto wobj = model.wobjs.constBegin(); wobj != model.wobjs.constEnd(); ++wobj)
        wobjs.insert(wobj.key(), mountOf(model, wobj.value()));
    return {{"foot", mountOf(model, model.foot)},
            {"links", linksOf(model)},
            {"externals", externalsOf(model)},
            {"tools", tools},
            {"wobjs", wobjs}};
}

} // namespace controller
