#pragma once

#include <QGroupBox>
#include <QLabel>

class QLineEdit;
class RobotWatch;

/// Sends a custom command and shows what comes back.
class CommandPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit CommandPanel(RobotWatch* watch);

private:
    void send();

    RobotWatch* m_watch;
    QLineEdit* m_group;
    QLineEdit* m_key;
    QLineEdit* m_value;
    QLabel* m_answer;
};
