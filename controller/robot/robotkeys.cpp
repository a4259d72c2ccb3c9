#include "controller/robot/robotkeys.h"

#include "controller/bustable.h"
#include "controller/requesttable.h"
#include "controller/robot/armdescription.h"
#include "controller/robot/position.h"

#include <QJsonArray>

using brisk::standin::contentOf;

namespace controller {

namespace {

QString positionKey() {
    return QStringLiteral("robot.position");
}

QString stateKey() {
    return QStringLiteral("robot.state");
}

QString armKey() {
    return QStringLiteral("robot.arm");
}

QString frameKey() {
    return QStringLiteral("robot.frame");
}

QJsonArray axesOf(const RobotModel& model) {
    QJsonArray array;
    for (const Axis& axis : model.axes())
        array << QJsonObject{{"name", axis.name},
                             {"unit", axis.isLinear ? "mm" : "deg"},
                             {"min", axis.minimum},
                             {"max", axis.maximum},
                             {"external", array.size() >= model.joints.size()}};
    return array;
}

QJsonObject framesOf(const RobotModel& model) {
    return {{"tools", QJsonArray::fromStringList(model.tools.keys())},
            {"wobjs", QJsonArray::fromStringList(model.wobjs.keys())}};
}

// One word, what matters most first.
QString stateWord(const Robot& robot) {
    if (robot.isMoving())
        return robot.isBraking() ? QStringLiteral("stopping") : QStringLiteral("moving");
    if (!robot.hasDrives())
        return QStringLiteral("off");
    return robot.error() ? QStringLiteral("error") : QStringLiteral("idle");
}

QString motionWord(Robot::Motion motion) {
    switch (motion) {
    case Robot::Motion::None:
        return QString();
    case Robot::Motion::Jog:
        return QStringLiteral("jog");
    case Robot::Motion::JointMove:
        return QStringLiteral("joint move");
    case Robot::Motion::LinearMove:
        return QStringLiteral("linear move");
    }
    return QString();
}

QJsonObject stateOf(const Robot& robot) {
    return {{"state", stateWord(robot)},
            {"motion", motionWord(robot.motion())},
            {"moving", robot.isMoving()},
            {"stopped_by", robot.stoppedBy()}};
}

QJsonObject frameOf(const Robot& robot) {
    return {{"tool", robot.tool()}, {"wobj", robot.wobj()}};
}

} // namespace

RobotKeys::RobotKeys(Robot* robot, const Clock* clock, BusTable* bus, RequestTable* requests, QObject* parent)
    : QObject(parent), m_robot(robot), m_bus(bus), m_requests(requests) {
    define(QStringLiteral("robot.axes"), [this] { return QJsonValue(axesOf(m_robot->model())); });
    define(QStringLiteral("robot.frames"), [this] { return QJsonValue(framesOf(m_robot->model())); });
    define(armKey(), [this] { return QJsonValue(armDescription(m_robot->model())); });
    define(stateKey(), [this] { return QJsonValue(stateOf(*m_robot)); });
    define(positionKey(), [this] { return QJsonValue(position(m_robot->tool(), m_robot->wobj())); });
    m_bus->defineComputed(
        frameKey(), [this] { return contentOf(QVariant(frameOf(*m_robot))); },
        [this](const QString& subKey, const Content& sent) { return takeFrame(subKey, sent); });
    m_bus->onCommand(QStringLiteral("robot.jog"), [this](const Content& sent) { return jog(sent); });
    m_bus->onCommand(QStringLiteral("robot.jog.stop"), [this](const Content&) {
        m_robot->stop();
        return Content();
    });
    m_requests->onRequest(QStringLiteral("project.vex_program.get_rob_pos"),
                          [this](const Content& sent) { return positionIn(sent); });
    connect(robot, &Robot::moved, this, [this] { m_hasMoved = true; });
    connect(robot, &Robot::stateChanged, this, [this] { m_bus->tell(stateKey()); });
    connect(robot, &Robot::modelChanged, this, [this] { m_bus->tell(armKey()); });
    connect(clock, &Clock::advanced, this, &RobotKeys::deliverPosition);
}

void RobotKeys::define(const QString& key, const std::function<QJsonValue()>& value) {
    m_bus->defineComputed(key, [value] { return contentOf(QVariant(value())); });
}

// A robot under way moves fifty times a second.
void RobotKeys::deliverPosition(qint64 nowMs) {
    if (!m_hasMoved || nowMs - m_deliveredMs < deliveredEveryMs)
        return;
    m_hasMoved = false;
    m_deliveredMs = nowMs;
    m_bus->tell(positionKey());
}

QString RobotKeys::takeFrame(const QString& subKey, const Content& sent) {
    if (!QStringList{QString(), "tool", "wobj"}.contains(subKey))
        return QStringLiteral("The bus key \"robot.frame\" has \"tool\" and \"wobj\", no \"%1\".").arg(subKey);
    QJsonObject frame = subKey.isEmpty() ? brisk::standin::jsonOf(sent).toObject() : frameOf(*m_robot);
    if (!subKey.isEmpty())
        frame.insert(subKey, brisk::standin::jsonOf(sent));
    const QString tool = frame.value("tool").toString();
    const QString wobj = frame.value("wobj").toString();
    const QString refusal = m_robot->kinematics().unknown(tool, wobj);
    if (!refusal.isEmpty())
        return refusal;
    m_robot->setFrame(tool, wobj);
    m_hasMoved = false;
    m_bus->tell(positionKey());
    return QString();
}

QJsonObject RobotKeys::position(const QString& tool, const QString& wobj) const {
    return positionOf(m_robot->kinematics(), m_robot->posture(), tool, wobj);
}

Content RobotKeys::positionIn(const Content& sent) {
    const QJsonObject asked = brisk::standin::jsonOf(sent).toObject();
    const QString tool = asked.value("tool").toString();
    const QString wobj = asked.value("wobj").toString();
    const QString refusal = m_robot->kinematics().unknown(tool, wobj);
    return refusal.isEmpty() ? contentOf(QVariant(position(tool, wobj))) : m_requests->refused(refusal);
}

Content RobotKeys::jog(const Content& sent) {
    const QJsonObject asked = brisk::standin::jsonOf(sent).toObject();
    const QString space = asked.value("space").toString();
    if (space != QLatin1String("joint") && space != QLatin1String("cart"))
        return m_bus->refused(QStringLiteral("To jog, \"space\" must be \"joint\" or \"cart\"."));
    const JogCommand command{space == QLatin1String("joint") ? JogCommand::Joint : JogCommand::Cartesian,
                             asked.value("axis").toInt(-1), asked.value("percent").toDouble(qQNaN())};
    const QString refusal = m_robot->refusalOf(command);
    if (!refusal.isEmpty())
        return m_bus->refused(refusal);
    m_robot->jog(command);
    return nullptr;
}

} // namespace controller
