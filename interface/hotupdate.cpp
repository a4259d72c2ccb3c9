#include "interface/hotupdate.h"

#include "brisk/modulemanager.h"

namespace kite {

using brisk::ModuleObject;

namespace {

// Intended: it is the last point that is announced, whichever was edited. Who listens reads the whole list.
int announcedIndex(const ModuleObject* list) {
    return list ? list->cmobjCount() - 1 : -1;
}

} // namespace

void announcePoint(QObject* sender, const QPointer<ModuleObject>& list, const QString& operation) {
    const QPointer<ModuleObject> points = m(QStringLiteral("orca.project.point.hot_update.points"));
    if (points)
        points->clear(nullptr, true, false);
    if (points)
        points->set(sender, QStringLiteral("#0"), announcedIndex(list));
    if (ModuleObject* operate = m(QStringLiteral("orca.project.point.hot_update.operate")))
        operate->setValue(sender, operation);
}

} // namespace kite
