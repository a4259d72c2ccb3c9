#include "controller/cell/projectreader.h"

#include "controller/project/valuetype.h"
#include "controller/robot/position.h"

namespace controller {

namespace {

void checkValue(const CellValue& json, const QString& type) {
    if (!json.exists())
        json.fail(QStringLiteral("Add %1.").arg(whatFits(type)));
    else if (!fits(type, json.json()))
        json.fail(QStringLiteral("Write %1.").arg(whatFits(type)));
}

QString nameIn(const CellValue& json, QStringList* names) {
    const QString name = json.text();
    if (json.exists() && name.isEmpty())
        json.fail(QStringLiteral("Give it a name."));
    if (names->contains(name))
        json.fail(QStringLiteral("There is one of this name already."));
    names->append(name);
    return name;
}

// "joint" or "cart"
bool isJointIn(const CellValue& json) {
    const QString property = json.text(QStringLiteral("joint"));
    if (property != QLatin1String("joint") && property != QLatin1String("cart"))
        json.fail(QStringLiteral("Write \"joint\" or \"cart\"."));
    return property != QLatin1String("cart");
}

void readAxes(const CellValue& json, const QVector<Axis>& axes, double* values) {
    const QVector<CellValue> items = json.items();
    if (items.size() != axes.size())
        return json.fail(QStringLiteral("Write a number for each of %1 axes.").arg(axes.size()));
    for (int i = 0; i < items.size(); ++i)
        values[i] = items.at(i).numberFrom(axes.at(i).minimum, axes.at(i).maximum);
}

} // namespace

ProjectReader::ProjectReader(const RobotModel& robot) : m_robot(robot) {}

ProjectStart ProjectReader::read(const CellValue& json) {
    if (!json.exists())
        return m_start;
    json.mayHave({"name", "function", "task", "templates", "variables", "points"});
    m_start.name = json["name"].text(m_start.name);
    m_start.function = json["function"].text(m_start.function);
    m_start.task = json["task"].text(m_start.task);
    if (json["templates"].exists())
        readTemplates(json["templates"]);
    if (json["variables"].exists()) {
        for (const CellValue& item : json["variables"].items())
            readVariable(item);
    }
    if (json["points"].exists()) {
        for (const CellValue& item : json["points"].items())
            readPoint(item);
    }
    return m_start;
}

void ProjectReader::readTemplates(const CellValue& json) {
    json.mayHave({"variable", "point"});
    for (const QString& name : json.names())
        json[name].names();
    if (json["variable"].exists())
        m_start.variableTemplate = json["variable"].json().toObject();
    if (json["point"].exists())
        m_start.pointTemplate = json["point"].json().toObject();
}

void ProjectReader::readVariable(const CellValue& json) {
    json.mayHave({"name", "type", "value", "pers", "description"});
    const QString type = json["type"].text();
    checkValue(json["value"], type);
    QJsonObject record = m_start.variableTemplate;
    record.insert("name", nameIn(json["name"], &m_variableNames));
    record.insert("type", type);
    record.insert("id", m_start.variables.size());
    record.insert("pers", json["pers"].boolean(false));
    record.insert("description", json["description"].text(QString()));
    record.insert("value", QJsonObject{{onlyElement(), json["value"].json()}});
    m_start.variables << record;
}

void ProjectReader::readPoint(const CellValue& json) {
    json.mayHave({"name", "property", "joints", "external", "tool", "wobj", "description"});
    const bool isJoint = isJointIn(json["property"]);
    QJsonObject record = m_start.pointTemplate;
    record.insert("name", nameIn(json["name"], &m_pointNames));
    record.insert("id", m_start.points.size());
    record.insert("property", isJoint ? "joint" : "cart");
    record.insert("description", json["description"].text(QString()));
    record.insert("func", m_start.function);
    record.insert("task", m_start.task);
    record.insert("value", QJsonObject{{onlyElement(), placeIn(json, isJoint)}});
    m_start.points << record;
}

// What teaching there stores.
QJsonObject ProjectReader::placeIn(const CellValue& json, bool isJoint) const {
    const QString tool = json["tool"].text(m_robot.model().tool);
    const QString wobj = json["wobj"].text(m_robot.model().wobj);
    const QString unknown = m_robot.unknown(tool, wobj);
    if (!unknown.isEmpty()) {
        json.fail(unknown);
        return {};
    }
    const QJsonObject position = positionOf(m_robot, postureIn(json), tool, wobj);
    const QJsonObject joint = position.value("joint").toObject();
    QJsonObject place = isJoint ? joint : position.value("cartesian").toObject();
    if (!isJoint)
        place.insert("external_joint", joint.value("extern_pos"));
    place.insert("coord", QJsonObject{{"tool", tool}, {"wobj", wobj}});
    return place;
}

Posture ProjectReader::postureIn(const CellValue& json) const {
    Posture posture;
    QVector<Axis> externals;
    for (const ExternalAxis& external : m_robot.model().externals)
        externals << external.axis;
    readAxes(json["joints"], m_robot.model().joints, posture.joints.data());
    if (json["external"].exists() || !externals.isEmpty())
        readAxes(json["external"], externals, posture.externals.data());
    return posture;
}

QVector<PersistentVariable> ProjectReader::readPersistent(const CellValue& json) {
    QVector<PersistentVariable> variables;
    if (!json.exists())
        return variables;
    for (const QString& name : json.names()) {
        json[name].mayHave({"type", "value"});
        const QString type = json[name]["type"].text();
        checkValue(json[name]["value"], type);
        if (name.isEmpty())
            json[name].fail(QStringLiteral("Give it a name."));
        variables.append({name, type, json[name]["value"].json()});
    }
    return variables;
}

} // namespace controller
