#pragma once

#include "page.h"

#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QString>
#include <QTableView>

namespace pendant {

class EmptyState;
class RecordsModel;
class RowDelegate;

/// A page with a table of records and a field to find one by its name.
class RecordsPage : public Page {
    Q_OBJECT

public:
    RecordsPage(const QString& name, RecordsModel* model, const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;
    QTableView* table() const { return m_table; }

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    RecordsModel* model() const { return m_model; }
    /// The width of a column in px; the last takes what is left.
    void setColumnWidths(const QVector<int>& widths);
    /// The name of the selected record's node; empty when none is.
    QString selected() const;

    virtual QString emptyTitle() const = 0;
    virtual QString emptyText() const = 0;

signals:
    void selectionChanged();

private:
    void makeTable();
    void showState();

    RecordsModel* m_model;
    QSortFilterProxyModel* m_filter;
    QLabel* m_count;
    QLineEdit* m_find;
    QTableView* m_table;
    RowDelegate* m_delegate;
    EmptyState* m_empty;
};

} // namespace pendant
