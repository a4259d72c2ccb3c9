#include "briskx/navigation.h"

#include "brisk/modulemanager.h"

namespace ot {
namespace gyre {

namespace {

// "robot.pack" -> "gyre.page.robot.page.pack.page"
QString entriesKey(const QString& group) {
    return QStringLiteral("gyre.page.%1.page").arg(QString(group).replace(QLatin1Char('.'), QLatin1String(".page.")));
}

} // namespace

brisk::ModuleObject* registerPage(tarp::BModule* module, const QString& title, const QString& group,
                                  const QString& icon, int index) {
    if (group.isEmpty())
        return nullptr;
    brisk::ModuleObject* entries = m(entriesKey(group));
    auto* entry = new brisk::ModuleObject(brisk::ModuleObject::generateId(entries));
    entry->set(module, QStringLiteral("title"), title, false);
    entry->set(module, QStringLiteral("icon"), icon, false);
    if (!entries->insertChild(index, entry)) {
        delete entry;
        return nullptr;
    }
    return entry;
}

} // namespace gyre
} // namespace ot
