#include "controller/virtualcontroller.h"

#include "controller/io/iokeys.h"
#include "controller/io/motiondata.h"
#include "controller/io/registers.h"
#include "controller/io/signaltable.h"
#include "controller/project/monitorkeys.h"
#include "controller/project/persistentfile.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/projectkeys.h"
#include "controller/project/projectstore.h"
#include "controller/project/storekeys.h"
#include "controller/robot/movekeys.h"
#include "controller/robot/robot.h"
#include "controller/robot/robotkeys.h"
#include "controller/robot/switchkeys.h"

#include <QJsonObject>
#include <QPointer>

namespace controller {

namespace {

QString hostKey() {
    return QStringLiteral("host.info");
}

Content contentOf(const HostInfo& host) {
    const QJsonObject json{{"version", host.version}, {"id", host.id}, {"type", host.type}, {"level", host.level}};
    return brisk::standin::contentOf(QVariant(json));
}

} // namespace

/// The robot, its project, and what they have on the bus.
struct VirtualController::Machine {
    explicit Machine(VirtualController* controller)
        : robot(&controller->m_clock),
          robotKeys(&robot, &controller->m_clock, &controller->m_bus, &controller->m_requests),
          switchKeys(&robot, &controller->m_bus), moveKeys(&robot, &project, &controller->m_bus),
          projectKeys(&project, &persistentVariables, &controller->m_bus),
          storeKeys(&projectStore, &project, &persistentVariables, &controller->m_bus, &controller->m_requests),
          monitorKeys(&persistentVariables, &controller->m_bus), ioSignals(&controller->m_clock),
          ioKeys(&ioSignals, &registers, &motionData, &controller->m_bus) {}

    Robot robot;
    RobotKeys robotKeys;
    SwitchKeys switchKeys;
    Project project;
    MoveKeys moveKeys;
    PersistentVariables persistentVariables{&project};
    PersistentFile persistentFile{&project, &persistentVariables};
    ProjectStore projectStore{&project, &persistentVariables};
    ProjectKeys projectKeys;
    StoreKeys storeKeys;
    MonitorKeys monitorKeys;
    SignalTable ioSignals;
    Registers registers;
    MotionData motionData{&robot};
    IoKeys ioKeys;
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
    connect(&m_machine->projectStore, &ProjectStore::failed, this, &VirtualController::remarked);
    m_bus.defineComputed(hostKey(), [this] { return contentOf(m_host); });
    setHost(m_host);
    m_changing.add(QStringLiteral("controller.uptime"), counter(0, 1000));
    defineState(&m_bus);
    // Pendants ask for it as soon as the link is up, whatever the cell says.
    m_requests.onRequest(QStringLiteral("system.controller.get_params"),
                         [](const Content&) { return copied(nullptr); });
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

SignalTable* VirtualController::ioSignals() {
    return &m_machine->ioSignals;
}

Registers* VirtualController::registers() {
    return &m_machine->registers;
}

MotionData* VirtualController::motionData() {
    return &m_machine->motionData;
}

PathCheck* VirtualController::pathCheck() {
    return m_machine->moveKeys.pathCheck();
}

void VirtualController::setHost(const HostInfo& host) {
    m_host = host;
    m_machine->moveKeys.setHostVersion(host.version);
    m_machine->project.setRobot(host.id);
    m_bus.tell(hostKey());
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
