#include "ioregistersmodel.h"

#include "state/registers.h"
#include "state/statekeys.h"

namespace pendant {

IoRegistersModel::IoRegistersModel(QObject* parent) : RecordsModel(statekeys::registers(), parent) {}

int IoRegistersModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QString IoRegistersModel::text(brisk::ModuleObject* record, int column) const {
    return column == Name ? registers::nameOf(record) : registers::valuesOf(record).join(QStringLiteral(", "));
}

QString IoRegistersModel::heading(int column) const {
    return column == Name ? tr("Name") : tr("Values");
}

} // namespace pendant
