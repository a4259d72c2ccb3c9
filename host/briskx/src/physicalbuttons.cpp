#include "briskx/physicalbuttons.h"

#include "briskx/buttonpages.h"
#include "tarp/modulelabel.h"

using ot::gyre::standin::ButtonPages;

void registerPhysicalButtons(tarp::BModule* module, const QString& pageName, const QList<helm::PhysicalButton>& first,
                             const QList<helm::PhysicalButton>& second, const QStringList& names) {
    ButtonPages::instance()->put(
        {module, tarp::standin::moduleLabel(module), pageName, first, second, names, /*enabled*/ true});
}

void enableRegisterPhysicalButtons(tarp::BModule* module, const QString& pageName, bool enable) {
    ButtonPages::instance()->enable(module, pageName, enable);
}
