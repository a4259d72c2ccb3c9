#pragma once

#include "answer.h"
#include "mover.h"

#include <QWidget>

class PlaceCard;
class QButtonGroup;
class QLabel;
class QSpinBox;

/// Two places, the moves between them, and what comes of it.
class PickPlacePage : public QWidget {
    Q_OBJECT

public:
    explicit PickPlacePage(Mover* mover);

    /// Looks at the points again.
    void readAgain();
    void say(const Answer& answer);

private:
    QWidget* makeReason();
    QWidget* makePlaces();
    QWidget* makeTabs();
    QWidget* makeMove();
    QWidget* makeOtherForm();
    QWidget* makeReport();
    void display();
    void displayDistance();
    void showUnit();
    Mover::Way way() const;
    void teach(const PlaceCard* card);
    void go(const PlaceCard* card);

    Mover* m_mover;
    PlaceCard* m_pick;
    PlaceCard* m_place;
    QButtonGroup* m_ways;
    QSpinBox* m_speed;
    QLabel* m_distance;
    QLabel* m_state;
    QLabel* m_error;
    QLabel* m_answer;
};
