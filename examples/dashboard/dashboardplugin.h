#pragma once

#include <kite/kite.h>

class LiveState;

/// A plugin that shows what the robot is, how it stands and what there is to refer to, and keeps that up to date.
class DashboardPlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit DashboardPlugin(QObject* parent);

    void init() override;
    void render() override;
    void idle() override;

private:
    LiveState* m_live = nullptr; // a child: with the plugin its subscriptions end
};
