#pragma once

#include "framefixture.h"

#include "frame/pagekeys.h"
#include "pendanttest/robot.h"
#include "project/framemirror.h"

#include "controller/cellfile.h"
#include "controller/robot/robot.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>

/// The pendant's jog page before the robot of the default cell, whose clock stands.
struct JogBench {
    JogBench() {
        m("orca.toolpage")->clear(nullptr, true, true);
        robot.loadDefaultCell();
        robot.connectLinks();
        frame.window->showPage(pendant::pagekeys::jog());
        QApplication::setActiveWindow(frame.window.get());
        Frame::settle();
        robot.forgetTraffic();
    }

    QPushButton* key(const QString& name) const { return frame.find<QPushButton>("jog:" + name); }
    void press(const QString& name) { QTest::mousePress(key(name), Qt::LeftButton); }
    void release(const QString& name) { QTest::mouseRelease(key(name), Qt::LeftButton); }
    QString value(const QString& axis) const {
        return frame.find("jog:" + axis)->findChild<QLabel*>("jogValue")->text();
    }
    QString state() const { return frame.find<QLabel>("jogState")->text(); }
    bool isMoving() { return robot.controller()->robot()->isMoving(); }

    /// The commands to the robot so far, with what they say: "robot.jog joint 0 25".
    QStringList commands() const {
        QStringList lines;
        for (const brisk::standin::TrafficEntry& entry : robot.traffic()) {
            if (entry.kind != "command" || entry.linkDown)
                continue;
            const QJsonObject said = entry.value.toObject();
            const QString jog = QString(" %1 %2 %3")
                                    .arg(said.value("space").toString())
                                    .arg(said.value("axis").toInt())
                                    .arg(said.value("percent").toDouble());
            lines << entry.key + (said.isEmpty() ? QString() : jog);
        }
        return lines;
    }

    pendanttest::Robot robot;
    pendant::FrameMirror frames;
    Frame frame;
};
