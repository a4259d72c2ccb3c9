#pragma once

#include "framefixture.h"

#include "frame/pagekeys.h"
#include "pages/armview.h"
#include "pages/robotpage.h"
#include "pendanttest/robot.h"
#include "project/framemirror.h"
#include "project/projectmirror.h"

#include "kite/interfacemanager.h"

#include "controller/cellfile.h"
#include "controller/robot/robot.h"

/// The pendant's page with the drawn robot, before that of the default cell, whose clock stands.
struct RobotBench {
    RobotBench() {
        m("orca.toolpage")->clear(nullptr, true, true);
        m("orca.project")->clear(nullptr, true, true);
        robot.loadDefaultCell();
        robot.connectLinks();
        show();
    }

    void show() {
        frame.window->showPage(pendant::pagekeys::robot());
        Frame::settle();
    }
    void leave() { frame.window->showPage(pendant::pagekeys::start()); }

    QWidget* page() const { return frame.window->center()->page(pendant::pagekeys::robot()); }
    pendant::ArmView* view() const { return frame.find<pendant::ArmView>("armView"); }
    QWidget* empty() const { return page()->findChild<QWidget*>("emptyState"); }
    void stand(const controller::Joints& joints) {
        controller::Posture posture;
        posture.joints = joints;
        robot.controller()->robot()->setPosture(posture);
        robot.step(100);
    }

    pendanttest::Robot robot;
    pendant::ProjectMirror project;
    pendant::FrameMirror frames;
    Frame frame;
};
