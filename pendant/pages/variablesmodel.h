#pragma once

#include "recordsmodel.h"

namespace pendant {

/// The variables of the project.
class VariablesModel : public RecordsModel {
    Q_OBJECT

public:
    enum Column { Name, Type, Value, Persistent, Description, Columns };

    explicit VariablesModel(QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

protected:
    QString text(brisk::ModuleObject* record, int column) const override;
    QString heading(int column) const override;
};

} // namespace pendant
