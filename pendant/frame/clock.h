#pragma once

#include <QLabel>
#include <QTimer>

namespace pendant {

/// The time of day, to the minute.
class Clock : public QLabel {
    Q_OBJECT

public:
    explicit Clock(QWidget* parent = nullptr);

private:
    void tick();
    QTimer m_timer;
};

} // namespace pendant
