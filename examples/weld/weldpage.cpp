#include "weldpage.h"

#include "procedure.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

// Above this a thin-sheet seam distorts; below the other one it does not fuse.
const double mostHeatKjPerMm = 0.9;
const double leastHeatKjPerMm = 0.15;

QDoubleSpinBox* makeBox(double least, double most, double step, const QString& unit) {
    auto* box = new QDoubleSpinBox;
    box->setRange(least, most);
    box->setSingleStep(step);
    box->setDecimals(1);
    box->setSuffix(QLatin1Char(' ') + unit);
    return box;
}

} // namespace

WeldPage::WeldPage(ProcedureStore* store)
    : m_store(store), m_name(new QLabel), m_current(new QSpinBox),
      m_voltage(makeBox(10.0, 45.0, 0.5, QStringLiteral("V"))),
      m_travel(makeBox(0.0, 60.0, 0.5, QStringLiteral("mm/s"))),
      m_gas(makeBox(0.0, 30.0, 0.5, QStringLiteral("l/min"))), m_heat(new QLabel), m_verdict(new QLabel),
      m_fullScreen(new QPushButton) {
    m_current->setRange(20, 500);
    m_current->setSingleStep(5);
    m_current->setSuffix(QStringLiteral(" A"));

    auto* columns = new QHBoxLayout;
    columns->setSpacing(16);
    columns->addWidget(makeValues(), 3);
    columns->addWidget(makeResult(), 2);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(16);
    layout->addLayout(columns, 1);
    layout->addWidget(makeActions());

    connect(store, &ProcedureStore::changed, this, &WeldPage::showValues);
    showFullScreenState(false);
    showValues();
}

QWidget* WeldPage::makeValues() {
    auto* group = new QGroupBox(tr("Procedure in use"));
    m_name->setObjectName(QStringLiteral("procedureName"));
    auto* grid = new QGridLayout(group);
    grid->setSpacing(8);
    grid->setColumnStretch(1, 1);
    const QList<QPair<QString, QWidget*>> rows{{tr("Name"), m_name},
                                               {tr("Current"), m_current},
                                               {tr("Voltage"), m_voltage},
                                               {tr("Travel speed"), m_travel},
                                               {tr("Gas flow"), m_gas}};
    for (int row = 0; row < rows.size(); ++row) {
        grid->addWidget(new QLabel(rows.at(row).first), row, 0);
        grid->addWidget(rows.at(row).second, row, 1);
    }
    grid->setRowStretch(rows.size(), 1);

    connect(m_current, QOverload<int>::of(&QSpinBox::valueChanged), this, &WeldPage::takeValues);
    for (QDoubleSpinBox* box : {m_voltage, m_travel, m_gas})
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &WeldPage::takeValues);
    return group;
}

QWidget* WeldPage::makeResult() {
    auto* group = new QGroupBox(tr("Heat input"));
    m_heat->setProperty("value", true);
    m_heat->setObjectName(QStringLiteral("heatInput"));
    m_verdict->setWordWrap(true);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_heat);
    layout->addWidget(m_verdict);
    layout->addStretch();
    return group;
}

QWidget* WeldPage::makeActions() {
    auto* procedures = new QPushButton(tr("Procedures"));
    auto* wireChange = new QPushButton(tr("Change the wire"));
    procedures->setObjectName(QStringLiteral("procedures"));
    wireChange->setObjectName(QStringLiteral("wireChange"));
    m_fullScreen->setObjectName(QStringLiteral("fullScreen"));

    auto* actions = new QWidget;
    auto* layout = new QHBoxLayout(actions);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(procedures);
    layout->addWidget(wireChange);
    layout->addStretch();
    layout->addWidget(m_fullScreen);

    connect(procedures, &QPushButton::clicked, this, &WeldPage::proceduresPressed);
    connect(wireChange, &QPushButton::clicked, this, &WeldPage::wireChangePressed);
    connect(m_fullScreen, &QPushButton::clicked, this, &WeldPage::fullScreenPressed);
    return actions;
}

void WeldPage::showFullScreenState(bool full) {
    m_fullScreen->setText(full ? tr("Back to the page") : tr("Full screen"));
}

void WeldPage::takeValues() {
    m_store->change({m_store->inUse().name, m_current->value(), m_voltage->value(), m_travel->value(), m_gas->value()});
}

void WeldPage::showValues() {
    const QSignalBlocker current(m_current), voltage(m_voltage), travel(m_travel), gas(m_gas);
    const Procedure& procedure = m_store->inUse();
    m_name->setText(procedure.name);
    m_current->setValue(procedure.currentA);
    m_voltage->setValue(procedure.voltageV);
    m_travel->setValue(procedure.travelMmPerS);
    m_gas->setValue(procedure.gasLPerMin);

    const double heat = heatInputKjPerMm(procedure);
    m_heat->setText(tr("%1 kJ/mm").arg(heat, 0, 'f', 2));
    if (heat > mostHeatKjPerMm)
        m_verdict->setText(tr("Too hot for thin sheet: travel faster or lower the current."));
    else if (heat < leastHeatKjPerMm)
        m_verdict->setText(tr("Too cold to fuse: travel slower or raise the current."));
    else
        m_verdict->setText(tr("Within the range for thin sheet."));
}
