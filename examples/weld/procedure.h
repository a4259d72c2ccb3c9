#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// What the welding power source is told for a seam.
struct Procedure {
    QString name;
    int currentA;
    double voltageV;
    double travelMmPerS;
    double gasLPerMin;
};

/// Heat brought into the seam for each millimetre, in kJ/mm, with the efficiency of metal-active-gas welding (0.8).
/// Zero when the torch does not travel.
double heatInputKjPerMm(const Procedure& procedure);

/// The procedures to choose from and the one in use, which the page edits.
class ProcedureStore : public QObject {
    Q_OBJECT

public:
    explicit ProcedureStore(QObject* parent);

    const QList<Procedure>& procedures() const;
    const Procedure& inUse() const;
    void use(int index);
    void change(const Procedure& procedure);

signals:
    void changed();

private:
    QList<Procedure> m_procedures;
    Procedure m_inUse;
};
