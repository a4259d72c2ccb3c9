#include "namespanel.h"

#include "livestate.h"
#include "reading.h"

namespace {

QList<GroupedList::Row> rowsOf(const QStringList& names, const QString& selected, const QString& mark) {
    QList<GroupedList::Row> rows;
    for (const QString& name : names)
        rows.append({name, name == selected ? mark : QString()});
    return rows;
}

} // namespace

NamesPanel::NamesPanel(LiveState* live) : GroupedList(tr("Name"), tr("Use")) {
    setObjectName(QStringLiteral("names"));
    for (const QString& title : {tr("Tools"), tr("Work objects"), tr("Speeds"), tr("Zones")})
        addGroup(title);
    connect(live, &LiveState::namesChanged, this, &NamesPanel::readAgain);
}

void NamesPanel::readAgain() {
    const reading::Names names = reading::names();
    const reading::Robot robot = reading::robot();
    setRows(0, rowsOf(names.tools, robot.tool, tr("selected")));
    setRows(1, rowsOf(names.wobjs, robot.wobj, tr("selected")));
    setRows(2, rowsOf(names.speeds, QString(), QString()));
    setRows(3, rowsOf(names.zones, QString(), QString()));
}
