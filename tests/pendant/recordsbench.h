#pragma once

#include "framefixture.h"

#include "frame/pagekeys.h"

#include <QLabel>
#include <QLineEdit>
#include <QTableView>

/// A page with a table of the project's records, shown, and an empty project.
struct RecordsBench {
    explicit RecordsBench(const QString& pageKey) : key(pageKey) {
        m("orca.project")->clear(nullptr, true, true);
        show();
        Frame::settle();
    }
    ~RecordsBench() { m("orca.project")->clear(nullptr, true, true); }

    void show() { frame.window->showPage(key); }
    QWidget* page() const { return frame.window->center()->page(key); }
    QTableView* table() const { return page()->findChild<QTableView*>(); }
    QLineEdit* find() const { return page()->findChild<QLineEdit*>("findRecord"); }
    QWidget* empty() const { return page()->findChild<QWidget*>("emptyState"); }

    QString cell(int row, int column) const { return table()->model()->index(row, column).data().toString(); }
    /// The first column.
    QStringList names() const {
        QStringList names;
        for (int row = 0; row < table()->model()->rowCount(); ++row)
            names << cell(row, 0);
        return names;
    }
    /// The cells of a row, joined by "|".
    QString row(int row) const {
        QStringList cells;
        for (int column = 0; column < table()->model()->columnCount(); ++column)
            cells << cell(row, column);
        return cells.join('|');
    }

    QString key;
    Frame frame;
};

/// Appends a record with these fields, dotted paths, to a list.
inline brisk::ModuleObject* addRecord(brisk::ModuleObject* list, const QList<QPair<QString, QVariant>>& fields) {
    auto* record = new brisk::ModuleObject(brisk::ModuleObject::generateId(list));
    for (const auto& field : fields)
        record->set(nullptr, field.first, field.second);
    list->insertChild(-1, record);
    return record;
}
