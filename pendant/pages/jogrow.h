#pragma once

#include "style/theme.h"

#include <QLabel>
#include <QString>
#include <QWidget>

namespace pendant {

class JogKey;
class LimitBar;

/// One axis on the jog page: where it stands and the two keys that move it.
class JogRow : public QWidget {
    Q_OBJECT

public:
    /// \param unit "deg" or "mm"
    JogRow(const QString& name, const QString& unit, const Theme& theme, QWidget* parent = nullptr);

    /// Shows a bar from one limit to the other.
    void setLimits(double minimum, double maximum);
    void setTheme(const Theme& theme);
    void setValue(double value);

signals:
    /// A key was pressed (-1 or 1) or let go (0).
    void held(int direction);

private:
    JogKey* addKey(const QString& name, int direction);

    Theme m_theme;
    QLabel* m_value;
    LimitBar* m_bar = nullptr;
    JogKey* m_minus;
    JogKey* m_plus;
};

} // namespace pendant
