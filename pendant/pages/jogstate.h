#pragma once

#include "style/theme.h"

#include <QLabel>
#include <QString>
#include <QWidget>

namespace pendant {

/// One line: whether the robot moves, or why it does not go on.
class JogState : public QWidget {
    Q_OBJECT

public:
    explicit JogState(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    /// \param stoppedBy what ended the motion before, in the controller's words
    void setState(bool isMoving, const QString& stoppedBy);
    void retranslate();
    QString text() const { return m_text->text(); }

private:
    void draw();
    QString words() const;

    Theme m_theme;
    QLabel* m_icon;
    QLabel* m_text;
    bool m_isMoving = false;
    QString m_stoppedBy;
};

} // namespace pendant
