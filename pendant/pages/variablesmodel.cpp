#include "variablesmodel.h"

#include "project/projectkeys.h"
#include "recordtext.h"

namespace pendant {

VariablesModel::VariablesModel(QObject* parent) : RecordsModel(projectkeys::variables(), parent) {}

int VariablesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QString VariablesModel::text(brisk::ModuleObject* record, int column) const {
    switch (column) {
    case Name:
        return fieldOf(record, QStringLiteral("name"));
    case Type:
        return fieldOf(record, QStringLiteral("type"));
    case Value:
        return valueOfVariable(record);
    case Persistent:
        return fieldOf(record, QStringLiteral("pers")) == QLatin1String("true") ? tr("Yes") : tr("No");
    default:
        return fieldOf(record, QStringLiteral("description"));
    }
}

QString VariablesModel::heading(int column) const {
    const QStringList headings{tr("Name"), tr("Type"), tr("Value"), tr("Persistent"), tr("Description")};
    return headings.value(column);
}

} // namespace pendant
