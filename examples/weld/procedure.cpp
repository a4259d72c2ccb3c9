#include "procedure.h"

#include "logmodule.h"

#include <kite/logline.h>

double heatInputKjPerMm(const Procedure& procedure) {
    if (procedure.travelMmPerS <= 0.0)
        return 0.0;
    const double efficiency = 0.8;
    return efficiency * procedure.voltageV * procedure.currentA / (procedure.travelMmPerS * 1000.0);
}

ProcedureStore::ProcedureStore(QObject* parent)
    : QObject(parent), m_procedures{{tr("Fillet 3 mm, steel"), 140, 18.5, 7.0, 12.0},
                                    {tr("Fillet 5 mm, steel"), 220, 24.0, 6.0, 15.0},
                                    {tr("Butt 2 mm, stainless"), 95, 17.0, 8.5, 14.0},
                                    {tr("Overlap 1.5 mm, zinc coated"), 110, 16.5, 11.0, 12.0}},
      m_inUse(m_procedures.first()) {}

const QList<Procedure>& ProcedureStore::procedures() const {
    return m_procedures;
}

const Procedure& ProcedureStore::inUse() const {
    return m_inUse;
}

void ProcedureStore::use(int index) {
    if (index < 0 || index >= m_procedures.size())
        return;
    m_inUse = m_procedures.at(index);
    kite::InformationLine(logModule) << "Procedure in use: " << m_inUse.name << ", " << m_inUse.currentA << " A, "
                                     << m_inUse.voltageV << " V";
    emit changed();
}

void ProcedureStore::change(const Procedure& procedure) {
    m_inUse = procedure;
    emit changed();
}
