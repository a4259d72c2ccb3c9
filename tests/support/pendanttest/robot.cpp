#include "pendanttest/robot.h"

#include "controller/cellfile.h"
#include "controller/robot/robot.h"

#include "helm/managerhelper.h"

#include <QCoreApplication>

using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;

namespace pendanttest {

namespace {

const qint64 renewedEveryMs = 200;

} // namespace

Robot::Robot() {
    // What the controller has to say reaches the message list through it.
    helm::ManagerHelper::instance();
    QObject::connect(Traffic::instance(), &Traffic::recorded, &m_embedded,
                     [this](const TrafficEntry& entry) { m_traffic << entry; });
}

void Robot::loadDefaultCell() {
    loadCell(controller::CellFile::defaultPath());
}

void Robot::loadCell(const QString& path) {
    QString error;
    if (!controller::CellFile::load(path, controller(), &error))
        qFatal("%s", qPrintable(error));
}

void Robot::connectLinks() {
    bus(true);
    controllerLink(true);
}

void Robot::bus(bool up) {
    m_embedded.bus()->setUp(up);
    settle();
}

void Robot::controllerLink(bool up) {
    m_embedded.controllerLink()->setUp(up);
    settle();
}

void Robot::jog(const controller::JogCommand& command, qint64 ms) {
    for (qint64 leftMs = ms; leftMs > 0; leftMs -= renewedEveryMs) {
        controller()->robot()->jog(command);
        step(qMin(leftMs, renewedEveryMs));
    }
    controller()->robot()->stop();
    settle();
}

void Robot::step(qint64 ms) {
    controller()->clock()->step(ms);
    settle();
}

// The answer to a question that nobody waits for takes a timer of the link's and then an event of the channel's.
void Robot::settle() {
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

} // namespace pendanttest
