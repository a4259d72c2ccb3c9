#include "armgeometry.h"

#include <QJsonArray>
#include <QJsonObject>

namespace pendant {
namespace view {

namespace {

double numberIn(const QJsonObject& object, const char* name) {
    return object.value(QLatin1String(name)).toDouble();
}

Vector axisIn(const QJsonObject& object) {
    const QJsonArray axis = object.value(QLatin1String("axis")).toArray();
    const Vector direction{axis.at(0).toDouble(), axis.at(1).toDouble(), axis.at(2).toDouble()};
    return length(direction) > 0 ? normalised(direction) : Vector{0, 0, 1};
}

QJsonObject objectIn(const QJsonObject& object, const char* name) {
    return object.value(QLatin1String(name)).toObject();
}

QString nameOf(const QJsonObject& object) {
    return object.value(QLatin1String("name")).toString();
}

Mount mountOf(const QJsonObject& mount, const QVector<External>& externals) {
    const QString on = mount.value(QLatin1String("on")).toString();
    for (int i = 0; i < externals.size() && !on.isEmpty(); ++i) {
        if (externals.at(i).name == on)
            return {placeOf(mount), i};
    }
    return {placeOf(mount), Mount::world};
}

} // namespace

double ArmGeometry::size() const {
    double sum = 0;
    for (const Link& link : links)
        sum += length(link.next.at);
    return sum;
}

Place placeOf(const QJsonObject& place) {
    return {eulerTurn(numberIn(place, "a"), numberIn(place, "b"), numberIn(place, "c")),
            {numberIn(place, "x"), numberIn(place, "y"), numberIn(place, "z")}};
}

ArmGeometry armGeometryOf(const QJsonObject& description) {
    ArmGeometry arm;
    for (const QJsonValue& value : description.value(QLatin1String("externals")).toArray()) {
        const QJsonObject external = value.toObject();
        arm.externals.append({nameOf(external), axisIn(external), external.value(QLatin1String("linear")).toBool(),
                              mountOf(objectIn(external, "place"), arm.externals), 0, 0});
    }
    for (const QJsonValue& value : description.value(QLatin1String("links")).toArray()) {
        const QJsonObject link = value.toObject();
        arm.links.append({nameOf(link), axisIn(link), placeOf(objectIn(link, "next"))});
    }
    arm.foot = mountOf(objectIn(description, "foot"), arm.externals);
    const QJsonObject tools = objectIn(description, "tools");
    for (auto tool = tools.begin(); tool != tools.end(); ++tool)
        arm.tools.insert(tool.key(), placeOf(tool.value().toObject()));
    const QJsonObject wobjs = objectIn(description, "wobjs");
    for (auto wobj = wobjs.begin(); wobj != wobjs.end(); ++wobj)
        arm.wobjs.insert(wobj.key(), mountOf(wobj.value().toObject(), arm.externals));
    return arm;
}

bool operator==(const Stance& one, const Stance& other) {
    return one.joints == other.joints && one.externals == other.externals;
}

} // namespace view
} // namespace pendant
