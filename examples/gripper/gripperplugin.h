#pragma once

#include <kite/kite.h>

/// A plugin that brings two instructions for robot programs: close the gripper with a force, open it to a width.
class GripperPlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit GripperPlugin(QObject* parent);

    void init() override;

private:
    void registerInstructions();
};
