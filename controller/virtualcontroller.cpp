#include "controller/virtualcontroller.h"

#include "controller/project/monitorkeys.h"
#include "controller/project/persistentfile.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/projectkeys.h"
#include "controller/robot/robot.h"
#include "controller/robot/robotkeys.h"

#include <QPointer>

namespace controller {

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

/// Notes who asks. What carries a message out may throw, and may destroy the controller.
class VirtualController::Asking {
public:
    Asking(VirtualController* controller, const QObject* asker)
        : m_controller(controller), m_before(controller->m_asker) {
        controller->m_asker = asker;
    }
    ~Asking() {
        if (m_controller)
            m_controller->m_asker = m_before;
    }

private:
    Q_DISABLE_COPY(Asking)

    QPointer<VirtualController> m_controller;
    const QObject* m_before;
};

VirtualController::VirtualController(QObject* parent) : QObject(parent), m_machine(std::make_unique<Machine>(this)) {
    connect(&m_bus, &BusTable::delivered, this, &VirtualController::delivered);
    connect(&m_bus, &BusTable::noticed, this, &VirtualController::noticed);
    connect(&m_requests, &RequestTable::noticed, this, &VirtualController::noticed);
    connect(&m_pluginCommands, &PluginCommands::noticed, this, &VirtualController::noticed);
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
    const Asking asking(this, asker);
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

} // namespace controller
