#include "pointsmodel.h"

#include "pointvalues.h"
#include "project/projectkeys.h"
#include "recordtext.h"

namespace pendant {

PointsModel::PointsModel(QObject* parent)
    : RecordsModel(projectkeys::points(), parent), m_operate(projectkeys::pointsOperate()) {
    connect(&m_operate, &FollowedNode::renewed, this, &PointsModel::listenToAnnouncements);
    listenToAnnouncements(m_operate.node());
}

void PointsModel::listenToAnnouncements(brisk::ModuleObject* operate) {
    connect(operate, &brisk::ModuleObject::changed, this, &PointsModel::refreshSoon);
}

int PointsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QString PointsModel::text(brisk::ModuleObject* record, int column) const {
    switch (column) {
    case Name:
        return fieldOf(record, QStringLiteral("name"));
    case Kind:
        return PointValues::kind(record);
    case Position:
        return PointValues::position(record);
    case Tool:
        return PointValues::tool(record);
    case WorkObject:
        return PointValues::workObject(record);
    default:
        return fieldOf(record, QStringLiteral("description"));
    }
}

QString PointsModel::heading(int column) const {
    const QStringList headings{tr("Name"), tr("Kind"),        tr("Position"),
                               tr("Tool"), tr("Work object"), tr("Description")};
    return headings.value(column);
}

} // namespace pendant
