#include "projectnames.h"

#include "brisk/modulemanager.h"
#include "brisk/moduleobject.h"
#include "project/projectkeys.h"

using brisk::ModuleObject;

namespace pendant {

namespace {

QString textAt(ModuleObject* record, const QString& path) {
    const ModuleObject* node = record->r(path);
    return node ? node->getString() : QString();
}

// The texts at `path` of all records.
QStringList textsIn(const QString& list, const QString& path) {
    QStringList texts;
    for (ModuleObject* record : m(list)->cmobjs())
        texts << textAt(record, path);
    return texts;
}

QStringList tidied(QStringList names) {
    names.removeAll(QString());
    names.removeDuplicates();
    return names;
}

QStringList framesOf(const QString& selectedKey, const QString& leaf) {
    const QString path = QStringLiteral("value.[0][0][0].coord.") + leaf;
    return tidied(QStringList{m(selectedKey)->getString()} + textsIn(projectkeys::points(), path));
}

} // namespace

QStringList projectnames::points() {
    return tidied(textsIn(projectkeys::points(), QStringLiteral("name")));
}

QStringList projectnames::variables() {
    return tidied(textsIn(projectkeys::variables(), QStringLiteral("name")));
}

QStringList projectnames::tools() {
    return framesOf(projectkeys::tool(), QStringLiteral("tool"));
}

QStringList projectnames::workObjects() {
    return framesOf(projectkeys::workObject(), QStringLiteral("wobj"));
}

} // namespace pendant
