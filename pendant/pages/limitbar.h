#pragma once

#include "style/theme.h"

#include <QWidget>

namespace pendant {

/// A thin bar between two limits with the place of a value in it, and the limits at its ends.
class LimitBar : public QWidget {
    Q_OBJECT

public:
    LimitBar(double minimum, double maximum, const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    void setValue(double value);
    /// Of the way from the lower limit to the upper, 0 to 1.
    double place() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_minimum;
    double m_maximum;
    double m_value = 0;
    Theme m_theme;
};

} // namespace pendant
