#pragma once

#include "recordsmodel.h"

namespace pendant {

/// The registers of the controller.
class IoRegistersModel : public RecordsModel {
    Q_OBJECT

public:
    enum Column { Name, Values, Columns };

    explicit IoRegistersModel(QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

protected:
    QString text(brisk::ModuleObject* record, int column) const override;
    QString heading(int column) const override;
};

} // namespace pendant
