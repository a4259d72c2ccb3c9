#include "controller/virtualcontroller.h"

#include "controller/project/monitorkeys.h"
#include "controller/project/persistentfile.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/projectkeys.h"
#include "controller/robot/robot.h"
#include "controller/robot/robotkeys.h"

namespace controller {

namespace {

const int toldAtMost = 1000;

} // namespace

/// The robot, its project, and what they have on the bus.
struct VirtualController::Machine {
    explicit Machine(VirtualController* controller)
        : robot(&controller->m_clock),
          robotKeys(&robot, &controller->m_clock, &controller->m_bus, &controller->m_requests),
          projectKeys(&project, &persistentVariables, &controller->m_bus),
          monitorKeys(&persistentVariables, &controller->m_bus) {}

    Robot robot;
    RobotKeys robotKeys;
    Project project;
    PersistentVariables persistentVariables{&project};
    PersistentFile persistentFile{&project, &persistentVariables};
    ProjectKeys projectKeys;
    MonitorKeys monitorKeys;
};

VirtualController::VirtualController(QObject* parent) : QObject(parent), m_machine(std::make_unique<Machine>(this)) {
    connect(&m_bus, &BusTable::delivered, this, &VirtualController::delivered);
    connect(&m_bus, &BusTable::noticed, this, &VirtualController::tellOnce);
    connect(&m_requests, &RequestTable::noticed, this, &VirtualController::tellOnce);
    connect(&m_pluginCommands, &PluginCommands::noticed, this, &VirtualController::tellOnce);
    connect(robot(), &Robot::noticed, this, &VirtualController::remarked);
    connect(&m_machine->persistentFile, &PersistentFile::failed, this, &VirtualController::remarked);
    m_changing.add(QStringLiteral("controller.uptime"), counter(0, 1000));
}

VirtualController::~VirtualController() = default;

Robot* VirtualController::robot() {
    return &m_machine->robot;
}

Project* VirtualController::project() {
    return &m_machine->project;
}

PersistentVariables* VirtualController::persistentVariables() {
    return &m_machine->persistentVariables;
}

bool VirtualController::keepValuesIn(const QString& path, QString* error) {
    return m_machine->persistentFile.keepIn(path, error);
}

Content VirtualController::handle(const Message& message, const QObject* asker) {
    switch (message.verb) {
    case Verb::Get:
        return m_bus.get(message.key, message.subKey);
    case Verb::Set:
        return m_bus.set(message.key, message.subKey, message.content);
    case Verb::Command:
        return m_bus.command(message.key, message.content);
    case Verb::Execute:
        return handleExecute(message);
    case Verb::Watch:
    case Verb::Unwatch:
        m_bus.watch(asker, message.key, message.verb == Verb::Watch);
        return nullptr;
    case Verb::Request:
        return m_requests.handle(message.key, message.content);
    }
    return nullptr;
}

Content VirtualController::handleExecute(const Message& message) {
    if (PluginCommands::isPluginCommand(message))
        return m_pluginCommands.handle(message);
    return m_bus.command(message.key, message.content);
}

void VirtualController::tellOnce(const QString& text) {
    if (m_told.contains(text))
        return;
    // Keys may be made up without end.
    if (m_told.size() >= toldAtMost)
        m_told.clear();
    m_told.insert(text);
    emit noticed(text);
}

} // namespace controller
