#pragma once

#include <kite/kite.h>

class RobotWatch;

/// A plugin that talks to the robot: values that change, links that come and go, a command with an answer.
class MonitorPlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit MonitorPlugin(QObject* parent);

    void init() override;

private:
    void tell(const QString& text);

    RobotWatch* m_watch = nullptr; // a child: with the plugin its subscriptions end
};
