#include "callguard.h"

#include "report.h"
#include "thrown.h"

#include <QElapsedTimer>

namespace pendant {

CallGuard::CallGuard(QObject* parent) : QObject(parent) {}

QString CallGuard::run(const QString& plugin, const QString& call, const std::function<void()>& body) {
    QElapsedTimer timer;
    timer.start();
    const QString thrown = thrownBy(body);
    const CallRecord record{plugin, call, static_cast<double>(timer.nsecsElapsed()) / 1e6, thrown};

    if (m_records.size() == capacity)
        m_records.removeFirst();
    m_records.append(record);
    if (!thrown.isEmpty()) {
        ++m_thrownCount;
        reportError(plugin, tr("%1 threw: %2").arg(call, thrown));
    }
    emit recorded(record);
    return thrown;
}

} // namespace pendant
