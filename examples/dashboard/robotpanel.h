#pragma once

#include <QGroupBox>

class LiveState;
class QGridLayout;
class QLabel;

/// Who the robot is and how it stands.
class RobotPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit RobotPanel(LiveState* live);

private:
    QLabel* addRow(QGridLayout* grid, const QString& name, const QString& caption);
    void readAgain();

    QLabel* m_state;
    QLabel* m_drives;
    QLabel* m_mode;
    QLabel* m_level;
    QLabel* m_tool;
    QLabel* m_wobj;
    QLabel* m_id;
    QLabel* m_type;
    QLabel* m_model;
    QLabel* m_address;
};
