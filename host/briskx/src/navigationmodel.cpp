#include "briskx/navigationmodel.h"

#include "brisk/modulemanager.h"
#include "brisk/moduleobject.h"

#include <QPointer>
#include <QTimer>

namespace ot {
namespace gyre {
namespace standin {

namespace {

const QLatin1String pagesChild("page");

QString text(brisk::ModuleObject* node, const QString& field) {
    brisk::ModuleObject* child = node->c(field);
    return child ? child->getString() : QString();
}

Entry entryOf(brisk::ModuleObject* node) {
    return {text(node, QStringLiteral("title")), text(node, QStringLiteral("icon")), text(node, QStringLiteral("nav"))};
}

bool isEntry(const brisk::ModuleObject* node) {
    return node->name().startsWith(QLatin1Char('#'));
}

Group& groupOf(QList<Group>& groups, const QString& path) {
    for (Group& group : groups) {
        if (group.path == path)
            return group;
    }
    groups.append({path, path, QString(), {}});
    return groups.last();
}

// A page group stands beside its siblings under "page" of its parent; its own "page" holds entries ("#0") and groups.
void readGroups(brisk::ModuleObject* pages, const QString& parentPath, QList<Group>& groups) {
    for (brisk::ModuleObject* child : pages->cmobjs(false)) {
        if (isEntry(child)) {
            groupOf(groups, parentPath).entries.append(entryOf(child));
            continue;
        }
        const QString path = parentPath.isEmpty() ? child->name() : parentPath + QLatin1Char('.') + child->name();
        if (brisk::ModuleObject* inner = child->c(pagesChild))
            readGroups(inner, path, groups);
    }
}

} // namespace

struct NavigationModel::Private {
    QList<Group> declared;
    QTimer burst;
    QPointer<brisk::ModuleObject> pages;

    // Whoever clears the tree takes the node away; the next reading follows its successor.
    brisk::ModuleObject* follow() {
        if (pages)
            return pages;
        pages = m(QStringLiteral("gyre.page"));
        const auto announce = [this] { burst.start(); };
        QObject::connect(pages, &brisk::ModuleObject::touched, &burst, announce);
        QObject::connect(pages, &QObject::destroyed, &burst, announce);
        return pages;
    }
};

NavigationModel::NavigationModel() : d(new Private) {
    d->burst.setSingleShot(true);
    d->burst.setInterval(0);
    connect(&d->burst, &QTimer::timeout, this, &NavigationModel::changed);
    d->follow();
}

NavigationModel::~NavigationModel() = default;

NavigationModel* NavigationModel::instance() {
    static NavigationModel model;
    return &model;
}

void NavigationModel::declareGroup(const QString& path, const QString& title, const QString& icon) {
    Group& group = groupOf(d->declared, path);
    group.title = title;
    group.icon = icon;
    d->burst.start();
}

QList<Group> NavigationModel::groups() const {
    QList<Group> groups = d->declared;
    readGroups(d->follow(), QString(), groups);
    return groups;
}

QString NavigationModel::titleOf(const QString& nav) const {
    for (const Group& group : groups()) {
        for (const Entry& entry : group.entries) {
            if (entry.nav == nav)
                return entry.title;
        }
    }
    return QString();
}

} // namespace standin
} // namespace gyre
} // namespace ot
