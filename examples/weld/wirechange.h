#pragma once

#include <QDialog>

/// Model window: leads through the change of the wire spool.
class WireChange : public QDialog {
    Q_OBJECT

public:
    explicit WireChange(QWidget* parent);
};
