#pragma once

#include "style/theme.h"

#include <QDateTimeEdit>
#include <QPushButton>
#include <QWidget>

namespace pendant {

/// A date and a time to go to in the log.
class LogTimeBar : public QWidget {
    Q_OBJECT

public:
    explicit LogTimeBar(QWidget* parent = nullptr);

    void setTime(const QDateTime& time) { m_time->setDateTime(time); }
    void retranslate();

signals:
    void wanted(const QDateTime& time);

private:
    QDateTimeEdit* m_time;
    QPushButton* m_go;
};

} // namespace pendant
