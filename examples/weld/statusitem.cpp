#include "statusitem.h"

#include "procedure.h"

StatusItem::StatusItem(ProcedureStore* store) {
    const auto show = [this, store] {
        const Procedure& procedure = store->inUse();
        setText(tr("Weld %1 A, %2 kJ/mm").arg(procedure.currentA).arg(heatInputKjPerMm(procedure), 0, 'f', 2));
        setToolTip(procedure.name);
    };
    connect(store, &ProcedureStore::changed, this, show);
    show();
}
