#include "jogdrive.h"

#include "brisk/relay.h"

namespace pendant {

JogDrive::JogDrive(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("jog keys"));
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(renewEveryMs);
    connect(&m_timer, &QTimer::timeout, this, &JogDrive::renew);
}

JogDrive::~JogDrive() {
    stop();
}

void JogDrive::start(const QString& space, int axis, double percent) {
    stop();
    m_command = {
        {QStringLiteral("space"), space}, {QStringLiteral("axis"), axis}, {QStringLiteral("percent"), percent}};
    m_timer.start();
    renew();
}

void JogDrive::stop() {
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    relay()->command(this, QStringLiteral("robot.jog.stop"));
}

void JogDrive::renew() {
    relay()->command(this, QStringLiteral("robot.jog"), QVariant(m_command));
}

} // namespace pendant
