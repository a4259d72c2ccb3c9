#pragma once

#include <QGroupBox>
#include <QLabel>

class QListWidget;
class RobotWatch;

/// Whether the links are up, and when they went up and down.
class LinkPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit LinkPanel(RobotWatch* watch);

private:
    void display();
    void note(const QString& text);

    RobotWatch* m_watch;
    QLabel* m_state;
    QListWidget* m_events;
};
