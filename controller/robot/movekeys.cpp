#include "controller/robot/movekeys.h"

#include "controller/bustable.h"
#include "controller/robot/movemessage.h"
#include "controller/robot/robot.h"

using brisk::standin::contentOf;

namespace controller {

namespace {

QString errorKey() {
    return QStringLiteral("move.last_error_with_setting");
}

/// The names of the two ways to move.
struct MoveNames {
    QString joint;
    QString linear;
};

MoveNames longNames() {
    return {QStringLiteral("move.move_to.jc"), QStringLiteral("move.move_to.l")};
}

MoveNames shortNames() {
    return {QStringLiteral("move.j"), QStringLiteral("move.l")};
}

bool hasLongNames(const QString& version) {
    for (const char* beginning : {"2.3", "3.0", "3.1"}) {
        if (version.startsWith(QLatin1String(beginning)))
            return true;
    }
    return false;
}

Content errorContent(const MoveError& error) {
    const Content content = contentOf(QVariant());
    content->set(nullptr, QStringLiteral("code"), error.code, false);
    content->set(nullptr, QStringLiteral("text"), error.text, false);
    return content;
}

} // namespace

MoveKeys::MoveKeys(Robot* robot, const Project* project, BusTable* bus, QObject* parent)
    : QObject(parent), m_robot(robot), m_bus(bus), m_pathCheck(robot, project) {
    m_bus->defineComputed(errorKey(), [this] { return errorContent(m_robot->error()); });
    connect(robot, &Robot::failed, this, [this] { m_bus->tell(errorKey()); });
    m_bus->onCommand(QStringLiteral("move.reset"), [this](const Content&) {
        m_robot->reset();
        return Content();
    });
    m_bus->onCommand(QStringLiteral("move.stop"), [this](const Content&) {
        m_robot->brake();
        return Content();
    });
    m_bus->onCommand(QStringLiteral("move.opr.enough"), [this](const Content&) { return confirm(); });
    m_bus->onCommand(QStringLiteral("move.path.check"), [this](const Content& sent) { return checkPath(sent); });
}

void MoveKeys::setHostVersion(const QString& version) {
    m_version = version;
    const MoveNames known = hasLongNames(version) ? longNames() : shortNames();
    const MoveNames unknown = hasLongNames(version) ? shortNames() : longNames();
    know(known.joint, MoveCommand::Joint);
    know(known.linear, MoveCommand::Linear);
    refuse(unknown.joint, known.joint);
    refuse(unknown.linear, known.linear);
}

void MoveKeys::know(const QString& command, MoveCommand::Way way) {
    m_bus->onCommand(command, [this, way](const Content& sent) { return move(way, sent); });
}

void MoveKeys::refuse(const QString& command, const QString& inItsPlace) {
    const QString text =
        QStringLiteral("The controller knows no bus command \"%1\": with version \"%2\" of the host it "
                       "is \"%3\". The version stands in the cell file, under \"host\".")
            .arg(command, m_version, inItsPlace);
    m_bus->onCommand(command, [this, text](const Content&) { return m_bus->refused(text); });
}

// The robot tells what is wrong to everybody; the answer is for who waits for it.
Content MoveKeys::move(MoveCommand::Way way, const Content& sent) {
    MoveCommand command;
    MoveError error = readMove(brisk::standin::jsonOf(sent), way, &command);
    if (error)
        m_robot->refuse(error);
    else
        error = m_robot->prepare(command);
    return error ? brisk::standin::refusal(error.text) : nullptr;
}

// After a move that was refused, its error has been told.
Content MoveKeys::confirm() {
    if (m_robot->confirm() || m_robot->error())
        return nullptr;
    return m_bus->refused(QStringLiteral("There is no move to start with \"move.opr.enough\": send one before."));
}

Content MoveKeys::checkPath(const Content& sent) {
    const QList<brisk::ModuleObject*> points = sent ? sent->cmobjs() : QList<brisk::ModuleObject*>();
    if (points.size() != 2)
        return m_bus->refused(
            QStringLiteral("To check a path, send an object whose two children have the names of the points."));
    const Content answer = contentOf(QVariant());
    const MoveError error = m_pathCheck.between(points.first()->name(), points.last()->name());
    if (error)
        answer->set(nullptr, QStringLiteral("error"), error.code, false);
    return answer;
}

} // namespace controller
