#pragma once

#include "page.h"

#include <QPushButton>
#include <QString>
#include <QTableView>

namespace pendant {

class EmptyState;
class ProjectDetails;
class ProjectForm;
class ProjectsModel;
class RowDelegate;

/// The robot's projects on disk: which there are, which is open. They are made, opened and deleted here.
class ProjectsPage : public Page {
    Q_OBJECT

public:
    explicit ProjectsPage(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeTable();
    void select(const QString& name);
    void setCreating(bool creating);
    void openCreated(const QString& name);
    void showState();
    void showEmpty();

    ProjectsModel* m_model;
    QTableView* m_table;
    RowDelegate* m_delegate;
    EmptyState* m_empty;
    QLabel* m_offline;
    QLabel* m_hint;
    ProjectDetails* m_details;
    ProjectForm* m_form;
    QPushButton* m_new;
    QString m_selected; // a name: rows come and go
    bool m_isCreating = false;
};

} // namespace pendant
