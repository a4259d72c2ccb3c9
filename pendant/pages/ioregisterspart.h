#pragma once

#include "style/theme.h"

#include <QLabel>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QWidget>

namespace pendant {

class IoRegisterDetails;
class IoRegistersModel;
class RowDelegate;

/// The registers as a table, and the one that is selected to be edited.
class IoRegistersPart : public QWidget {
    Q_OBJECT

public:
    explicit IoRegistersPart(const Theme& theme, QWidget* parent = nullptr);

    IoRegistersModel* model() const { return m_model; }
    int shownCount() const { return m_filter->rowCount(); }
    /// Only those whose name contains `text`, in any case.
    void setFilter(const QString& text);
    void setOnline(bool online);
    void setTheme(const Theme& theme);
    void retranslate();

private:
    void makeTable();
    void showSelected();

    IoRegistersModel* m_model;
    QSortFilterProxyModel* m_filter;
    QTableView* m_table;
    RowDelegate* m_delegate;
    QLabel* m_hint;
    IoRegisterDetails* m_details;
};

} // namespace pendant
