#pragma once

#include "helm/messagelist.h"
#include "style/theme.h"

#include <QLabel>
#include <QPushButton>

namespace pendant {

class ElidedLabel;

/// The newest message in one line; a press opens the list.
class MessageLine : public QPushButton {
    Q_OBJECT

public:
    explicit MessageLine(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showNewest();
    void showMessage(const helm::standin::Message& message);
    void showNothing();
    void setLevel(const QString& icon, const QString& token, const QString& word);

    Theme m_theme;
    QLabel* m_icon;
    QLabel* m_level;
    QLabel* m_time;
    QLabel* m_source;
    ElidedLabel* m_text;
    QLabel* m_count;
    QLabel* m_arrow;
};

} // namespace pendant
