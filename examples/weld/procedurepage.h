#pragma once

#include <QWidget>

class ProcedureStore;
class QListWidget;

/// Side-bar page: the procedures, a press takes one into use.
class ProcedurePage : public QWidget {
    Q_OBJECT

public:
    explicit ProcedurePage(ProcedureStore* store);

private:
    void showInUse();

    ProcedureStore* m_store;
    QListWidget* m_list;
};
