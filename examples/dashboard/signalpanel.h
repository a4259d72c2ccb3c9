#pragma once

#include <QWidget>

class GroupedList;
class LiveState;
class QLabel;
class QVariant;

/// The signals by their types.
class SignalPanel : public QWidget {
    Q_OBJECT

public:
    explicit SignalPanel(LiveState* live);

private:
    void readAgain();
    static QString textOf(const QVariant& value);

    QLabel* m_on;
    GroupedList* m_list;
};
