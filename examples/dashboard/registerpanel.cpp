#include "registerpanel.h"

#include "livestate.h"
#include "reading.h"

#include <QHeaderView>

RegisterPanel::RegisterPanel(LiveState* live) {
    setObjectName(QStringLiteral("registers"));
    setHeaderLabels({tr("Register"), tr("Values")});
    setRootIsDecorated(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setUniformRowHeights(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(live, &LiveState::registersChanged, this, &RegisterPanel::readAgain);
}

void RegisterPanel::readAgain() {
    const auto textOf = [](const reading::Register& entry) {
        if (!entry.hasValues)
            return tr("no value");
        return entry.values.isEmpty() ? tr("empty") : entry.values.join(QLatin1String(", "));
    };
    const QList<reading::Register> registers = reading::registers();
    while (topLevelItemCount() > registers.size())
        delete takeTopLevelItem(registers.size());
    while (topLevelItemCount() < registers.size())
        new QTreeWidgetItem(this);
    for (int i = 0; i < registers.size(); ++i) {
        topLevelItem(i)->setText(0, registers.at(i).name);
        topLevelItem(i)->setText(1, textOf(registers.at(i)));
    }
}
