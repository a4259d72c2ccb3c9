#pragma once

#include "pickplaceplugin.h"

#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include <kite/interfacemanager.h>

#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <memory>

/// The page before a robot that stands on the line x = y of its work object.
class PickPlaceTest : public QObject {
    Q_OBJECT

protected:
    static kite::InterfaceManager* manager() { return kite::kiteInterface(); }
    QWidget* page() { return m_pendant->page("pickplace"); }
    QString text(const char* name) { return page()->findChild<QLabel*>(name)->text(); }
    QString answer() { return text("answer"); }
    bool isBad(const char* name) { return page()->findChild<QLabel*>(name)->property("state").toString() == "error"; }
    void call(const char* card, const QString& name) {
        page()->findChild<QLineEdit*>(QString(card) + "Name")->setText(name);
    }
    void press(const char* button) {
        QVERIFY(m_pendant->press(button));
        m_robot->settle();
    }
    void turnToTheAuthorsTab() { page()->findChild<QTabWidget*>("tabs")->setCurrentIndex(1); }
    /// The commands of moves that were sent since the test forgot the traffic, and not the link's answers.
    QStringList sent() {
        QStringList keys;
        for (const auto& entry : m_robot->traffic()) {
            const bool goesOut = entry.direction == brisk::standin::TrafficEntry::Direction::Out;
            if (goesOut && entry.channel == "bus" && entry.key.startsWith("move."))
                keys << entry.kind + " " + entry.key;
        }
        return keys;
    }

    std::unique_ptr<pendanttest::Pendant> m_pendant;
    std::unique_ptr<pendanttest::Robot> m_robot;

protected slots:
    void init() {
        m_pendant.reset(new pendanttest::Pendant);
        m_robot.reset(new pendanttest::Robot);
        m_robot->loadCell(ROW_CELL);
        m_pendant->add<PickPlacePlugin>("pickplace");
        m_pendant->start();
        m_robot->connectLinks();
        QVERIFY(m_pendant->open("pickplace"));
        m_robot->settle();
    }
    void cleanup() {
        m_pendant.reset();
        m_robot.reset();
    }
};
