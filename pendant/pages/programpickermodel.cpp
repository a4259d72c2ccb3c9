#include "programpickermodel.h"

#include "program/linetypes.h"

namespace pendant {

ProgramPickerModel::ProgramPickerModel(const LineTypes* types, QObject* parent)
    : QAbstractListModel(parent), m_types(types) {}

void ProgramPickerModel::read(const QString& part) {
    beginResetModel();
    m_rows.clear();
    const QVector<InstructionGroup> groups = m_types->groups();
    for (const InstructionGroup& group : groups) {
        QVector<Row> rows;
        for (const QString& type : group.types) {
            if (contains(type, part))
                rows << Row{type, m_types->title(type), m_types->description(type), m_types->icon(type)};
        }
        if (!rows.isEmpty())
            m_rows += QVector<Row>{{QString(), group.title, QString(), QString()}} + rows;
    }
    endResetModel();
}

bool ProgramPickerModel::contains(const QString& type, const QString& part) const {
    return type.contains(part, Qt::CaseInsensitive) || m_types->title(type).contains(part, Qt::CaseInsensitive) ||
           m_types->description(type).contains(part, Qt::CaseInsensitive);
}

int ProgramPickerModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant ProgramPickerModel::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= m_rows.size())
        return QVariant();
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case TypeRole:
        return row.type;
    case DescriptionRole:
        return row.description;
    case IconRole:
        return row.icon;
    default:
        return QVariant();
    }
}

Qt::ItemFlags ProgramPickerModel::flags(const QModelIndex& index) const {
    const bool isType = !index.data(TypeRole).toString().isEmpty();
    return isType ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

} // namespace pendant
