#include "forcedcount.h"

#include "signals.h"
#include "statekeys.h"

#include "brisk/modulemanager.h"

#include <algorithm>

namespace pendant {

// Values change many times a second, details hardly ever.
ForcedCount::ForcedCount(QObject* parent)
    : QObject(parent), m_details(mName(statekeys::io(), QStringLiteral("signal_detail"))) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &ForcedCount::read);
    connect(&m_details, &FollowedNode::renewed, this, &ForcedCount::listen);
    listen(m_details.node());
}

void ForcedCount::listen(brisk::ModuleObject* node) {
    connect(node, &brisk::ModuleObject::touched, &m_soon, QOverload<>::of(&QTimer::start));
    read();
}

void ForcedCount::read() {
    const QVector<Signal> all = ioSignals::all();
    const int count =
        int(std::count_if(all.cbegin(), all.cend(), [](const Signal& signal) { return signal.isForced; }));
    if (count == m_count)
        return;
    m_count = count;
    emit changed();
}

} // namespace pendant
