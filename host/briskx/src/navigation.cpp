#include "briskx/navigation.h"

#include "brisk/modulemanager.h"
#include "helm/managerhelper.h"

#include <QCoreApplication>
#include <QPointer>

namespace ot {
namespace gyre {

namespace {

// "robot.pack" -> "gyre.page.robot.page.pack.page"
QString entriesKey(const QString& group) {
    return QStringLiteral("gyre.page.%1.page").arg(QString(group).replace(QLatin1Char('.'), QLatin1String(".page.")));
}

// Entries are matched by position when they are read in again, which would take a group among them for one of them.
bool isInsideEntries(const brisk::ModuleObject* entries) {
    for (const brisk::ModuleObject* node = entries->pmobj(); node; node = node->pmobj()) {
        if (node->isList())
            return true;
    }
    return false;
}

bool holdsGroups(const brisk::ModuleObject* entries) {
    return !entries->isList() && entries->cmobjCount() > 0;
}

} // namespace

brisk::ModuleObject* registerPage(tarp::BModule* module, const QString& title, const QString& group,
                                  const QString& icon, int index) {
    if (group.isEmpty())
        return nullptr;
    brisk::ModuleObject* entries = m(entriesKey(group));
    if (isInsideEntries(entries) || holdsGroups(entries)) {
        helm::ManagerHelper::throwLog(
            module, QStringLiteral("error"),
            QCoreApplication::translate("Navigation", "The page \"%1\" has no entry: the group \"%2\" cannot "
                                                      "hold both pages and groups.")
                .arg(title, group));
        return nullptr;
    }
    auto* entry = new brisk::ModuleObject(brisk::ModuleObject::generateId(entries));
    entry->set(module, QStringLiteral("title"), title, false);
    entry->set(module, QStringLiteral("icon"), icon, false);
    // Whoever hears of it may take it away again.
    const QPointer<brisk::ModuleObject> inserted(entry);
    if (!entries->insertChild(index, entry))
        delete entry;
    return inserted;
}

} // namespace gyre
} // namespace ot
