#pragma once

#include "recordsmodel.h"

namespace pendant {

/// The points of the project. It reads the list again on every announcement, and does not ask which point is announced:
/// that is not always the edited one.
class PointsModel : public RecordsModel {
    Q_OBJECT

public:
    enum Column { Name, Kind, Position, Tool, WorkObject, Description, Columns };

    explicit PointsModel(QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

protected:
    QString text(brisk::ModuleObject* record, int column) const override;
    QString heading(int column) const override;

private:
    void listenToAnnouncements(brisk::ModuleObject* operate);

    FollowedNode m_operate;
};

} // namespace pendant
