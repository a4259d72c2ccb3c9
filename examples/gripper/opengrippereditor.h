#pragma once

#include "grippereditor.h"

/// Opens the gripper to a width, and waits.
class OpenGripperEditor : public GripperEditor {
    Q_OBJECT

public:
    explicit OpenGripperEditor(QWidget* parent = nullptr) : GripperEditor(openGripperForm(), tr("Width"), parent) {}
};
