#include "controller/plugincommands.h"

namespace controller {

namespace {

Content echo(const QString&, const Content& data) {
    return data;
}

Content answerWith(const Content& data) {
    const Content answer = copied(nullptr);
    if (data)
        answer->append(nullptr, QStringLiteral("data"))->copyFrom(data.get());
    return answer;
}

QString wrongEndpoint(const Message& message) {
    if (message.subKey.isEmpty())
        return QStringLiteral("The plugin command \"%1\" names no endpoint. Send it to \"%2\".")
            .arg(message.key, PluginCommands::endpoint());
    return QStringLiteral("The controller has no endpoint \"%1\" for the plugin command \"%2\". Send it to \"%3\".")
        .arg(message.subKey, message.key, PluginCommands::endpoint());
}

} // namespace

PluginCommands::PluginCommands(QObject* parent) : QObject(parent), m_handler(echo) {}

QString PluginCommands::endpoint() {
    return QStringLiteral("ServiceAPI.plugin");
}

bool PluginCommands::isPluginCommand(const Message& message) {
    return message.verb == Verb::Execute && !message.subKey.isNull();
}

void PluginCommands::setHandler(Handler handler) {
    m_handler = handler ? std::move(handler) : Handler(echo);
}

Content PluginCommands::handle(const Message& message) {
    // A handler may replace itself.
    const Handler handler = m_handler;
    if (message.subKey == endpoint())
        return answerWith(handler(message.key, message.content));
    const QString text = wrongEndpoint(message);
    emit noticed(text);
    return brisk::standin::refusal(text);
}

} // namespace controller
