#include "controller/virtualcontroller.h"

namespace controller {

namespace {

const int toldAtMost = 1000;

} // namespace

VirtualController::VirtualController(QObject* parent) : QObject(parent) {
    connect(&m_bus, &BusTable::delivered, this, &VirtualController::delivered);
    connect(&m_bus, &BusTable::noticed, this, &VirtualController::tellOnce);
    connect(&m_requests, &RequestTable::noticed, this, &VirtualController::tellOnce);
    connect(&m_pluginCommands, &PluginCommands::noticed, this, &VirtualController::tellOnce);
    m_changing.add(QStringLiteral("controller.uptime"), counter(0, 1000));
}

VirtualController::~VirtualController() = default;

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
