#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QList>

class QPushButton;
class RobotWatch;

/// The keys that are followed, their values and when they last changed.
class ValuePanel : public QGroupBox {
    Q_OBJECT

public:
    explicit ValuePanel(RobotWatch* watch);

private:
    struct Row {
        QLabel* value;
        QLabel* changedAt;
    };
    void display(int index);
    void switchLamp();

    RobotWatch* m_watch;
    QList<Row> m_rows;
    QPushButton* m_lamp;
};
