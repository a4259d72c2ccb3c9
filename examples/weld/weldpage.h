#pragma once

#include <QWidget>

class ProcedureStore;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSpinBox;

/// The plugin's page: the values of the procedure in use, and the heat that they bring into the seam.
class WeldPage : public QWidget {
    Q_OBJECT

public:
    explicit WeldPage(ProcedureStore* store);

    /// What the button says, for the page does not know by itself how it is shown.
    void showFullScreenState(bool full);

signals:
    void fullScreenPressed();
    void wireChangePressed();
    void proceduresPressed();

private:
    QWidget* makeValues();
    QWidget* makeResult();
    QWidget* makeActions();
    void takeValues();
    void showValues();

    ProcedureStore* m_store;
    QLabel* m_name;
    QSpinBox* m_current;
    QDoubleSpinBox* m_voltage;
    QDoubleSpinBox* m_travel;
    QDoubleSpinBox* m_gas;
    QLabel* m_heat;
    QLabel* m_verdict;
    QPushButton* m_fullScreen;
};
