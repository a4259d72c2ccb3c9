#pragma once

#include "controller/content.h"

#include <QObject>
#include <QString>

#include <functional>

namespace controller {

/// The commands that go to the controller's service for plugins. Such a message is an Execute with an endpoint as its
/// sub-key, which is not null; the answer carries what came out in its child "data".
class PluginCommands : public QObject {
    Q_OBJECT

public:
    /// Makes of the data sent with the command `name` what comes out; null for nothing.
    using Handler = std::function<Content(const QString& name, const Content& data)>;

    explicit PluginCommands(QObject* parent = nullptr);

    /// The one endpoint there is, "ServiceAPI.plugin".
    static QString endpoint();
    static bool isPluginCommand(const Message& message);

    /// An empty handler stands for the one at the start, which gives back what was sent.
    void setHandler(Handler handler);

    /// The answer; of another endpoint or an empty one a refusal, told by noticed() too.
    Content handle(const Message& message);

signals:
    void noticed(const QString& text);

private:
    Handler m_handler;
};

} // namespace controller
