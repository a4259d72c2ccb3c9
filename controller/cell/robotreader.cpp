#include "controller/cell/robotreader.h"

namespace controller {

namespace {

const double mostMm = 100000;
const double mostDeg = 100000;
const int externalsAtMost = 6;

const QStringList& poseNames() {
    static const QStringList names{"x", "y", "z", "a", "b", "c"};
    return names;
}

double lengthIn(const CellValue& json) {
    return json.numberFrom(-mostMm, mostMm, QStringLiteral("mm"));
}

double optional(const CellValue& json, double most, const char* unit) {
    return json.exists() ? json.numberFrom(-most, most, QLatin1String(unit)) : 0;
}

Pose poseIn(const CellValue& json) {
    return {optional(json["x"], mostMm, "mm"),   optional(json["y"], mostMm, "mm"),
            optional(json["z"], mostMm, "mm"),   optional(json["a"], 360, "degrees"),
            optional(json["b"], 360, "degrees"), optional(json["c"], 360, "degrees")};
}

// What joints and external axes have in common.
Axis axisIn(const CellValue& json, bool isLinear) {
    const double most = isLinear ? mostMm : mostDeg;
    Axis axis{json["name"].text(),
              json["min"].numberFrom(-most, most),
              json["max"].numberFrom(-most, most),
              json["speed"].numberFrom(0.001, most),
              json["start"].number(0),
              isLinear,
              json["acceleration"].exists() ? json["acceleration"].numberFrom(0.001, most) : 0};
    if (axis.minimum >= axis.maximum)
        json["min"].fail(QStringLiteral("It must be less than \"max\"."));
    if (axis.start < axis.minimum || axis.start > axis.maximum)
        (json["start"].exists() ? json["start"] : json)
            .fail(QStringLiteral("\"start\" must be from \"min\" to \"max\"; left out it is 0."));
    return axis;
}

int directionIn(const CellValue& json) {
    const int direction = QStringList{"x", "y", "z"}.indexOf(json.text());
    if (direction < 0)
        json.fail(QStringLiteral("Write \"x\", \"y\" or \"z\"."));
    return qMax(0, direction);
}

void mustBeThere(const CellValue& json, const QString& name, const QStringList& names) {
    if (!names.contains(name))
        json.fail(QStringLiteral("There is no \"%1\". There are %2.").arg(name, quoted(names)));
}

} // namespace

RobotModel RobotReader::read(const CellValue& file) {
    RobotReader reader;
    if (file["robot"].exists())
        reader.readRobot(file["robot"]);
    if (file["tools"].exists())
        reader.readTools(file["tools"]);
    if (file["wobjs"].exists())
        reader.readWobjs(file["wobjs"]);
    if (file["robot"].exists())
        reader.readSelection(file["robot"]);
    return reader.m_model;
}

void RobotReader::readRobot(const CellValue& json) {
    json.mayHave({"arm", "axes", "external", "foot", "jog", "linear", "tool", "wobj"});
    if (json["arm"].exists())
        readLengths(json["arm"]);
    if (json["axes"].exists())
        readJoints(json["axes"]);
    if (json["external"].exists())
        readExternals(json["external"]);
    if (json["foot"].exists())
        m_model.foot = mountIn(json["foot"]);
    if (json["jog"].exists())
        readJogSpeeds(json["jog"]);
    if (json["linear"].exists())
        readLinearLimits(json["linear"]);
}

void RobotReader::readLengths(const CellValue& json) {
    json.mayHave({"shoulderHeight", "shoulderOffset", "upperArm", "elbowOffset", "forearm", "wrist"});
    m_model.lengths = {lengthIn(json["shoulderHeight"]), lengthIn(json["shoulderOffset"]), lengthIn(json["upperArm"]),
                       lengthIn(json["elbowOffset"]),    lengthIn(json["forearm"]),        lengthIn(json["wrist"])};
    for (const char* name : {"upperArm", "forearm"}) {
        if (json[name].json().toDouble() <= 0)
            json[name].fail(QStringLiteral("It must be more than 0."));
    }
}

void RobotReader::readJoints(const CellValue& json) {
    m_model.joints.clear();
    for (const CellValue& item : json.items()) {
        item.mayHave({"name", "min", "max", "speed", "start", "acceleration"});
        const Axis axis = axisIn(item, false);
        checkName(item["name"], axis.name);
        m_model.joints << axis;
    }
    if (m_model.joints.size() != 6 && m_model.joints.size() != 7)
        json.fail(QStringLiteral("Write six joints, or seven where the third turns the upper arm."));
}

void RobotReader::readExternals(const CellValue& json) {
    for (const CellValue& item : json.items())
        readExternal(item);
    if (m_model.externals.size() > externalsAtMost)
        json.fail(QStringLiteral("There may be six external axes."));
}

void RobotReader::readExternal(const CellValue& json) {
    json.mayHave({"name", "min", "max", "speed", "start", "along", "about", "place"});
    const bool isLinear = json["along"].exists();
    if (isLinear == json["about"].exists())
        json.fail(QStringLiteral("Write either \"along\", for an axis in mm, or \"about\", for one in degrees."));
    ExternalAxis external;
    external.axis = axisIn(json, isLinear);
    external.direction = directionIn(isLinear ? json["along"] : json["about"]);
    if (json["place"].exists())
        external.mount = mountIn(json["place"]);
    checkName(json["name"], external.axis.name);
    m_model.externals << external;
}

void RobotReader::readJogSpeeds(const CellValue& json) {
    json.mayHave({"mmPerS", "degPerS", "percentOfAxis"});
    if (json["mmPerS"].exists())
        m_model.jog.mmPerS = json["mmPerS"].numberFrom(0.001, mostMm);
    if (json["degPerS"].exists())
        m_model.jog.degPerS = json["degPerS"].numberFrom(0.001, mostDeg);
    if (json["percentOfAxis"].exists())
        m_model.jog.percentOfAxis = json["percentOfAxis"].numberFrom(0.001, 100);
}

void RobotReader::readLinearLimits(const CellValue& json) {
    json.mayHave({"mmPerS", "mmPerS2", "degPerS", "degPerS2"});
    const auto read = [&json](const char* name, double* limit) {
        if (json[name].exists())
            *limit = json[name].numberFrom(0.001, mostMm);
    };
    read("mmPerS", &m_model.linear.mmPerS);
    read("mmPerS2", &m_model.linear.mmPerS2);
    read("degPerS", &m_model.linear.degPerS);
    read("degPerS2", &m_model.linear.degPerS2);
}

void RobotReader::readTools(const CellValue& json) {
    for (const QString& name : json.names()) {
        if (name.isEmpty() || everyonesTools().contains(name))
            json[name].fail(
                QStringLiteral("Every robot has tools %1. Choose another name.").arg(quoted(everyonesTools())));
        json[name].mayHave(poseNames() + QStringList{"scope"});
        m_model.tools.insert(name, poseIn(json[name]));
    }
}

void RobotReader::readWobjs(const CellValue& json) {
    for (const QString& name : json.names()) {
        if (name.isEmpty() || everyonesWobjs().contains(name))
            json[name].fail(
                QStringLiteral("Every cell has work objects %1. Choose another name.").arg(quoted(everyonesWobjs())));
        m_model.wobjs.insert(name, mountIn(json[name], {"scope"}));
    }
}

void RobotReader::readSelection(const CellValue& json) {
    m_model.tool = json["tool"].text(m_model.tool);
    m_model.wobj = json["wobj"].text(m_model.wobj);
    mustBeThere(json["tool"], m_model.tool, m_model.tools.keys());
    mustBeThere(json["wobj"], m_model.wobj, m_model.wobjs.keys());
}

Mount RobotReader::mountIn(const CellValue& json, const QStringList& besides) const {
    json.mayHave(poseNames() + QStringList{"on"} + besides);
    const int on = json["on"].exists() ? externalNamed(json["on"]) : int(Mount::world);
    return {poseIn(json), on};
}

// An axis stands on one before it, so none stands on itself.
int RobotReader::externalNamed(const CellValue& json) const {
    const QString name = json.text();
    for (int i = 0; i < m_model.externals.size(); ++i) {
        if (m_model.externals.at(i).axis.name == name)
            return i;
    }
    json.fail(QStringLiteral("There is no external axis \"%1\" before this one.").arg(name));
    return Mount::world;
}

void RobotReader::checkName(const CellValue& json, const QString& name) const {
    if (name.isEmpty() && json.exists())
        json.fail(QStringLiteral("Give the axis a name."));
    for (const Axis& axis : m_model.axes()) {
        if (axis.name == name)
            json.fail(QStringLiteral("There is an axis of this name already."));
    }
}

} // namespace controller
