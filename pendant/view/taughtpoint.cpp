#include "taughtpoint.h"

#include <QJsonArray>
#include <QJsonObject>

namespace pendant {
namespace view {

namespace {

QJsonObject objectIn(const QJsonObject& object, const char* name) {
    return object.value(QLatin1String(name)).toObject();
}

QVector<double> numbersIn(const QJsonObject& object, const char* name) {
    QVector<double> numbers;
    for (const QJsonValue& number : object.value(QLatin1String(name)).toArray())
        numbers.append(number.toDouble());
    return numbers;
}

// A place with the angles beside it: {"pos": {x, y, z}, "ori": {"euler": {a, b, c}}}
Place frameOf(const QJsonObject& frame) {
    QJsonObject place = objectIn(frame, "pos");
    const QJsonObject angles = objectIn(objectIn(frame, "ori"), "euler");
    for (auto angle = angles.begin(); angle != angles.end(); ++angle)
        place.insert(angle.key(), angle.value());
    return placeOf(place);
}

} // namespace

Vector TaughtPoint::inWorld(const ArmGeometry& arm, const ArmChain& present, const QString& tool) const {
    if (isJoint)
        return ArmChain(arm, stance).tip(tool).at;
    return present.inWorld(arm.wobjs.value(wobj)) * pose.at;
}

TaughtPoint taughtPointOf(const QString& node, const QJsonObject& record) {
    const QJsonObject value = objectIn(objectIn(record, "value"), "[0][0][0]");
    TaughtPoint point;
    point.node = node;
    point.name = record.value(QLatin1String("name")).toString();
    point.isJoint = record.value(QLatin1String("property")).toString() == QLatin1String("joint");
    point.stance = {numbersIn(value, "inner_pos"), numbersIn(value, "extern_pos")};
    point.pose = frameOf(objectIn(objectIn(value, "pose"), "frame"));
    point.wobj = objectIn(value, "coord").value(QLatin1String("wobj")).toString();
    return point;
}

} // namespace view
} // namespace pendant
