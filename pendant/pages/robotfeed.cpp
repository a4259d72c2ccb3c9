#include "robotfeed.h"

#include "brisk/relay.h"
#include "project/links.h"

#include <QJsonArray>

#include <algorithm>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString positionKey = QStringLiteral("robot.position");
const QString stateKey = QStringLiteral("robot.state");

QJsonValue read(QObject* sender, const QString& key) {
    const ModuleObject* reply = relay()->get(sender, key);
    return reply ? reply->exportToJson(true) : QJsonValue();
}

RobotAxis axisOf(const QJsonObject& axis) {
    return {axis.value(QStringLiteral("name")).toString(), axis.value(QStringLiteral("unit")).toString(),
            axis.value(QStringLiteral("min")).toDouble(), axis.value(QStringLiteral("max")).toDouble(),
            axis.value(QStringLiteral("external")).toBool()};
}

QStringList textsOf(const QJsonValue& array) {
    QStringList texts;
    for (const QJsonValue& text : array.toArray())
        texts << text.toString();
    return texts;
}

} // namespace

RobotFeed::RobotFeed(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("jog page"));
    follow(positionKey, &RobotFeed::takePosition);
    follow(stateKey, &RobotFeed::takeState);
    links::follow(this, [this] { followLinks(); });
    followLinks();
}

RobotFeed::~RobotFeed() {
    setWatching(false);
}

void RobotFeed::follow(const QString& key, void (RobotFeed::*take)(const QJsonObject&)) {
    ModuleObject* node = relay()->watchNode(key);
    if (node)
        connect(node, &ModuleObject::changed, this,
                [this, take](const QVariant& value) { (this->*take)(value.toJsonObject()); });
}

void RobotFeed::setActive(bool active) {
    m_isActive = active;
    setWatching(active);
    if (active && m_isOnline)
        readRobot();
}

void RobotFeed::followLinks() {
    const bool online = links::areUp();
    if (online == m_isOnline)
        return;
    m_isOnline = online;
    if (online && m_isActive)
        readRobot();
    emit onlineChanged(online);
}

void RobotFeed::setWatching(bool on) {
    if (on == m_isWatching)
        return;
    m_isWatching = on;
    relay()->watch(this, positionKey, on);
    relay()->watch(this, stateKey, on);
}

// A watch tells of changes only, so what is there already is read.
void RobotFeed::readRobot() {
    m_axes.clear();
    for (const QJsonValue& axis : read(this, QStringLiteral("robot.axes")).toArray())
        m_axes << axisOf(axis.toObject());
    m_joints = static_cast<int>(
        std::count_if(m_axes.begin(), m_axes.end(), [](const RobotAxis& axis) { return !axis.isExternal; }));
    const QJsonObject frames = read(this, QStringLiteral("robot.frames")).toObject();
    m_tools = textsOf(frames.value(QStringLiteral("tools")));
    m_workObjects = textsOf(frames.value(QStringLiteral("wobjs")));
    emit robotChanged();
    takePosition(read(this, positionKey).toObject());
    takeState(read(this, stateKey).toObject());
}

void RobotFeed::takePosition(const QJsonObject& position) {
    m_position = position;
    emit positionChanged();
}

void RobotFeed::takeState(const QJsonObject& state) {
    m_isMoving = state.value(QStringLiteral("moving")).toBool();
    m_stoppedBy = state.value(QStringLiteral("stopped_by")).toString();
    emit stateChanged();
}

double RobotFeed::axisValue(int axis) const {
    const QJsonObject joint = m_position.value(QStringLiteral("joint")).toObject();
    const bool isExternal = axis >= m_joints;
    const QString part = isExternal ? QStringLiteral("extern_pos") : QStringLiteral("inner_pos");
    return joint.value(part).toArray().at(isExternal ? axis - m_joints : axis).toDouble();
}

double RobotFeed::cartesianValue(int index) const {
    const QJsonObject cartesian = m_position.value(QStringLiteral("cartesian")).toObject();
    const QJsonObject frame =
        cartesian.value(QStringLiteral("pose")).toObject().value(QStringLiteral("frame")).toObject();
    const QJsonObject orientation = frame.value(QStringLiteral("ori")).toObject();
    const QJsonObject part = index < 3 ? frame.value(QStringLiteral("pos")).toObject()
                                       : orientation.value(QStringLiteral("euler")).toObject();
    return part.value(QString(QLatin1Char("xyzabc"[index]))).toDouble();
}

} // namespace pendant
