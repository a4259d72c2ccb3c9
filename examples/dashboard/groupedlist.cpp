#include "groupedlist.h"

#include <QHeaderView>

GroupedList::GroupedList(const QString& nameTitle, const QString& textTitle) {
    setHeaderLabels({nameTitle, textTitle});
    setSelectionMode(QAbstractItemView::NoSelection);
    setUniformRowHeights(true);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::Stretch);
}

void GroupedList::addGroup(const QString& title) {
    m_titles << title;
    auto* group = new QTreeWidgetItem(this);
    group->setFirstColumnSpanned(true);
    group->setExpanded(true);
    QFont bold = font();
    bold.setBold(true);
    group->setFont(0, bold);
}

void GroupedList::setRows(int group, const QList<Row>& rows) {
    QTreeWidgetItem* heading = topLevelItem(group);
    heading->setText(0, tr("%1 (%2)").arg(m_titles.at(group)).arg(rows.size()));
    while (heading->childCount() > rows.size())
        delete heading->takeChild(rows.size());
    while (heading->childCount() < rows.size())
        new QTreeWidgetItem(heading);
    for (int i = 0; i < rows.size(); ++i) {
        heading->child(i)->setText(0, rows.at(i).name);
        heading->child(i)->setText(1, rows.at(i).text);
    }
}
