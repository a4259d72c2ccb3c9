#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QVector>

namespace pendant {

class LineTypes;

/// The instructions to choose from: a row for the title of each group, and below it one for each of its types.
class ProgramPickerModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { TypeRole = Qt::UserRole + 1, DescriptionRole, IconRole };

    /// \param types outlives the model
    explicit ProgramPickerModel(const LineTypes* types, QObject* parent = nullptr);

    /// Reads the types again, those that contain `part` in their name, title or description.
    void read(const QString& part);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Of a group's title all roles but Qt::DisplayRole are empty.
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        QString type; ///< empty for a group's title
        QString text;
        QString description;
        QString icon;
    };

    bool contains(const QString& type, const QString& part) const;

    const LineTypes* m_types;
    QVector<Row> m_rows;
};

} // namespace pendant
