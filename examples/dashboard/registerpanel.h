#pragma once

#include <QTreeWidget>

class LiveState;

/// The registers and their values.
class RegisterPanel : public QTreeWidget {
    Q_OBJECT

public:
    explicit RegisterPanel(LiveState* live);

private:
    void readAgain();
};
