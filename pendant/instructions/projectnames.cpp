#include "projectnames.h"

#include "brisk/modulemanager.h"
#include "brisk/moduleobject.h"
#include "project/projectkeys.h"
#include "state/signals.h"

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

// "tool" -> the lists of tools in the data tree, those of the project first.
QStringList listsOf(const QString& frame) {
    const QString inProject = QStringLiteral("orca.project.%1.").arg(frame);
    return {inProject + QStringLiteral("_list"), inProject + QStringLiteral("system_list"),
            QStringLiteral("orca.setting.g_%1.g_%1s").arg(frame)};
}

QStringList framesOf(const QString& selectedKey, const QString& frame) {
    QStringList names{m(selectedKey)->getString()};
    for (const QString& list : listsOf(frame))
        names += textsIn(list, QStringLiteral("name"));
    return tidied(names + textsIn(projectkeys::points(), QStringLiteral("value.[0][0][0].coord.") + frame));
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

QStringList projectnames::digitalOutputs() {
    QStringList names;
    for (const Signal& signal : ioSignals::all()) {
        if (signal.type == SignalType::DigitalOutput)
            names << signal.name;
    }
    return names;
}

} // namespace pendant
