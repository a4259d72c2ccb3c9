// Points of the robot project: read and changed.

#include "kite/interfacemanager.h"

#include "interface/hotupdate.h"
#include "interface/nodejson.h"
#include "interface/records.h"

#include "brisk/modulemanager.h"

#include <array>

namespace kite {

using brisk::ModuleObject;

namespace {

const int poseSize = 6;
using PoseLeaves = std::array<QPointer<ModuleObject>, poseSize>;

ModuleObject* points() {
    return m(QStringLiteral("orca.project.point._list"));
}

// x, y, z, a, b, c; null for what the point does not have, which is all of them with a joint point.
PoseLeaves poseLeaves(ModuleObject* point) {
    ModuleObject* frame = below(point, {"value", "[0][0][0]", "pose", "frame"});
    ModuleObject* position = below(frame, {"pos"});
    ModuleObject* euler = below(frame, {"ori", "euler"});
    return {below(position, {"x"}), below(position, {"y"}), below(position, {"z"}),
            below(euler, {"a"}),    below(euler, {"b"}),    below(euler, {"c"})};
}

// What is no text counts as the empty name.
bool isName(const QJsonValue& json, const QString& name) {
    return json.toString() == name;
}

// As isName() of what `node` is exported as; a text is compared without making JSON of it.
bool exportsAsName(const ModuleObject* node, const QString& name) {
    if (!node || node->isList() || node->cmobjCount() > 0)
        return name.isEmpty();
    const QVariant value = node->value();
    return value.userType() == QMetaType::QString ? value.toString() == name : isName(jsonOf(node), name);
}

bool exportsAsObjectNamed(ModuleObject* record, const QString& name) {
    if (!record || record->isList())
        return false;
    if (record->cmobjCount() > 0)
        return exportsAsName(record->c(nameKey()), name);
    const QJsonValue json = jsonOf(record);
    return json.isObject() && isName(json.toObject().value(nameKey()), name);
}

// A list that came in as one value: "[{...}, {...}]"
QJsonObject findInLeaf(const ModuleObject* list, const QString& name) {
    for (const QJsonValue& record : jsonOf(list).toArray()) {
        if (record.isObject() && isName(record.toObject().value(nameKey()), name))
            return record.toObject();
    }
    return QJsonObject();
}

} // namespace

QVector<double> InterfaceManager::getPointDataByName(const QString& name) {
    QVector<double> pose;
    ModuleObject* point = findRecord(points(), name);
    if (!point)
        return pose;
    for (const QPointer<ModuleObject>& leaf : poseLeaves(point))
        pose.append(leaf ? leaf->getDouble(0.0) : 0.0);
    return pose;
}

QJsonObject InterfaceManager::getPointObjDataByName(const QString& name) {
    ModuleObject* list = below(m(QStringLiteral("orca.project.point")), {"_list"});
    if (list && !list->isList())
        return list->cmobjCount() > 0 ? QJsonObject() : findInLeaf(list, name);
    const int count = list ? list->cmobjCount() : 0;
    for (int i = 0; i < count; ++i) {
        ModuleObject* record = list->c(i);
        if (exportsAsObjectNamed(record, name))
            return jsonOf(record).toObject();
    }
    return QJsonObject();
}

QStringList InterfaceManager::getPointNameList() {
    QStringList names;
    ModuleObject* list = points();
    const int count = list ? list->cmobjCount() : 0;
    for (int i = 0; i < count; ++i)
        names.append(nameOf(list->c(i)));
    return names;
}

bool InterfaceManager::checkPointSame(const QString& first, const QString& second) {
    return first == second;
}

void InterfaceManager::changeCartPoint(const QString& name, const QVector<double>& pose) {
    // A copy: who hears of a number may change what was passed, as a page does that shows the pose.
    const QVector<double> numbers = pose;
    const QPointer<ModuleObject> list = points();
    ModuleObject* point = findRecord(list, name, Qt::CaseInsensitive);
    if (!point || numbers.size() < poseSize)
        return;
    const PoseLeaves leaves = poseLeaves(point);
    for (size_t i = 0; i < leaves.size(); ++i) {
        if (leaves[i])
            leaves[i]->setValue(this, numbers.at(int(i)));
    }
    announcePoint(this, list, QStringLiteral("edit"));
}

} // namespace kite
