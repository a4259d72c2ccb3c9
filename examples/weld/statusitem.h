#pragma once

#include <QLabel>

class ProcedureStore;

/// Status-bar item: current and heat input of the procedure in use.
class StatusItem : public QLabel {
    Q_OBJECT

public:
    explicit StatusItem(ProcedureStore* store);
};
