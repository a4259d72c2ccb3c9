#include "wireandgas.h"

#include "logmodule.h"

#include <kite/logline.h>

#include <QFormLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const double inchingMmPerS = 50.0;
const int clockMs = 100;

// What is told to the power source stands in the log, in English whatever the pendant speaks.
const char* logged(WireAndGas::Motion motion) {
    switch (motion) {
    case WireAndGas::Forward:
        return "forward";
    case WireAndGas::Back:
        return "back";
    default:
        return "still";
    }
}

} // namespace

WireAndGas::WireAndGas(QObject* parent) : QObject(parent), m_clock(new QTimer(this)) {
    m_clock->setInterval(clockMs);
    connect(m_clock, &QTimer::timeout, this, [this] {
        m_wireMm += (m_motion == Forward ? 1 : -1) * inchingMmPerS * clockMs / 1000.0;
        emit changed();
    });
}

void WireAndGas::feed(Motion motion) {
    if (motion != m_motion)
        kite::ServiceLine(logModule) << "Wire " << logged(motion) << " at " << m_wireMm << " mm";
    m_motion = motion;
    if (motion == Still)
        m_clock->stop();
    else
        m_clock->start();
    emit changed();
}

void WireAndGas::openGas(bool open) {
    if (open != m_gasOpen)
        kite::ServiceLine(logModule) << "Gas " << (open ? "open" : "shut");
    m_gasOpen = open;
    emit changed();
}

WireAndGas::Motion WireAndGas::motion() const {
    return m_motion;
}
bool WireAndGas::gasOpen() const {
    return m_gasOpen;
}
double WireAndGas::wireMm() const {
    return m_wireMm;
}

WireAndGasPage::WireAndGasPage(WireAndGas* service) : m_service(service), m_wire(new QLabel), m_gas(new QLabel) {
    setWindowTitle(tr("Wire and gas"));
    auto* hint = new QLabel(tr("Hold a key at the right edge: wire forward and back, gas and purge."));
    hint->setWordWrap(true);

    auto* values = new QFormLayout;
    values->setVerticalSpacing(16);
    values->addRow(tr("Wire"), m_wire);
    values->addRow(tr("Gas"), m_gas);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(values);
    layout->addWidget(hint);
    layout->addStretch();

    connect(service, &WireAndGas::changed, this, &WireAndGasPage::showState);
    showState();
}

void WireAndGasPage::showState() {
    const QString length = QString::number(m_service->wireMm(), 'f', 0);
    switch (m_service->motion()) {
    case WireAndGas::Forward:
        m_wire->setText(tr("forward, %1 mm").arg(length));
        break;
    case WireAndGas::Back:
        m_wire->setText(tr("back, %1 mm").arg(length));
        break;
    default:
        m_wire->setText(tr("still, %1 mm").arg(length));
    }
    m_gas->setText(m_service->gasOpen() ? tr("flowing") : tr("shut"));
}
