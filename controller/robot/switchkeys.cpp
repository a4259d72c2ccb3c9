#include "controller/robot/switchkeys.h"

#include "controller/bustable.h"
#include "controller/robot/robot.h"

#include <QJsonValue>
#include <QScopedValueRollback>

using brisk::standin::contentOf;

namespace controller {

namespace {

QString drivesKey() {
    return QStringLiteral("robot.drives");
}

QString modeKey() {
    return QStringLiteral("robot.mode");
}

QString manual() {
    return QStringLiteral("manual");
}

QString automatic() {
    return QStringLiteral("auto");
}

} // namespace

SwitchKeys::SwitchKeys(Robot* robot, BusTable* bus, QObject* parent) : QObject(parent), m_robot(robot), m_bus(bus) {
    define(
        drivesKey(), [robot] { return robot->hasDrives(); }, &SwitchKeys::takeDrives);
    define(
        modeKey(), [robot] { return robot->mode() == Robot::Mode::Manual ? manual() : automatic(); },
        &SwitchKeys::takeMode);
    connect(robot, &Robot::drivesChanged, this, [this] { tell(drivesKey()); });
    connect(robot, &Robot::modeChanged, this, [this] { tell(modeKey()); });
}

void SwitchKeys::define(const QString& key, const std::function<QVariant()>& value, Taker take) {
    m_bus->defineComputed(
        key, [value] { return contentOf(value()); },
        [this, take](const QString& subKey, const Content& sent) {
            const QScopedValueRollback<bool> taking(m_isTaking, true);
            return (this->*take)(subKey.isEmpty() ? brisk::standin::jsonOf(sent) : QJsonValue());
        });
}

// What is set over the bus the table tells itself.
void SwitchKeys::tell(const QString& key) {
    if (!m_isTaking)
        m_bus->tell(key);
}

QString SwitchKeys::takeDrives(const QJsonValue& sent) {
    if (!sent.isBool())
        return QStringLiteral("The bus key \"robot.drives\" takes true or false.");
    m_robot->setDrives(sent.toBool());
    return QString();
}

QString SwitchKeys::takeMode(const QJsonValue& sent) {
    if (sent != manual() && sent != automatic())
        return QStringLiteral("The bus key \"robot.mode\" takes \"manual\" or \"auto\".");
    m_robot->setMode(sent == manual() ? Robot::Mode::Manual : Robot::Mode::Automatic);
    return QString();
}

} // namespace controller
