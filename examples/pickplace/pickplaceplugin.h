#pragma once

#include <kite/kite.h>

class Mover;
class PickPlacePage;

/// A plugin that moves the robot: teaches two points, checks the way, goes there, stops, and shows what goes wrong.
class PickPlacePlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit PickPlacePlugin(QObject* parent);

    void init() override;
    void render() override;
    void idle() override;
    void detach() override;

private:
    void makeKey();
    void enableKey();
    void tell(const QString& error);
    void stop();

    Mover* m_mover = nullptr; // a child: with the plugin its subscriptions end
    PickPlacePage* m_page = nullptr;
    bool m_shown = false;
};
