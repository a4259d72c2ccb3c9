#pragma once

#include "grippereditor.h"

/// Closes the gripper with a force, and waits.
class CloseGripperEditor : public GripperEditor {
    Q_OBJECT

public:
    explicit CloseGripperEditor(QWidget* parent = nullptr) : GripperEditor(closeGripperForm(), tr("Force"), parent) {}
};
